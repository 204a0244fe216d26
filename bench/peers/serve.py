"""Answers for a Python routine as tessaplot-peerbench does for ours: serve.py MODULE.FUNCTION [ARGUMENT...].

The function makes the input and returns a Routine. Each line `run` is answered with the milliseconds of its work, a tab
and the check of the result."""
import importlib
import os
import sys
import time


def main(routine, *arguments):
    answers = os.fdopen(os.dup(1), "w", buffering=1)
    os.dup2(2, 1)  # What a library prints is no answer.
    sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "routines"))
    module, function = routine.split(".")
    made = getattr(importlib.import_module(module), function)(*arguments)
    print("ready", file=answers)
    for _ in sys.stdin:
        start = time.perf_counter()
        result = made.work()
        spent = time.perf_counter() - start
        print(f"{spent * 1e3 / made.repeats:.6f}\t{made.check(result)}", file=answers)


if __name__ == "__main__":
    main(*sys.argv[1:])
