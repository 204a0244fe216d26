"""What a routine of a peer is made of."""
from typing import Any, Callable, NamedTuple


class Routine(NamedTuple):
    work: Callable[[], Any]  # what is timed
    check: Callable[[Any], str]  # tells its result
    repeats: int = 1  # how often the work does what one time is wanted of
