#!/usr/bin/env python3
"""How quick a booth is, and what memory it takes: booth_speed.py TAVRIN_CLI PORTRAIT BACKGROUND [--jobs N]

Presses ten times while a booth runs, for pictures of 2400 x 3000, and tells the time from the ticket to the whole photo.
Then N small jobs (1,000) with the memory that is in use after every hundred.
"""
import argparse
import os
import signal
import statistics
import subprocess
import tempfile
import time
from pathlib import Path


def memory(process):
    for line in Path(f"/proc/{process.pid}/status").read_text().splitlines():
        if line.startswith("VmRSS"):
            return int(line.split()[1]) // 1024


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("cli")
    parser.add_argument("portrait")
    parser.add_argument("background")
    parser.add_argument("--jobs", type=int, default=1000)
    chosen = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        work, out = Path(folder), Path(folder) / "out"
        out.mkdir()
        environment = {**os.environ, "HOME": folder, "XDG_DATA_HOME": folder + "/data"}

        def press(*size):
            done = subprocess.run([chosen.cli, "booth", "press", "--output", str(out), "--portrait", chosen.portrait,
                                   "--background", chosen.background, *size], capture_output=True, text=True, check=True,
                                  env=environment)
            return Path(done.stdout.strip())

        booth = subprocess.Popen([chosen.cli, "booth", "--output", str(out), "--quiet"], env=environment,
                                 stdout=subprocess.DEVNULL)
        time.sleep(1)
        times = []
        for _ in range(11):
            ticket = press("--inches", "8x10", "--dpi", "300")
            begin = ticket.stat().st_mtime
            photo = ticket.with_suffix(".jpg")
            while not photo.exists():
                time.sleep(0.005)
            times.append(time.time() - begin)
            time.sleep(0.37)  # so that the pauses of the booth are met at other moments
        print(f"press to picture, the first: {times[0]:.2f} s; then {min(times[1:]):.2f} to {max(times[1:]):.2f} s, "
              f"median {statistics.median(times[1:]):.2f} s")
        first = press("--inches", "2x2.5", "--dpi", "100")
        content = first.read_bytes()
        for hundred in range(chosen.jobs // 100):
            for number in range(100):
                (out / f"copy{hundred}-{number}_1.qlx").write_bytes(content)
            while len(list(out.glob("copy*.jpg"))) < 100 * (hundred + 1):
                time.sleep(0.05)
            print(f"after {100 * (hundred + 1)} jobs: {memory(booth)} MB", flush=True)
        booth.send_signal(signal.SIGTERM)
        print("exit code", booth.wait(30))


if __name__ == "__main__":
    main()
