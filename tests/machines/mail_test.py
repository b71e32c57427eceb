#!/usr/bin/env python3
"""Mails to a real server: mail_test.py TAVRIN_CLI

Debian's python3-aiosmtpd with a certificate made here: STARTTLS and SSL, a name and a password, a certificate that
nobody trusts, a limit of size. What arrives is taken apart by another program's hands, and every part compared. Ends
with 77 (skipped) where that server or openssl is missing.
"""
import email
import email.policy
import json
import os
import random
import shutil
import ssl
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from support import skip

try:
    from aiosmtpd.controller import Controller
    from aiosmtpd.smtp import SMTP, AuthResult, LoginPassword
except ImportError:
    if os.path.realpath(sys.executable) != os.path.realpath("/usr/bin/python3") and os.path.exists("/usr/bin/python3"):
        os.execv("/usr/bin/python3", ["/usr/bin/python3", *sys.argv])  # whose packages Debian installs
    skip("python3-aiosmtpd is missing.")

SUBJECT = "Grüße vom Sommerfest der Schule am alten Markt, mit einem Bild 😀 und noch einem langen Wort"
BODY = "Zeile eins\n.Punkt\nZeile drei: äöü €"
NAME = "Bild von Zoë & \"Freunden\" ☺.jpg"
PICTURE_BYTES = 5_000_000
KILLS = 30


class Mails:
    """What came, by its MIME parts."""

    def __init__(self):
        self.all = []

    async def handle_DATA(self, server, session, envelope):
        self.all.append((envelope, email.message_from_bytes(envelope.content, policy=email.policy.default)))
        return "250 taken"


def check_login(server, session, envelope, mechanism, data):
    right = isinstance(data, LoginPassword) and (data.login, data.password) == (b"studio", "pässwörd".encode())
    return AuthResult(success=right, handled=False)


class EncryptedController(Controller):
    """Encrypts from the first byte."""

    def __init__(self, handler, context, **rest):
        super().__init__(handler, ssl_context=context, **rest)


class StartTlsController(Controller):
    """Encrypts when it is asked to, and takes nothing before."""

    def __init__(self, handler, context, **rest):
        self.tls, self.rest = context, rest
        super().__init__(handler, port=rest["port"], hostname=rest["hostname"])

    def factory(self):
        return SMTP(self.handler, tls_context=self.tls, require_starttls=True, authenticator=check_login,
                    auth_required=True, enable_SMTPUTF8=True, data_size_limit=8_000_000)


class Test:
    def __init__(self, cli, work):
        self.cli, self.work, self.good = cli, work, True
        self.environment = {**os.environ, "HOME": str(work), "XDG_DATA_HOME": str(work / "data")}
        (work / NAME).write_bytes(b"\xff\xd8\xff\xd9" + os.urandom(PICTURE_BYTES - 4))
        (work / "secret").write_text("pässwörd\n")
        subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                        "/CN=localhost", "-addext", "subjectAltName=DNS:localhost", "-keyout", str(work / "key.pem"),
                        "-out", str(work / "cert.pem")], check=True, capture_output=True)
        self.context = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
        self.context.load_cert_chain(work / "cert.pem", work / "key.pem")

    def expect(self, what, right):
        print(f"{'ok  ' if right else 'WRONG'} {what}")
        self.good = self.good and right

    def mail(self, url, *options, to="anna@example.org"):
        call = [self.cli, "mail", "--server", url, "--from", "studio@example.org", "--to", to, "--subject", SUBJECT,
                "--body", BODY, "--attach", str(self.work / NAME), *options]
        return subprocess.run(call, capture_output=True, text=True, env=self.environment, timeout=120)

    def outbox(self):
        done = subprocess.run([self.cli, "outbox", "list", "--json"], capture_output=True, text=True,
                              env=self.environment, check=True)
        return json.loads(done.stdout)

    def check_parts(self, envelope, message):
        kinds = [part.get_content_type() for part in message.walk()]
        print("     " + ", ".join(f"{part.get_content_type()} {part.get_filename() or ''}".strip()
                                  for part in message.walk()))
        attached = next(message.iter_attachments())
        self.expect("the parts", kinds == ["multipart/mixed", "text/plain", "image/jpeg"])
        self.expect("subject, text and name of the file", message["Subject"] == SUBJECT and
                    message.get_body().get_content().replace("\r\n", "\n").rstrip("\n") == BODY and
                    attached.get_filename() == NAME)
        self.expect("the file", attached.get_content() == (self.work / NAME).read_bytes())
        self.expect("one recipient, one sender", envelope.rcpt_tos == ["anna@example.org"] and
                    envelope.mail_from == "studio@example.org" and message["To"] == "anna@example.org")
        self.expect("nothing of the machine", not any(word in envelope.content for word in
                    (str(self.work).encode(), os.uname().nodename.encode() + b">")))
        self.expect("no defects", not message.defects and not attached.defects)

    def start_tls(self):
        mails = Mails()
        server = StartTlsController(mails, self.context, hostname="localhost", port=free_port())
        server.start()
        try:
            url, trusted = f"smtp://localhost:{server.port}", ["--ca-file", str(self.work / "cert.pem")]
            login = ["--account", "studio", "--password-file", str(self.work / "secret"), "--starttls"]
            done = self.mail(url, *login, *trusted)
            self.expect(f"STARTTLS and the right password ({done.stderr.strip()})", done.returncode == 0)
            self.expect("one mail", len(mails.all) == 1)
            if mails.all:
                self.check_parts(*mails.all[0])
            before = len(self.outbox())
            for what, options, words in (
                    ("a certificate that nobody trusts", login, "is not to be trusted"),
                    ("a wrong password", ["--account", "other", "--password-file", str(self.work / "secret"),
                                          "--starttls", *trusted], "name or the password"),
                    ("no encryption", [], "refuses")):
                done = self.mail(url, *options)
                self.expect(f"{what}: told and kept", done.returncode == 1 and words in done.stderr)
                if words not in done.stderr:
                    print(done.stderr)
            self.expect("nothing of these arrived", len(mails.all) == 1 and len(self.outbox()) == before + 3)
            (self.work / NAME).write_bytes(os.urandom(PICTURE_BYTES * 8))
            done = self.mail(url, *login, *trusted)
            self.expect("40 MB against the limit: told before sending", done.returncode == 1 and
                        "takes 8.0 MB at most" in done.stderr and len(mails.all) == 1)
        finally:
            server.stop()

    def encrypted(self):
        mails = Mails()
        server = EncryptedController(mails, self.context, hostname="localhost", port=free_port(),
                                     server_hostname="localhost")
        server.ssl_context.check_hostname = False
        try:
            server.start()
        except ssl.SSLError:
            pass  # the server's own look at itself, which trusts nobody
        try:
            done = self.mail(f"smtps://localhost:{server.port}", "--ca-file", str(self.work / "cert.pem"))
            self.expect(f"SSL from the first byte ({done.stderr.strip()})", done.returncode == 0 and len(mails.all) == 1)
            done = self.mail(f"smtps://127.0.0.1:{server.port}", "--ca-file", str(self.work / "cert.pem"))
            self.expect("a certificate of another name", done.returncode == 1 and "not to be trusted" in done.stderr)
        finally:
            server.stop(no_assert=True)

    def speed(self):
        mails = Mails()
        server = Controller(mails, hostname="127.0.0.1", port=free_port(), data_size_limit=0)
        server.start()
        try:
            times = []
            for _ in range(3):
                start = time.monotonic()
                done = self.mail(f"smtp://127.0.0.1:{server.port}")
                times.append(time.monotonic() - start)
                self.expect("plain", done.returncode == 0)
            print(f"     a mail of 5 MB: {min(times):.2f} s, with the server's own work")
        finally:
            server.stop()

    def kills(self):
        """Programs killed at any moment: what they had taken on is sent once, waits, or may have gone."""
        mails = Mails()
        server = Controller(mails, hostname="127.0.0.1", port=free_port())
        server.start()
        random.seed(20)
        (self.work / "small").write_bytes(os.urandom(400_000))
        def call(number):
            return [self.cli, "mail", "--server", f"smtp://127.0.0.1:{server.port}", "--from", "studio@example.org",
                    "--to", "anna@example.org", "--subject", str(number), "--attach", str(self.work / "small")]
        def sent():
            return [int(message["Subject"]) for _, message in mails.all]
        def kept(*states):
            return [int(mail["subject"]) for mail in self.outbox() if mail["state"] in states]
        try:
            begin = time.monotonic()
            subprocess.run(call(-1), env=self.environment, check=True, capture_output=True)
            usual = time.monotonic() - begin
            for number in range(KILLS):
                process = subprocess.Popen(call(number), env=self.environment, stdout=subprocess.DEVNULL)
                time.sleep(random.uniform(0.4, 1.2) * usual)
                process.kill()
                process.wait()
            time.sleep(1)  # the server ends what it had begun
            waiting, maybe = kept("waiting"), kept("may have gone")
            right = not set(waiting) & set(sent()) and not kept("held", "under way")
            arrived = len(set(sent()))
            subprocess.run([self.cli, "outbox", "send"], env=self.environment, capture_output=True)
            right = right and not kept("waiting") and len(sent()) == len(set(sent())) and set(waiting) <= set(sent())
            self.expect(f"{KILLS} kills: {arrived - 1} had arrived, {len(waiting)} waited and went then, {len(maybe)} may "
                        f"have gone ({len(set(maybe) & set(sent()))} had), none arrived twice", right)
            for mail in self.outbox():
                subprocess.run([self.cli, "outbox", "discard", mail["id"]], env=self.environment)
        finally:
            server.stop()

    def run(self):
        self.speed()
        self.kills()
        self.encrypted()
        self.start_tls()
        return self.good


def free_port():
    import socket
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def main():
    if not shutil.which("openssl"):
        skip("openssl is missing.")
    with tempfile.TemporaryDirectory() as folder:
        return 0 if Test(sys.argv[1], Path(folder)).run() else 1


if __name__ == "__main__":
    sys.exit(main())
