"""Runs the programs of one workload in turns and tells how they compare."""
import re
import statistics

from contestants import NoResult

COLUMNS = ("Work", "Program", "Threads", "Median ms", "Min..max ms", "Ours/theirs", "Goal", "Reached", "Check")
# What libraries read that would otherwise use every core.
ONE_THREAD = {name: "1" for name in ("OMP_NUM_THREADS", "OPENBLAS_NUM_THREADS", "GDAL_NUM_THREADS",
                                     "VTK_SMP_MAX_THREADS")}


class Entry:
    """A program in the comparison, with its times so far."""

    def __init__(self, contestant, settings=None, trouble=""):
        self.contestant, self.settings = contestant, settings or {}
        self.times, self.check, self.trouble = [], "", trouble

    def attempt(self, action):
        """What the action returns, None once the program has failed."""
        if self.trouble:
            return None
        try:
            return action()
        except (NoResult, OSError, RuntimeError) as trouble:
            self.trouble = str(trouble)
            return None

    def run(self, timed):
        answer = self.attempt(self.contestant.run)
        if answer is not None:
            milliseconds, self.check = answer
            if timed:
                self.times.append(milliseconds)


def compare(workload, places, packages, rounds):
    """The rows of the table, and the lines about goals that were not reached."""
    missing = packages.missing(workload.needs)
    if missing:
        return [row(workload.name, workload.work, check=not_installed(missing))], []
    ours = Entry(workload.ours)
    peers = [entry_of(peer, packages) for peer in workload.peers]
    for number, entry in enumerate([ours] + peers):
        picture = f"{places['scratch']}/{workload.name}-{number}.png"
        entry.contestant.prepare(places | {"picture": picture}, entry.settings)
        entry.attempt(entry.contestant.start)
    for turn in range(rounds + 1):
        for entry in [ours] + peers:
            entry.run(timed=turn > 0)
    for entry in [ours] + peers:
        entry.contestant.stop()
    return report(workload, ours, peers)


def entry_of(peer, packages):
    missing = packages.missing(peer.packages)
    return Entry(peer.contestant, ONE_THREAD if peer.threads == "1" else {}, not_installed(missing) if missing else "")


def not_installed(missing):
    return f"skipped: {', '.join(missing)} {'is' if len(missing) == 1 else 'are'} not installed"


def report(workload, ours, entries):
    rows = [row(f"{workload.name} {workload.also}".strip(), "Tessaplot: " + workload.work, "all", *times_of(ours),
                check=ours.trouble or ours.check)]
    behind = []
    for peer, entry in zip(workload.peers, entries):
        ratio = ratio_of(ours, entry)
        agree = agreement(workload, ours.check, entry.check)
        reached = ""
        if peer.goal is not None and ratio is not None:
            reached = "not comparable" if not agree else "yes" if ratio <= peer.goal else "NO"
        if reached not in ("", "yes"):
            behind.append(f"{workload.name}: {ratio:.2f} of {peer.name} ({peer.threads}), goal {peer.goal}: {reached}")
        check = entry.trouble or entry.check + ("" if agree else " DOES NOT AGREE")
        rows.append(row(workload.name, peer.name, peer.threads, *times_of(entry),
                        "" if ratio is None else f"{ratio:.2f}", "" if peer.goal is None else f"{peer.goal}", reached,
                        check + (f" ({peer.note})" if peer.note else "")))
    return rows, behind


def times_of(entry):
    if entry.trouble or not entry.times:
        return "", ""
    return shown(statistics.median(entry.times)), f"{shown(min(entry.times))}..{shown(max(entry.times))}"


def shown(milliseconds):
    return f"{milliseconds:.0f}" if milliseconds >= 100 else f"{milliseconds:.3g}"


def ratio_of(ours, entry):
    """The median over the rounds: a slow spell of the machine falls on both sides of each."""
    if ours.trouble or entry.trouble or not entry.times:
        return None
    return statistics.median(mine / theirs for mine, theirs in zip(ours.times, entry.times))


def agreement(workload, mine, theirs):
    """Whether the results are the same within the tolerance."""
    found = [re.search(workload.compared, check) for check in (mine, theirs)]
    if not all(found):
        return False
    pairs = zip(*([float(number) for number in match.groups()] for match in found))
    return all(abs(a - b) <= workload.tolerance * max(abs(a), abs(b)) for a, b in pairs)


def row(workload, program, threads="", median="", spread="", ratio="", goal="", reached="", check=""):
    return "| " + " | ".join((workload, program, threads, median, spread, ratio, goal, reached, check)) + " |"


def heading():
    return row(*COLUMNS) + "\n|" + "---|" * len(COLUMNS)
