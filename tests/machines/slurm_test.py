#!/usr/bin/env python3
"""A batch as a job array of a real Slurm: slurm_test.py TAVRIN_CLI

Starts munge, slurmctld and slurmd of its own on the loopback device, in a folder of its own, runs 60 pictures as an
array of 6 with the script of packaging/slurm, kills one task in the middle, requeues it, and wants every picture once,
equal byte for byte to those of a single run. Ends with 77 (skipped) where Slurm is not installed or cannot start.
"""
import json
import os
import pwd
import shutil
import socket
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from support import skip, wait_for, write_portrait

PICTURES, TASKS, KILLED = 60, 6, 2
SIZE = ["--inches", "8x10", "--dpi", "72"]
SCRIPT = Path(__file__).resolve().parents[2] / "packaging" / "slurm" / "tavrin-batch.sh"
PROGRAMS = ("munged", "slurmctld", "slurmd", "sbatch", "squeue", "scancel", "scontrol", "sinfo")


def program(name):
    return shutil.which(name, path=os.environ.get("PATH", "") + ":/usr/sbin:/sbin")


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class Slurm:
    """One controller and one node, both this machine."""

    def __init__(self, folder):
        self.folder = folder
        self.daemons = []
        self.environment = dict(os.environ, SLURM_CONF=str(folder / "slurm.conf"))
        self.user = pwd.getpwuid(os.getuid()).pw_name
        self.host = socket.gethostname().split(".")[0]

    def start(self):
        os.chmod(self.folder, 0o755)
        key = self.folder / "munge.key"
        key.write_bytes(os.urandom(128))
        key.chmod(0o400)
        munge = self.folder / "munge.socket"
        self.daemon("munged", "--foreground", "--force", f"--socket={munge}", f"--key-file={key}",
                    f"--pid-file={self.folder}/munge.pid", f"--log-file={self.folder}/munge.log",
                    f"--seed-file={self.folder}/munge.seed")
        if not wait_for("munge", 20, munge.exists):
            return False
        self.write_configuration(munge)
        self.daemon("slurmctld", "-D", "-i")
        self.daemon("slurmd", "-D", "-N", self.host)
        return wait_for("a node that is idle", 60, lambda: "idle" in self.ask("sinfo", "-h", "-o", "%t"))

    def write_configuration(self, munge):
        folder = self.folder
        for name in ("state", "spool"):
            (folder / name).mkdir()
        (folder / "slurm.conf").write_text(f"""
ClusterName=tavrin
SlurmctldHost={self.host}(127.0.0.1)
SlurmctldPort={free_port()}
SlurmdPort={free_port()}
SlurmUser={self.user}
SlurmdUser={self.user}
AuthType=auth/munge
AuthInfo=socket={munge}
CredType=cred/munge
StateSaveLocation={folder}/state
SlurmdSpoolDir={folder}/spool
SlurmctldPidFile={folder}/slurmctld.pid
SlurmdPidFile={folder}/slurmd.pid
SlurmctldLogFile={folder}/slurmctld.log
SlurmdLogFile={folder}/slurmd.log
ProctrackType=proctrack/{"linuxproc" if os.getuid() == 0 else "pgid"}
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
MpiDefault=none
SwitchType=switch/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
ReturnToService=2
MinJobAge=3600
NodeName={self.host} NodeAddr=127.0.0.1 CPUs=2 State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
""")
        # Nothing of this test needs control groups.
        (folder / "cgroup.conf").write_text("CgroupAutomount=no\n")

    def daemon(self, name, *arguments):
        log = open(self.folder / f"{name}.out", "w")
        self.daemons.append(subprocess.Popen([program(name), *arguments], env=self.environment, stdout=log, stderr=log))

    def ask(self, name, *arguments):
        done = subprocess.run([program(name), *arguments], env=self.environment, capture_output=True, text=True)
        if done.returncode != 0 and name != "sinfo":
            print(f"{name} {' '.join(arguments)}: {done.stderr.strip()}")
        return done.stdout.strip()

    def state(self, job):
        return self.ask("squeue", "-h", "-t", "all", "-o", "%T", "-j", job)

    def stop(self):
        for daemon in reversed(self.daemons):
            daemon.terminate()
        for daemon in self.daemons:
            try:
                daemon.wait(20)
            except subprocess.TimeoutExpired:
                daemon.kill()
                daemon.wait()

    def tell_logs(self):
        for log in sorted(self.folder.glob("*.out")) + sorted(self.folder.glob("*.log")):
            print(f"--- {log.name}\n" + "\n".join(log.read_text(errors="replace").splitlines()[-15:]))


def pictures(folder):
    return {path.name: path.read_bytes() for path in folder.glob("*.png")} if folder.exists() else {}


def is_of_shard(name, shard):
    return int(name.split("-")[1]) % TASKS == shard - 1  # portrait-NN-sea.png, in the order of the list


def run_array(slurm, cli, work):
    """The array with its killed task. True when all tasks ended well."""
    slurm.environment["TAVRIN_CLI"] = cli
    out = work / "array"
    job = slurm.ask("sbatch", "--parsable", f"--array=1-{TASKS}", "--cpus-per-task=1", "--mem=0",
                    f"--output={work}/task-%a.log", str(SCRIPT), str(work / "portraits"), str(work / "sea-.png"),
                    str(out), "--type", "png", *SIZE)
    if not job:
        return False
    victim = f"{job}_{KILLED}"

    def made_by_victim():
        return sum(is_of_shard(name, KILLED) for name in pictures(out))

    if not wait_for("the task that will be killed", 300, lambda: made_by_victim() >= 2):
        return False
    slurm.ask("scancel", "--signal=KILL", "--full", victim)
    if not wait_for("the end of the killed task", 120, lambda: slurm.state(victim) in ("FAILED", "CANCELLED", "NODE_FAIL")):
        return False
    before = made_by_victim()
    print(f"Task {KILLED} of {TASKS} was killed when {before} of its {PICTURES // TASKS} pictures stood.")
    if before >= PICTURES // TASKS:
        print("That was too late to show anything.")
        return False
    slurm.ask("scontrol", "requeue", victim)
    slurm.ask("scontrol", "update", f"JobId={victim}", "StartTime=now")
    return wait_for("the end of the array", 600,
                    lambda: set(slurm.state(job).split()) == {"COMPLETED"})


def check(cli, work):
    single, array = pictures(work / "single"), pictures(work / "array")
    faults = [name for name in single if array.get(name) != single[name]]
    if len(single) != PICTURES or single.keys() != array.keys() or faults:
        print(f"{len(single)} pictures of the single run, {len(array)} of the array; different: {faults}")
        return False
    left = [path.name for path in (work / "array").glob(".tavrin-*.part")]
    reports = sorted(str(path) for path in (work / "array" / "reports").glob("part-*.jsonl"))
    merged = subprocess.run([cli, "report", "merge", "--out", str(work / "report.jsonl"), *reports],
                            capture_output=True, text=True)
    print(merged.stdout.strip(), merged.stderr.strip())
    lines = [json.loads(line) for line in (work / "report.jsonl").read_text().splitlines()]
    numbers = sorted(line["n"] for line in lines if "n" in line)  # the worst come first
    made = [json.loads(line)["name"] for path in (work / "array" / ".tavrin-batch").glob("*.jsonl")
            for line in path.read_text().splitlines() if '"done"' in line]
    print(f"{len(made)} times a picture was made, {len(left)} half-written file(s) of the killed task are hidden.")
    # What stood without a record when the kill came is made again, to the same bytes: at most what was in hand.
    return merged.returncode == 0 and numbers == list(range(1, PICTURES + 1)) and \
        len(set(made)) == PICTURES and len(made) <= PICTURES + 3


def test(cli, work, slurm):
    (work / "portraits").mkdir()
    for number in range(PICTURES):
        write_portrait(work / "portraits" / f"portrait-{number:02}-.png", number)
    write_portrait(work / "sea-.png", PICTURES)
    start = time.monotonic()
    subprocess.run([cli, "batch", "--foregrounds", str(work / "portraits"), "--backgrounds", str(work / "sea-.png"),
                    "--out", str(work / "single"), "--type", "png", *SIZE], check=True, capture_output=True)
    print(f"Single run: {time.monotonic() - start:.1f} s")
    start = time.monotonic()
    if not slurm.start():
        slurm.tell_logs()
        skip("Slurm does not start on this machine.")
    print(f"Slurm stands after {time.monotonic() - start:.1f} s")
    start = time.monotonic()
    good = run_array(slurm, cli, work) and check(cli, work)
    print(f"Array: {time.monotonic() - start:.1f} s")
    if not good:
        slurm.tell_logs()
        for log in sorted(work.glob("task-*.log")):
            print(f"--- {log.name}\n{log.read_text()[-2000:]}")
    return good


def main():
    missing = [name for name in PROGRAMS if not program(name)]
    if missing:
        skip(f"{', '.join(missing)} not installed (packages slurmctld, slurmd, slurm-client, munge)")
    with tempfile.TemporaryDirectory(prefix="tavrin-slurm-") as folder:
        work = Path(folder)
        (work / "slurm").mkdir()
        os.chmod(work, 0o755)
        slurm = Slurm(work / "slurm")
        try:
            good = test(os.path.abspath(sys.argv[1]), work, slurm)
        finally:
            slurm.stop()
        return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
