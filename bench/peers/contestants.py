"""The ways to run a program: each has start(), run() -> (milliseconds, check) and stop().

Commands and environments are templates; `places` fills in the files and folders that they name."""
import os
import select
import signal
import subprocess
import threading
import time

import screen
from pixels import share_of_file

ANSWER_LIMIT = 60  # seconds
SHOWN_LIMIT = 20
STANDS_STILL = 0.5  # seconds without a change until a picture counts as the last one
LOOK_EVERY = 0.003
LEAST_COLOURED = 200  # sampled pixels; a bar of colours or icons have fewer
SHARE_THAT_STANDS = 0.9


class NoResult(Exception):
    """Why a program has no time."""


class Contestant:
    def __init__(self, command, **environment):
        self.command, self.environment = command, environment
        self.places, self.settings = {}, {}
        self.process = None

    def prepare(self, places, settings):
        self.places = places
        self.settings = settings | {name: self._filled(value) for name, value in self.environment.items()}

    def _filled(self, template):
        return template.format_map(self.places)

    def _spawn(self, **options):
        with open(self.places["log"], "a") as log:
            return subprocess.Popen([self._filled(word) for word in self.command],
                                    env=os.environ | self.settings | options.pop("env", {}), stderr=log, **options)

    def start(self):
        pass

    def stop(self):
        pass


class Worker(Contestant):
    """A process that makes its input, says `ready` and then answers each line `run` with a time and a check."""

    def start(self):
        self.process = self._spawn(stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        if self._answer() != "ready":
            raise NoResult("does not start")

    def run(self):
        try:
            self.process.stdin.write(b"run\n")
            self.process.stdin.flush()
        except BrokenPipeError:
            raise NoResult("ended early") from None
        milliseconds, _, check = self._answer().partition("\t")
        try:
            return float(milliseconds), check
        except ValueError:
            raise NoResult("failed") from None

    def _answer(self):
        ready, _, _ = select.select([self.process.stdout], [], [], ANSWER_LIMIT)
        if not ready:
            raise NoResult(f"gave no answer in {ANSWER_LIMIT} s")
        return self.process.stdout.readline().decode().strip()

    def stop(self):
        if self.process is not None:
            self.process.kill()
            self.process.communicate()


class PictureProcess(Contestant):
    """A whole process, from the command to its end, that leaves {picture}."""

    def run(self):
        start = time.perf_counter()
        process = self._spawn(stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        limit = threading.Timer(ANSWER_LIMIT, process.kill)  # wait() with a limit would look only every 50 ms.
        limit.start()
        try:
            status = process.wait()
            milliseconds = (time.perf_counter() - start) * 1e3
        finally:
            limit.cancel()
            process.kill()
        if status != 0:
            raise NoResult(f"ended with status {status}")
        share, size = share_of_file(self.places["picture"])
        return milliseconds, f"{size}, {share:.0%} coloured"


class Window(Contestant):
    """From the command until a coloured surface stands on the screen: nine tenths of the coloured pixels of the picture
    that then stays. Each start has a display of its own, so that nobody meets what another one left."""

    def run(self):
        display = screen.Screen(managed=True)
        try:
            return self._show(display)
        finally:
            display.close()

    def _show(self, display):
        start = time.perf_counter()
        process = self._spawn(env={"DISPLAY": display.name}, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              start_new_session=True)
        try:
            seen = self._watch(display, start)
            display.save(self.places["picture"])
        finally:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
        last = seen[-1][1]
        first = next(moment for moment, coloured in seen if coloured >= SHARE_THAT_STANDS * last)
        share = last * screen.SAMPLED**2 / (screen.WIDTH * screen.HEIGHT)
        return first * 1e3, f"{share:.0%} coloured"

    @staticmethod
    def _watch(display, start):
        """Moments of change with the number of coloured pixels, until they stand still."""
        seen, before = [(0.0, 0)], None
        while True:
            sample = display.sample()
            now = time.perf_counter() - start
            if sample != before:
                before = sample
                seen.append((now, screen.coloured_in(sample)))
            elif seen[-1][1] >= LEAST_COLOURED and now - seen[-1][0] > STANDS_STILL:
                return seen
            if now > SHOWN_LIMIT:
                raise NoResult(f"showed no surface in {SHOWN_LIMIT} s")
            time.sleep(LOOK_EVERY)
