#!/usr/bin/python3
"""Tests what another user of the machine can reach of a running demo printer: only what sending a job needs, and only
at its port. Users are not identified there. For the sockets root becomes "nobody"; other users leave them out.

usage: demo_neighbour_test.py BUILD_FOLDER
"""
import errno
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
# IPP's and CUPS's operations that administer printers, and those that change a job or read its document.
ADMINISTRATION = [0x4003, 0x4004, *range(0x4006, 0x400f), 0x4027, 0x4028, *range(0x10, 0x14), 0x15, 0x22, 0x23, 0x25,
                  0x26, 0x38]
OF_A_JOB = [0x06, 0x08, 0x0c, 0x0d, 0x14, 0x3b]


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
        return client.connect_ex(str(path))


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
        for operation in ADMINISTRATION:
            for user in (OWNER, "anna", "mallory"):
                tries[f"{operation:#x} as {user}"] = ("POST", "/", ipp(operation, user))
        for operation in OF_A_JOB:
            tries[f"{operation:#x} of a job"] = ("POST", "/jobs/", ipp(operation, "mallory"))
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
        self.assertEqual([reach(path) for path in sockets], [0] * 3)
        self.assertEqual(as_nobody(lambda: [reach(path) for path in sockets]), [errno.EACCES] * 3)


if __name__ == "__main__":
    unittest.main(verbosity=2)
