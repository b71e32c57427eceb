#!/usr/bin/env python3
"""Attacks tavrin-cli: attack.py TAVRIN_CLI [--seconds N] [--seed S] [--only FAMILY [--case N]] [--keep]

Broken pictures and files, kills, odd names and faults of the machine, for as long as it is told. Every case has a
folder, a home and a random generator of its own: one that found a fault is printed with the options that run it again.
Ends with 1 when anything was found. Real pictures are damaged too when TAVRIN_TEST_DATA names a folder of them.
"""
import argparse
import collections
import os
import random
import shutil
import signal
import sys
import tempfile
import threading
import time
from pathlib import Path

from attacks import FAMILIES
from attacks.bench import Case
from attacks.materials import Bench
from support import has_own_mount_space


# Cases of one kind whose faults are told in full.
MOST_TOLD = 3


class Tally:
    def __init__(self):
        self.cases = self.starts = self.faults = self.skipped = self.running = self.memory = 0
        self.seconds = self.processor = 0.0

    def add(self, case, seconds):
        self.cases += 1
        self.seconds += seconds
        self.starts += len(case.starts)
        self.faults += bool(case.faults)
        self.skipped += bool(case.skipped)
        self.memory = max([self.memory, *(start.memory for start in case.starts)])
        self.processor = max([self.processor, *(start.processor for start in case.starts)])


class Attack:
    """Shares the time among the families: the one that had least of it is next."""

    def __init__(self, options, work):
        self.options, self.work = options, work
        self.bench = Bench(os.path.abspath(options.cli), options.seed, work)
        self.tallies = {family: Tally() for family in FAMILIES if options.only in (None, family)}
        self.told = collections.Counter()
        self.guard = threading.Lock()
        self.begin = time.monotonic()

    def run(self):
        workers = [threading.Thread(target=self.work_on) for _ in range(self.options.jobs)]
        for worker in workers:
            worker.start()
        try:
            for worker in workers:
                worker.join()
        except (KeyboardInterrupt, SystemExit):
            self.options.seconds = 0
            for worker in workers:
                worker.join(60)
            raise

    def next_case(self):
        with self.guard:
            first = {family: tally for family, tally in self.tallies.items() if not tally.cases + tally.running}
            late = time.monotonic() - self.begin >= self.options.seconds
            if (late or self.options.case is not None) and not first:
                return None
            # What runs now counts as much as an average case.
            family = min(first or self.tallies, key=lambda name: self.share(self.tallies[name]))
            tally = self.tallies[family]
            tally.running += 1
            number = self.options.case if self.options.case is not None else tally.cases + tally.running
            return family, number

    @staticmethod
    def share(tally):
        return tally.seconds + tally.running * tally.seconds / max(1, tally.cases)

    def work_on(self):
        while (chosen := self.next_case()) is not None:
            family, number = chosen
            begin = time.monotonic()
            case = self.try_case(family, number)
            with self.guard:
                self.tallies[family].running -= 1
                self.tallies[family].add(case, time.monotonic() - begin)
                self.tell(case)
            if not (case.faults and self.options.keep):
                self.bench.remove(case.folder)

    def try_case(self, family, number):
        kind, attack = FAMILIES[family][(number + self.options.seed) % len(FAMILIES[family])]
        case = Case(self.bench, family, number, kind, self.work / "cases" / f"{family}-{number}")
        try:
            attack(case)
        except Exception as error:  # pylint: disable=broad-except
            case.want(False, f"the attack itself broke: {type(error).__name__}: {error}")
        finally:
            case.close()
        self.bench.check(case)
        return case

    def tell(self, case):
        if not case.faults:
            return
        print(f"{case.family} {case.number}: {case.kind}")
        # One fault shows in many cases; the first few tell what it is.
        self.told[case.attack] += 1
        for fault in case.faults if self.told[case.attack] <= MOST_TOLD else ():
            print(f"    {fault[:400]}")
        kept = f", kept in {case.folder}" if self.options.keep else ""
        print(f"    again: --seed {self.options.seed} --only {case.family} --case {case.number}{kept}", flush=True)

    def summary(self):
        seconds = time.monotonic() - self.begin
        print("\n| family | cases | starts | skipped | with faults | longest, processor | most memory |")
        print("|---|---|---|---|---|---|---|")
        for family, tally in self.tallies.items():
            print(f"| {family} | {tally.cases} | {tally.starts} | {tally.skipped} | {tally.faults} | "
                  f"{tally.processor:.1f} s | {tally.memory} MB |")
        cases, starts, faults = (sum(getattr(tally, name) for tally in self.tallies.values())
                                 for name in ("cases", "starts", "faults"))
        print(f"\nattack: {cases} cases, {starts} starts of tavrin-cli in {seconds:.0f} s, seed {self.options.seed}: "
              f"{'no faults' if not faults else f'{faults} cases with FAULTS'}", flush=True)
        return faults


def parse():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("cli", help="the built tavrin-cli")
    parser.add_argument("--seconds", type=float, default=60, help="no case begins later (default 60)")
    parser.add_argument("--seed", type=int, default=random.SystemRandom().randrange(1, 1000000))
    parser.add_argument("--only", choices=FAMILIES, help="one family")
    parser.add_argument("--case", type=int, help="one case, with --only and --seed")
    parser.add_argument("--jobs", type=int, default=min(4, os.cpu_count() or 1), help="cases at a time")
    parser.add_argument("--keep", action="store_true", help="keep the folders of cases with faults")
    options = parser.parse_args()
    if options.case is not None and not options.only:
        parser.error("--case needs --only")
    return options


def main():
    options = parse()
    has_own_mount_space()
    work = Path(tempfile.mkdtemp(prefix="tavrin-attack-"))
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    # What is ignored here, as under nohup, the programs under attack would ignore too.
    signal.signal(signal.SIGHUP, lambda *_: None)
    try:
        attack = Attack(options, work)
        attack.run()
        faults = attack.summary()
    finally:
        if not options.keep:
            shutil.rmtree(os.fsencode(work), ignore_errors=True)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
