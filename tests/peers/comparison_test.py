"""The comparison with other programs, with stand-ins for them."""
import os
import subprocess
import sys
import unittest

PEERS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "bench", "peers")
sys.path.insert(0, PEERS)

from comparison import compare  # noqa: E402
from contestants import Contestant, Worker  # noqa: E402
from workloads import WORKLOADS, Peer, Workload  # noqa: E402

PLACES = {"scratch": "/nowhere", "log": os.devnull}


class AnyPackageBut:
    def __init__(self, *absent):
        self.absent = absent

    def missing(self, packages):
        return [package for package in packages if package in self.absent]


class StandIn(Contestant):
    def __init__(self, check, *times):
        super().__init__([])
        self.check, self.times = check, iter((1000, *times))  # The first is the one that warms up.

    def run(self):
        return next(self.times), self.check


def shell(script):
    return Worker(["sh", "-c", script])


def rows_of(ours, *peers):
    rows, behind = compare(Workload("W1", "work", ours, r"sum (\S+)", 1e-3, list(peers)), PLACES,
                           AnyPackageBut("absent"), 3)
    return [[cell.strip() for cell in row.split("|")[1:-1]] for row in rows], behind


class Comparison(unittest.TestCase):
    def test_ratios_are_medians_of_rounds_and_held_against_the_goal(self):
        peer = Peer("slower", StandIn("sum 100.05", 20, 10, 50), (), 0.5)
        faster = Peer("faster", StandIn("sum 100", 1, 1, 1), (), 0.9)
        rows, behind = rows_of(StandIn("sum 100", 10, 8, 5), peer, faster)
        self.assertEqual([row[5:8] for row in rows], [["", "", ""], ["0.50", "0.5", "yes"], ["8.00", "0.9", "NO"]])
        self.assertEqual(len(behind), 1)
        self.assertIn("faster", behind[0])

    def test_other_results_are_never_called_reached(self):
        for check in ("sum 101", "another word"):
            rows, behind = rows_of(StandIn("sum 100", 1, 1, 1), Peer("other", StandIn(check, 9, 9, 9), (), 1.0))
            self.assertEqual(rows[1][7], "not comparable")
            self.assertIn("DOES NOT AGREE", rows[1][8])
            self.assertEqual(len(behind), 1)

    def test_absent_and_broken_peers_are_named_and_the_others_go_on(self):
        peers = [Peer("absent", StandIn("", 1), ("absent",)), Peer("mute", shell("exit 1"), ()),
                 Peer("failing", shell("echo ready; read line; exit 1"), ()),
                 Peer("good", shell(r"echo ready; while read line; do printf '2\tsum 1\n'; done"), ())]
        rows, _ = rows_of(StandIn("sum 1", 1, 1, 1), *peers)
        self.assertEqual(rows[1][8], "skipped: absent is not installed")
        self.assertEqual([row[8] for row in rows[2:4]], ["does not start", "failed"])
        self.assertEqual(rows[4][5], "0.50")


class Command(unittest.TestCase):
    def test_list_and_readme_name_everything(self):
        told = subprocess.run([sys.executable, "-B", os.path.join(PEERS, "run"), "--list"], capture_output=True,
                              text=True, check=True).stdout
        with open(os.path.join(PEERS, "README.md")) as file:
            readme = file.read()
        for workload in WORKLOADS:
            self.assertIn(f"\n{workload.name} ", "\n" + told)
            self.assertIn(f"\n| {workload.name}", readme)
            for package in workload.packages:
                self.assertIn(package, readme.split())


if __name__ == "__main__":
    unittest.main()
