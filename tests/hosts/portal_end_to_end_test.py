#!/usr/bin/python3
"""Prints through the real front end of the desktop portal, with a real GTK client, and a dialog that the test plays or
the real one on the demo printer.

usage: portal_end_to_end_test.py BUILD_FOLDER    (ends with 77 where a package is missing)
"""
import contextlib
import http.client
import json
import os
import pathlib
import pwd
import shutil
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import unittest

BUILD = pathlib.Path(sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev").resolve()
HERE = pathlib.Path(__file__).resolve().parent
FRONT_END = pathlib.Path("/usr/libexec/xdg-desktop-portal")
NAME = "org.freedesktop.impl.portal.desktop.kesto"
A5_LANDSCAPE = {"PPDName": "A5", "DisplayName": "A5", "Width": 148, "Height": 210, "MarginTop": 5, "MarginBottom": 5,
                "MarginLeft": 5, "MarginRight": 5, "Orientation": "landscape"}
NEUTRAL = {"n-copies": "1", "number-up": "1", "reverse": "false", "page-set": "all", "scale": "100",
           "collate": "true", "print-pages": "all", "output-file-format": "pdf"}
CODE = "24681357"
# Longer than anything here takes, shorter than a start that hangs: the front end waits 25 s for a backend.
PATIENCE = 20


def missing():
    """What the test needs and this system has not."""
    programs = ["dbus-daemon", "Xvfb", "pdftotext", "pdfinfo", "gdbus", "xdotool", "pgrep"]
    lacking = [name for name in programs if not shutil.which(name)] + [str(FRONT_END)] * (not FRONT_END.exists())
    code = 'import gi; gi.require_version("Gtk", "3.0"); from gi.repository import Gtk; import gi._gi_cairo'
    if subprocess.run(["/usr/bin/python3", "-c", code], stderr=subprocess.DEVNULL).returncode:
        lacking.append("python3-gi-cairo or gir1.2-gtk-3.0")
    return lacking


class Dialog:
    """A dialog that the service has started: the stand-in program's end of the conversation."""

    def __init__(self, connection):
        connection.settimeout(PATIENCE)
        with connection:  # the file keeps it open
            self.lines = connection.makefile("rw", encoding="utf-8")
        self.next()

    def next(self):
        return json.loads(self.lines.readline())

    def say(self, message):
        print(json.dumps(message), file=self.lines, flush=True)

    def choose(self, settings=None, page_setup=None):
        self.say({"answer": "chosen", "settings": settings or NEUTRAL, "pageSetup": page_setup or A5_LANDSCAPE})


class Session:
    """A desktop session in a folder of its own: a bus, the front end and the service, and perhaps a display."""

    def __init__(self, display, programs=None):
        self.programs = programs
        self.stack = contextlib.ExitStack()
        self.root = pathlib.Path(self.stack.enter_context(tempfile.TemporaryDirectory(ignore_cleanup_errors=True)))
        self.environment = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
        self.make_folders()
        if display:
            self.start_display()
        self.start_bus()

    def make_folders(self):
        for variable in ["HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"]:
            folder = self.root / variable.lower()
            folder.mkdir(mode=0o700)
            self.environment[variable] = str(folder)
        programs, portals, services = self.root / "bin", self.root / "portals", \
            self.root / "xdg_data_home/dbus-1/services"
        for folder in [programs, portals, services]:
            folder.mkdir(parents=True)
        if self.programs:
            programs = self.programs
        else:
            shutil.copy(BUILD / "bin/kesto-portal", programs)
            shutil.copy(BUILD / "bin/portal-dialog-stand-in", programs / "kesto-print")
        (portals / "kesto.portal").write_text(
            f"[portal]\nDBusName={NAME}\nInterfaces=org.freedesktop.impl.portal.Print;\nUseIn=printtest;\n")
        (portals / "portals.conf").write_text(
            "[preferred]\ndefault=none\norg.freedesktop.impl.portal.Print=kesto\n")
        (services / f"{NAME}.service").write_text(f"[D-BUS Service]\nName={NAME}\nExec={programs}/kesto-portal\n")
        self.dialogs = self.stack.enter_context(socket.socket(socket.AF_UNIX))
        self.dialogs.bind(str(self.root / "dialogs"))
        self.dialogs.listen()
        self.dialogs.settimeout(PATIENCE)
        self.document = self.root / "document"
        self.environment |= {
            "XDG_DESKTOP_PORTAL_DIR": str(portals), "XDG_CURRENT_DESKTOP": "printtest", "NO_AT_BRIDGE": "1",
            "GSETTINGS_BACKEND": "memory", "GTK_USE_PORTAL": "1", "QT_QPA_PLATFORMTHEME": "xdgdesktopportal",
            "CUPS_SERVER": str(self.root / "no-scheduler"), "KESTO_STAND_IN": str(self.root / "dialogs"),
            "KESTO_STAND_IN_DOCUMENT": str(self.document)}

    def start(self, command, **options):
        return subprocess.Popen(command, env=self.environment, text=True, **options)

    def end(self, process):
        process.terminate()
        process.wait()

    def start_display(self):
        reading, writing = os.pipe()
        server = self.start(["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp"], pass_fds=[writing],
                            stderr=subprocess.DEVNULL)
        self.stack.callback(self.end, server)
        os.close(writing)
        with open(reading, encoding="ascii") as number:
            self.environment["DISPLAY"] = f":{number.readline().strip()}"

    def start_bus(self):
        self.log = self.stack.enter_context(open(self.root / "log", "w+", encoding="utf-8"))
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE,
                         stderr=self.log)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self.stack.callback(self.wait_for_mount)
        self.stack.callback(self.end, bus)
        self.stack.callback(bus.stdout.close)

    def wait_for_mount(self):
        """Until the document portal's file system has ended with its bus."""
        mount = self.root / "xdg_runtime_dir/doc"
        while os.path.ismount(mount):
            os.sched_yield()

    def call(self, name, path, method, *arguments):
        command = ["gdbus", "call", "--session", "--timeout", str(PATIENCE), "--dest", name, "--object-path", path,
                   "--method", method, *arguments]
        return subprocess.run(command, env=self.environment, text=True, check=True, stdout=subprocess.PIPE).stdout

    def service_process(self):
        """The service's process; 0 when it does not run."""
        bus = ["org.freedesktop.DBus", "/org/freedesktop/DBus"]
        if "true" not in self.call(*bus, "org.freedesktop.DBus.NameHasOwner", NAME):
            return 0
        return int(self.call(*bus, "org.freedesktop.DBus.GetConnectionUnixProcessID", NAME).strip("(,)\n").split()[-1])

    def client(self, **wish):
        return self.start([str(HERE.parent / "support/portal_client.py"), json.dumps(wish)], stdout=subprocess.PIPE,
                          stderr=self.log)

    def dialog(self, test):
        started = Dialog(self.dialogs.accept()[0])
        test.addCleanup(started.lines.close)
        return started


class WithoutDisplay(unittest.TestCase):
    def test_the_front_end_starts(self):
        session = Session(display=False)
        self.addCleanup(session.stack.close)
        version = session.call("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                               "org.freedesktop.DBus.Properties.Get", "org.freedesktop.portal.Print", "version")
        self.assertIn("uint32", version)
        self.assertNotEqual(session.service_process(), 0)


class Printing(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = Session(display=True)
        cls.addClassCleanup(cls.session.stack.close)

    def answer(self, client):
        """What a client says at its end."""
        output, _ = client.communicate(timeout=PATIENCE)
        return json.loads(output)

    def print_document(self, client, dialog):
        self.assertEqual(dialog.next()["do"], "print")
        dialog.say({"answer": "taken"})
        answer = self.answer(client)
        self.assertEqual(answer["result"], "apply")
        return answer["saved"]

    def pages(self):
        text = subprocess.run(["pdftotext", self.session.document, "-"], text=True, check=True,
                              stdout=subprocess.PIPE).stdout
        return [int(line.split()[-1]) for line in text.split("\n") if "This is page" in line]

    def test_each_page_once_on_the_chosen_paper(self):
        client = self.session.client(pages=4, settings={"n-copies": "3", "number-up": "2", "my-key": "my value"})
        dialog = self.session.dialog(self)
        asked = dialog.next()
        self.assertEqual(asked["settings"]["n-copies"], "3")
        self.assertEqual(asked["settings"]["number-up"], "2")
        self.assertEqual(asked["settings"]["my-key"], "my value")
        self.assertRegex(asked["parentWindow"], "^x11:[0-9a-f]+$")
        self.assertIsInstance(asked["pageSetup"]["Width"], (int, float))
        dialog.choose(NEUTRAL | {"my-key": "my value", "orientation": "landscape",
                                 "kesto.print.PrintSettings.userNumber": "31415"})
        saved = self.print_document(client, dialog)
        self.assertEqual(saved["my-key"], "my value")
        self.assertNotIn("31415", json.dumps(saved))
        self.assertEqual(self.pages(), [1, 2, 3, 4])
        facts = subprocess.run(["pdfinfo", self.session.document], text=True, check=True, stdout=subprocess.PIPE)
        self.assertRegex(facts.stdout, r"Page size: +(595\.\d+ x 419\.\d+|419\.\d+ x 595\.\d+)")

    def test_the_chosen_ranges(self):
        client = self.session.client(pages=9)
        dialog = self.session.dialog(self)
        dialog.next()
        dialog.choose(NEUTRAL | {"print-pages": "ranges", "page-ranges": "1-2,7-2147483646"})
        self.print_document(client, dialog)
        self.assertEqual(self.pages(), [2, 3, 8, 9])

    def test_cancel(self):
        client = self.session.client()
        dialog = self.session.dialog(self)
        dialog.next()
        dialog.say({"answer": "cancelled"})
        self.assertEqual(self.answer(client)["result"], "cancel")

    def test_the_clients_end(self):
        client = self.session.client()
        dialog = self.session.dialog(self)
        self.assertEqual(dialog.next()["do"], "open")
        client.kill()
        client.communicate()
        self.assertEqual(dialog.next()["do"], "close")

    def test_after_the_services_death_the_next_print_works(self):
        client = self.session.client()
        dialog = self.session.dialog(self)
        dialog.next()
        os.kill(self.session.service_process(), signal.SIGKILL)
        self.assertEqual(dialog.next(), {"closed": True})
        self.assertNotEqual(self.answer(client)["result"], "apply")
        for killed in (False, True):
            if killed:
                os.kill(self.session.service_process(), signal.SIGKILL)
            client = self.session.client(pages=2)
            dialog = self.session.dialog(self)
            dialog.next()
            dialog.choose()
            self.print_document(client, dialog)
            self.assertEqual(self.pages(), [1, 2])


class WithTheDialog(unittest.TestCase):
    """The real dialog, worked by its keys."""
    retention, pass_code = "alt+e", "alt+p"

    def setUp(self):
        self.session = Session(display=True, programs=BUILD / "bin")
        self.addCleanup(self.session.stack.close)
        self.root = self.session.root
        os.chmod(self.root, 0o711)  # the scheduler's jobs may run as another user
        self.printer = self.session.start(
            [BUILD / "bin/kesto-demo-printer", "--dir", self.root / "printer", "--folder-port", "0", "--json"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.session.stack.callback(self.printer.stdout.close)
        self.session.stack.callback(self.session.end, self.printer)
        self.places = json.loads(self.printer.stdout.readline())
        self.session.call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                          "org.freedesktop.DBus.UpdateActivationEnvironment",
                          "{'CUPS_SERVER': '%s'}" % self.places["server"])

    def run_tool(self, *command):
        return subprocess.run(command, env=self.session.environment, text=True, check=True, timeout=PATIENCE,
                              stdout=subprocess.PIPE).stdout

    def focus_dialog(self):
        """Waits for the dialog to be ready for its queue, and gives it the keyboard."""
        window = self.run_tool("xdotool", "search", "--sync", "--onlyvisible", "--name", "Print on Office_MFP").split()[0]
        self.run_tool("xdotool", "windowfocus", "--sync", window)

    def keys(self, *keys):
        self.run_tool("xdotool", "key", "--delay", "40", *keys)

    def jobs(self):
        return json.loads(self.run_tool(BUILD / "bin/kesto-demo-printer", "jobs", "--dir", self.root / "printer",
                                        "--json"))

    def wait_for_job(self):
        while not self.jobs():
            self.assertIsNone(self.printer.poll())

    def choose(self):
        self.focus_dialog()
        self.keys(self.retention)
        self.keys(self.pass_code)
        self.keys(*CODE)
        self.keys("Return")

    def end_of(self, client):
        output, _ = client.communicate(timeout=PATIENCE)
        return json.loads(output)

    @staticmethod
    def command_line(process):
        try:
            return (process / "cmdline").read_bytes()
        except OSError:  # it has ended
            return b""

    def job_attributes(self):
        """What the scheduler tells of job 1, as the bytes of IPP."""
        request = struct.pack(">HHIB", 0x0200, 0x0009, 1, 1)
        for tag, name, value in [(0x47, "attributes-charset", "utf-8"), (0x48, "attributes-natural-language", "en"),
                                 (0x45, "job-uri", "ipp://localhost/jobs/1"),
                                 (0x42, "requesting-user-name", pwd.getpwuid(os.getuid()).pw_name)]:
            request += struct.pack(f">BH{len(name)}sH{len(value)}s", tag, len(name), name.encode(), len(value),
                                   value.encode())
        connection = http.client.HTTPConnection("localhost", timeout=PATIENCE)
        connection.sock = socket.socket(socket.AF_UNIX)
        connection.sock.settimeout(PATIENCE)
        connection.sock.connect(self.places["server"])
        self.addCleanup(connection.close)
        connection.request("POST", "/jobs/", request + b"\3", {"Content-Type": "application/ipp"})
        return connection.getresponse().read()

    def release(self):
        pin = self.root / "pin"
        pin.write_text(CODE + "\n")
        self.run_tool(BUILD / "bin/kesto-demo-printer", "release", "1", "--dir", self.root / "printer", "--pin-file", pin)
        document = next(pathlib.Path(self.places["output"]).iterdir())
        return self.run_tool("pdftotext", document, "-")

    def test_hold_with_a_pass_code(self):
        client = self.session.client(pages=4, settings={"n-copies": "3", "number-up": "2", "page-set": "even",
                                                        "duplex": "vertical", "my-key": "my value"})
        self.choose()
        answer = self.end_of(client)
        self.assertEqual(answer["result"], "apply")
        saved = answer["saved"]
        self.assertEqual([saved["my-key"], saved["duplex"], saved["page-set"]], ["my value", "vertical", "all"])
        self.assertNotIn("kesto", json.dumps(answer))
        self.wait_for_job()
        self.assertEqual(self.jobs()[0]["state"], "held")
        lines = b"".join(self.command_line(path) for path in pathlib.Path("/proc").glob("[0-9]*"))
        for place in [json.dumps(answer).encode(), (self.root / "log").read_bytes(), lines]:
            self.assertNotIn(CODE.encode(), place)
        attributes = self.job_attributes()
        for name, value in [(b"copies", b"\0\0\0\3"), (b"number-up", b"\0\0\0\2"), (b"page-set", b"even"),
                            (b"Duplex", b"DuplexTumble")]:
            self.assertIn(name + struct.pack(">H", len(value)) + value, attributes)
        text = self.release()
        self.assertEqual([text.count(f"This is page {page}") for page in (1, 2, 3, 4, 5)], [1, 1, 1, 1, 0])

    def test_paper_and_pages_of_the_clients_own(self):
        client = self.session.client(pages=9, paper="iso_a5", settings={"print-pages": "ranges", "page-ranges": "1-2"})
        self.choose()
        self.assertEqual(self.end_of(client)["result"], "apply")
        self.wait_for_job()
        text = self.release()
        self.assertEqual([page for page in range(10) if f"This is page {page}" in text], [2, 3])
        facts = self.run_tool("pdfinfo", next(pathlib.Path(self.places["output"]).iterdir()))
        self.assertRegex(facts, r"Page size: +(595\.\d+ x 419\.\d+|419\.\d+ x 595\.\d+)")
        self.assertIn(b"A5", self.job_attributes())

    def test_standard_input(self):
        """As the print command of an application, without the portal."""
        report = HERE.parent / "demo/quarterly-report.pdf"
        with open(report, "rb") as document:
            dialog = self.session.start([BUILD / "bin/kesto-print", "-h", self.places["server"], "-o", "number-up=2"],
                                        stdin=document, stdout=subprocess.PIPE)
        self.addCleanup(self.session.end, dialog)
        self.focus_dialog()
        self.keys("Return")
        output, _ = dialog.communicate(timeout=PATIENCE)
        self.assertEqual((dialog.returncode, output), (0, "request id is Office_MFP-1\n"))
        self.wait_for_job()
        self.assertIn(b"number-up\0\4\0\0\0\2", self.job_attributes())
        printed = next(pathlib.Path(self.places["output"]).iterdir()).read_bytes()
        self.assertIn(report.read_bytes(), printed)

    def test_escape(self):
        client = self.session.client()
        self.focus_dialog()
        self.keys("Escape")
        self.assertEqual(self.end_of(client)["result"], "cancel")
        self.assertEqual(self.jobs(), [])

    def test_a_queue_that_does_not_take_the_job(self):
        client = self.session.client()
        self.focus_dialog()
        scheduler = int(self.run_tool("pgrep", "-f", str(self.root / "printer/cups/cupsd")).split()[0])
        os.kill(scheduler, signal.SIGSTOP)
        try:
            self.choose()
            self.assertEqual(self.end_of(client)["result"], "apply")  # the client is gone, its job is not lost
            self.focus_dialog()  # it is back with its reason
        finally:
            os.kill(scheduler, signal.SIGCONT)
        self.keys("Return")
        self.wait_for_job()
        self.assertIn("This is page 1", self.release())


if __name__ == "__main__":
    if lacking := missing():
        print("portal_end_to_end_test: there is no", ", ".join(lacking))
        sys.exit(1 if os.environ.get("CI") == "true" else 77)
    unittest.main(verbosity=2)
