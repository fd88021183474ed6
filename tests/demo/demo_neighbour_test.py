#!/usr/bin/python3
"""Tests what another user of the machine can reach of a running demo printer: only what sending a job needs, and only
at its port. Users are not identified there. For the sockets root becomes "nobody"; other users leave them out.

usage: demo_neighbour_test.py BUILD_FOLDER
"""
import http.client
import json
import os
import pathlib
import pwd
import socket
import struct
import subprocess
import sys
import tempfile
import unittest

BUILD = pathlib.Path(sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev").resolve()
OWNER = pwd.getpwuid(os.getuid()).pw_name
PATIENCE = 20
LOCATIONS = [(method, path) for method in ("GET", "HEAD", "PUT", "POST") for path in (
    "/admin", "/admin/", "/admin/conf/cupsd.conf", "/admin/conf/cups-files.conf", "/admin/log/error_log",
    "/admin/log/access_log", "/admin/log/page_log", "/admin/jobs/", "/admin/conf/../conf/cupsd.conf")]
OPERATIONS = {
    "CUPS-Add-Modify-Printer": 0x4003, "CUPS-Delete-Printer": 0x4004, "CUPS-Add-Modify-Class": 0x4006,
    "CUPS-Delete-Class": 0x4007, "CUPS-Accept-Jobs": 0x4008, "CUPS-Reject-Jobs": 0x4009, "CUPS-Set-Default": 0x400a,
    "CUPS-Get-Devices": 0x400b, "CUPS-Get-PPDs": 0x400c, "CUPS-Move-Job": 0x400d, "CUPS-Authenticate-Job": 0x400e,
    "CUPS-Get-Document": 0x4027, "CUPS-Create-Local-Printer": 0x4028, "Pause-Printer": 0x10, "Resume-Printer": 0x11,
    "Purge-Jobs": 0x12, "Set-Printer-Attributes": 0x13, "Get-Printer-Supported-Values": 0x15, "Enable-Printer": 0x22,
    "Disable-Printer": 0x23, "Hold-New-Jobs": 0x25, "Release-Held-New-Jobs": 0x26,
    "Cancel-Jobs": 0x38}


def ipp(operation, user):
    """A request about the queue and its first job, under a user's name."""
    uri = "ipp://localhost/classes/All" if operation == 0x4006 else "ipp://localhost/printers/Office_MFP"
    message = struct.pack(">HHI", 0x0200, operation, 1)
    for group, attributes in [
            (1, [(0x47, "attributes-charset", "utf-8"), (0x48, "attributes-natural-language", "en"),
                 (0x45, "printer-uri", uri), (0x21, "job-id", "\0\0\0\1"), (0x42, "requesting-user-name", user),
                 (0x21, "document-number", "\0\0\0\1")]),
            (2, [(0x45, "job-printer-uri", uri)]), (4, [(0x45, "device-uri", "socket://127.0.0.1/")])]:
        message += bytes([group])
        for tag, name, value in attributes:
            message += struct.pack(f">BH{len(name)}sH{len(value)}s", tag, len(name), name.encode(), len(value),
                                   value.encode())
    return message + b"\3"


def attempt(port, method, path, body=b""):
    """The status of the answer: IPP's if there is one, else HTTP's."""
    connection = http.client.HTTPConnection("127.0.0.1", port, timeout=PATIENCE)
    connection.request(method, path, body, {"Content-Type": "application/ipp"} if body else {})
    answer = connection.getresponse()
    content = answer.read()
    connection.close()
    if answer.status == 200 and len(content) >= 4 and body:
        return f"IPP {struct.unpack('>H', content[2:4])[0]:#06x}"
    return str(answer.status)


def reach(path):
    with socket.socket(socket.AF_UNIX) as client:
        try:
            client.connect(str(path))
        except PermissionError:
            return "no connection"
    return "connected"


def as_nobody(work):
    """The result of a function, called with the rights of the user "nobody"."""
    nobody = pwd.getpwnam("nobody")
    os.setgroups([])
    os.setegid(nobody.pw_gid)
    os.seteuid(nobody.pw_uid)
    try:
        return work()
    finally:
        os.seteuid(0)
        os.setegid(0)


class Neighbour(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        os.chmod(folder.name, 0o711)
        self.run_folder = pathlib.Path(folder.name) / "run"
        printer = subprocess.Popen([BUILD / "bin/kesto-demo-printer", "--dir", self.run_folder, "--port", "0",
                                    "--folder-port", "0", "--json"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.addCleanup(printer.stdout.close)
        self.addCleanup(printer.wait)
        self.addCleanup(printer.terminate)
        places = json.loads(printer.stdout.readline())
        self.port = int(places["port"].split(":")[1])
        subprocess.run(["lp", "-h", places["server"], "-U", "anna", "-o", "job-hold-until=indefinite", __file__],
                       check=True, stdout=subprocess.DEVNULL)

    def test_administration_is_closed(self):
        """Claims the name of the owner, of the job's sender and of another user."""
        tries = {f"{method} {path}": (method, path) for method, path in LOCATIONS}
        for name, operation in OPERATIONS.items():
            for user in (OWNER, "anna", "mallory"):
                tries[f"{name} as {user}"] = ("POST", "/", ipp(operation, user))
        for operation, name in [(0x08, "Cancel-Job"), (0x0c, "Hold-Job"), (0x0d, "Release-Job"),
                                (0x14, "Set-Job-Attributes"), (0x06, "Send-Document"), (0x3b, "Close-Job")]:
            tries[f"{name} as mallory"] = ("POST", "/jobs/", ipp(operation, "mallory"))
        statuses = {name: attempt(self.port, *what) for name, what in tries.items()}
        closed = ("401", "403", "IPP 0x0403")  # the last is "not authorized"
        self.assertEqual({name: status for name, status in statuses.items() if status not in closed}, {})

    def test_a_job_can_be_sent_at_the_port(self):
        for operation in (0x0b, 0x4001, 0x4002, 0x04):
            self.assertEqual(attempt(self.port, "POST", "/", ipp(operation, "mallory")), "IPP 0x0000", hex(operation))

    def test_the_sockets_are_the_owners(self):
        if os.getuid() != 0:
            self.skipTest("only root can become another user")
        sockets = [self.run_folder / name for name in ("sockets/server", "sockets/printer", "control")]
        self.assertEqual([reach(path) for path in sockets], ["connected"] * 3)
        self.assertEqual(as_nobody(lambda: [reach(path) for path in sockets]), ["no connection"] * 3)


if __name__ == "__main__":
    unittest.main(verbosity=2)
