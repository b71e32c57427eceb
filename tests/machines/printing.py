"""A printing system of the test's own: a CUPS daemon on a loopback port, and printers behind it."""
import getpass
import os
import shutil
import signal
import socket
import subprocess
import time
from pathlib import Path

from support import skip, wait_for

# What the printer does with a job, told by a file beside it: "out" has no paper until the file says otherwise.
COMMAND = """#!/bin/sh
cd "{folder}"
while [ "$(cat mood)" = out ]; do
    echo "STATE: +media-empty" >&2
    sleep 0.2
done
echo "STATE: -media-empty" >&2
exit 0
"""

CONFIGURATION = """
LogLevel {log}
Listen 127.0.0.1:{port}
Browsing Off
DefaultAuthType None
WebInterface No
MaxJobs 200
PreserveJobHistory Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Location /admin>
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

FILES = """
ServerRoot {folder}/etc
RequestRoot {folder}/spool
CacheDir {folder}/cache
StateDir {folder}/run
TempDir {folder}/spool/tmp
AccessLog {folder}/access.log
ErrorLog {folder}/error.log
PageLog {folder}/page.log
FileDevice Yes
SystemGroup {system}
User {user}
Group {group}
"""

NEEDED = ("cupsd", "dbus-daemon", "ippeveprinter", "lpadmin", "cupsenable", "cupsdisable", "cupsaccept", "cupsreject", "pdfinfo",
          "pdftoppm", "pdfimages")


def find(program):
    return shutil.which(program, path=os.environ.get("PATH", "") + ":/usr/sbin:/sbin")


def free_port():
    with socket.socket() as taken:
        taken.bind(("127.0.0.1", 0))
        return taken.getsockname()[1]


def answers(port):
    with socket.socket() as line:
        line.settimeout(0.5)
        return line.connect_ex(("127.0.0.1", port)) == 0


class Printer:
    """A printer of the network that keeps what it prints."""

    def __init__(self, folder, name, bus):
        self.folder, self.name, self.port, self.process = folder / name, name, free_port(), None
        self.environment = {**os.environ, "DBUS_SYSTEM_BUS_ADDRESS": bus}
        self.folder.mkdir()
        self.set_mood("well")
        command = self.folder / "command"
        command.write_text(COMMAND.format(folder=self.folder))
        command.chmod(0o755)
        self.start()

    def start(self):
        # It counts its prints from one each time.
        prints = self.folder / f"prints-{len(list(self.folder.glob('prints-*')))}"
        prints.mkdir()
        self.process = subprocess.Popen(
            [find("ippeveprinter"), "-p", str(self.port), "-n", "localhost", "-r", "off", "-k", "-d",
             str(prints), "-f", "application/pdf", "-c", str(self.folder / "command"), self.name],
            stdout=subprocess.DEVNULL, stderr=open(self.folder / "log", "a"), env=self.environment, start_new_session=True)

    def set_mood(self, mood):
        (self.folder / "mood").write_text(mood)

    def prints(self):
        return sorted(self.folder.glob("prints-*/*.pdf"), key=lambda path: path.stat().st_mtime_ns)

    def stop(self):
        if self.process:
            self.process.terminate()
            self.process.wait()
            self.process = None


class Printing:
    def __init__(self, folder):
        missing = [program for program in NEEDED if not find(program)]
        if missing:
            skip(f"there is no {', '.join(missing)} here.")
        self.folder, self.port, self.printers = Path(folder), free_port(), []
        self.environment = {**os.environ, "CUPS_SERVER": f"127.0.0.1:{self.port}", "LC_ALL": "C"}
        for name in ("etc/ppd", "etc/ssl", "spool/tmp", "cache", "run"):
            (self.folder / name).mkdir(parents=True)
        is_root = os.getuid() == 0
        user, group, system = ("lp", "lp", "root") if is_root else (getpass.getuser(), "nogroup", "root")
        (self.folder / "etc/cupsd.conf").write_text(CONFIGURATION.format(port=self.port, log="warn"))
        (self.folder / "etc/cups-files.conf").write_text(FILES.format(folder=self.folder, user=user, group=group,
                                                                              system=system))
        for one in [self.folder, *self.folder.rglob("*")]:
            one.chmod(0o777 if one.is_dir() else 0o644)
        if is_root:
            shutil.chown(self.folder / "spool", "root", "lp")
            (self.folder / "spool").chmod(0o710)
            (self.folder / "spool/tmp").chmod(0o1777)
        # The printer wants a bus to be announced on, which nobody listens to.
        self.bus = f"unix:path={self.folder}/bus"
        self.bus_daemon = subprocess.Popen([find("dbus-daemon"), "--session", "--nofork", f"--address={self.bus}"],
                                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                           start_new_session=True)
        self.start()

    def start(self):
        self.daemon = subprocess.Popen(
            [find("cupsd"), "-f", "-c", str(self.folder / "etc/cupsd.conf"), "-s",
             str(self.folder / "etc/cups-files.conf")], stdout=subprocess.DEVNULL,
            stderr=open(self.folder / "cupsd.log", "a"), start_new_session=True)
        if not wait_for("the printing system", 10, lambda: answers(self.port)):
            self.end()
            skip(f"no printing system can be started: {self.errors()}")

    def errors(self):
        log = self.folder / "error.log"
        return (self.folder / "cupsd.log").read_text().strip() + (log.read_text().strip() if log.exists() else "")

    def stop(self):
        self.daemon.send_signal(signal.SIGTERM)
        self.daemon.wait()

    def call(self, program, *arguments):
        done = subprocess.run([find(program), "-h", f"127.0.0.1:{self.port}", *arguments], capture_output=True,
                              text=True, env=self.environment)
        if done.returncode != 0:
            print(f"{program} {' '.join(arguments)}: {done.stderr.strip()}")
        return done.returncode == 0

    def add_printer(self, name):
        printer = Printer(self.folder, name, self.bus)
        self.printers.append(printer)
        if not wait_for(f"the printer {name}", 10, lambda: answers(printer.port)):
            skip(f"no printer can be started: {(printer.folder / 'log').read_text().strip()}")
        end = time.monotonic() + 20
        while not self.call("lpadmin", "-p", name, "-E", "-v", f"ipp://localhost:{printer.port}/ipp/print", "-m",
                            "everywhere", "-o", "printer-error-policy=retry-job"):
            if time.monotonic() > end:
                skip(f"the printer {name} cannot be set up.")
            time.sleep(0.5)
        return printer

    def end(self):
        for printer in self.printers:
            printer.stop()
        self.stop()
        self.bus_daemon.terminate()
        self.bus_daemon.wait()
