#!/usr/bin/python3
"""Prints on the demo printer through the real front end of the desktop portal, with a real GTK client and the real
dialog, which the test operates with keys.

usage: portal_end_to_end_test.py BUILD_FOLDER    (exits with 77 when a package is missing)
       portal_end_to_end_test.py --client '{"pages": 4, "paper": "iso_a5", "settings": {"n-copies": "3"}}'
"""
import contextlib
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

BUILD = pathlib.Path(sys.argv[1]).resolve()
TESTS = pathlib.Path(__file__).resolve().parent.parent
FRONT_END = "/usr/libexec/xdg-desktop-portal"
NAME = "org.freedesktop.impl.portal.desktop.kesto"
CODE = "24681357"
# Longer than any step here takes, but shorter than the 25 s for which the front end waits for a service that hangs.
PATIENCE = 20


def missing():
    """What the test needs and this system lacks."""
    lacking = [name for name in ["dbus-daemon", "Xvfb", "pdftotext", "pdfinfo", "xdotool", FRONT_END]
               if not shutil.which(name)]
    code = 'import gi; gi.require_version("Gtk", "3.0"); from gi.repository import Gtk; import gi._gi_cairo'
    if subprocess.run(["/usr/bin/python3", "-c", code], stderr=subprocess.DEVNULL).returncode:
        lacking.append("python3-gi-cairo or gir1.2-gtk-3.0")
    return lacking


def print_with_gtk(wish):
    """Prints numbered pages as an application does. Prints the result, and the settings that it would save, in JSON."""
    import gi
    gi.require_version("Gtk", "3.0")
    gi.require_version("PangoCairo", "1.0")
    from gi.repository import Gtk, GLib, PangoCairo

    def draw(_operation, context, number):
        layout = context.create_pango_layout()
        layout.set_text(f"This is page {number + 1}", -1)
        PangoCairo.show_layout(context.get_cairo_context(), layout)

    settings = Gtk.PrintSettings()
    for key, value in wish["settings"].items():
        settings.set(key, value)
    setup = Gtk.PageSetup()
    setup.set_paper_size_and_default_margins(Gtk.PaperSize.new(wish["paper"]))
    setup.set_orientation(Gtk.PageOrientation.LANDSCAPE)
    operation = Gtk.PrintOperation(n_pages=wish["pages"], job_name="Numbered pages", print_settings=settings,
                                   default_page_setup=setup)
    operation.connect("draw-page", draw)
    window = Gtk.Window(title="Numbers")
    window.show()
    try:
        result = operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, window).value_nick
    except GLib.Error as error:
        result = f"error: {error.message}"
    saved = {}
    operation.get_print_settings().foreach(lambda key, value: saved.__setitem__(key, value))
    print(json.dumps({"result": result, "saved": saved}), flush=True)


class Session:
    """A desktop session in a folder of its own: a display, a printer, a bus, the front end and the service."""

    def __init__(self):
        self.stack = contextlib.ExitStack()
        self.root = pathlib.Path(self.stack.enter_context(tempfile.TemporaryDirectory(ignore_cleanup_errors=True)))
        os.chmod(self.root, 0o711)  # the scheduler's jobs may run as another user
        self.environment = {
            "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "XDG_CURRENT_DESKTOP": "printtest", "NO_AT_BRIDGE": "1",
            "GSETTINGS_BACKEND": "memory", "GTK_USE_PORTAL": "1", "QT_QPA_PLATFORMTHEME": "xdgdesktopportal"}
        for variable in ["HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TMPDIR",
                         "XDG_DESKTOP_PORTAL_DIR"]:
            folder = self.root / variable.lower()
            folder.mkdir(mode=0o700)
            self.environment[variable] = str(folder)
        portals, services = self.root / "xdg_desktop_portal_dir", self.root / "xdg_data_home/dbus-1/services"
        (portals / "kesto.portal").write_text(
            f"[portal]\nDBusName={NAME}\nInterfaces=org.freedesktop.impl.portal.Print;\nUseIn=printtest;\n")
        (portals / "portals.conf").write_text(
            "[preferred]\ndefault=none\norg.freedesktop.impl.portal.Print=kesto\n")
        services.mkdir(parents=True)
        (services / f"{NAME}.service").write_text(f"[D-BUS Service]\nName={NAME}\nExec={BUILD}/bin/kesto-portal\n")
        self.log = self.stack.enter_context(open(self.root / "log", "w+", encoding="utf-8"))
        self.start_display()
        self.printer = self.start([BUILD / "bin/kesto-demo-printer", "--dir", self.root / "printer", "--folder-port",
                                   "0", "--json"], stderr=subprocess.DEVNULL)
        self.places = json.loads(self.printer.stdout.readline())
        self.environment["CUPS_SERVER"] = self.places["server"]
        self.stack.callback(self.wait_for_mount)
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--print-address"], stderr=self.log)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()

    def start(self, command, **options):
        """Starts a program whose standard output is read and that ends with the session."""
        process = subprocess.Popen(command, env=self.environment, text=True, stdout=subprocess.PIPE, **options)
        self.stack.callback(process.stdout.close)
        self.stack.callback(process.wait)
        self.stack.callback(process.terminate)
        return process

    def start_display(self):
        reading, writing = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp"], pass_fds=[writing],
                   stderr=subprocess.DEVNULL)
        os.close(writing)
        with open(reading, encoding="ascii") as number:
            self.environment["DISPLAY"] = f":{number.readline().strip()}"

    def wait_for_mount(self):
        """Waits until the document portal's file system has ended with its bus."""
        while os.path.ismount(self.root / "xdg_runtime_dir/doc"):
            os.sched_yield()

    def run(self, *command):
        return subprocess.run(command, env=self.environment, text=True, check=True, timeout=PATIENCE,
                              stdout=subprocess.PIPE).stdout


class Printing(unittest.TestCase):
    """Each test continues the session of the previous one and ignores its jobs."""

    @classmethod
    def setUpClass(cls):
        cls.session = Session()
        cls.addClassCleanup(cls.session.stack.close)

    def setUp(self):
        self.tool = self.session.run
        self.number = len(self.jobs()) + 1

    def focus_dialog(self):
        """Waits for the dialog to be ready for its queue, and gives it the keyboard."""
        search = ["xdotool", "search", "--sync", "--onlyvisible", "--name", "Print on Office_MFP"]
        self.tool("xdotool", "windowfocus", "--sync", self.tool(*search).split()[0])

    def keys(self, *keys):
        self.tool("xdotool", "key", "--delay", "40", *keys)

    def demo_printer(self, command, *arguments):
        return self.tool(BUILD / "bin/kesto-demo-printer", command, "--dir", self.session.root / "printer", *arguments)

    def jobs(self):
        return json.loads(self.demo_printer("jobs", "--json"))

    def wait_for_job(self):
        while len(self.jobs()) < self.number:
            self.assertIsNone(self.session.printer.poll())

    def printout(self):
        return pathlib.Path(self.session.places["output"]) / f"job-{self.number}-1"

    def test_hold_with_a_pass_code(self):
        settings = {"n-copies": "3", "number-up": "2", "page-set": "even", "duplex": "vertical", "my-key": "my value",
                    "print-pages": "ranges", "page-ranges": "1-2,7-20"}
        wish = json.dumps({"pages": 9, "paper": "iso_a5", "settings": settings})
        client = self.session.start([__file__, "--client", wish], stderr=self.session.log)
        self.focus_dialog()
        self.keys("alt+i", "alt+i", "space")  # Copies, then Retention, which leads to the pass code
        self.keys(*CODE)
        self.keys("Return")
        answer = json.loads(client.communicate(timeout=PATIENCE)[0])
        self.assertEqual(answer["result"], "apply")
        saved = answer["saved"]
        self.assertEqual([saved["my-key"], saved["duplex"], saved["page-set"]], ["my value", "vertical", "all"])
        self.assertNotIn("kesto", json.dumps(answer))
        self.wait_for_job()
        self.assertEqual(self.jobs()[self.number - 1]["state"], "held")
        lines = b""
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):  # it has ended
                lines += (process / "cmdline").read_bytes()
        for place in [json.dumps(answer).encode(), (self.session.root / "log").read_bytes(), lines]:
            self.assertNotIn(CODE.encode(), place)
        pin = self.session.root / "pin"
        pin.write_text(CODE + "\n")
        self.demo_printer("release", str(self.number), "--pin-file", pin)
        text = self.tool("pdftotext", self.printout(), "-")
        self.assertEqual([text.count(f"This is page {page}\n") for page in range(1, 11)], [0, 1, 1, 0, 0, 0, 0, 1, 1, 0])
        facts = self.tool("pdfinfo", self.printout())
        self.assertRegex(facts, r"Page size: +(595\.\d+ x 419\.\d+|419\.\d+ x 595\.\d+)")

    def test_standard_input(self):
        """Prints like the print command of an application, without the portal."""
        report = TESTS.parent / "demo/quarterly-report.pdf"
        with open(report, "rb") as document:
            dialog = self.session.start([BUILD / "bin/kesto-print"], stdin=document)
        self.focus_dialog()
        self.keys("Return")
        output, _ = dialog.communicate(timeout=PATIENCE)
        self.assertEqual((dialog.returncode, output), (0, f"request id is Office_MFP-{self.number}\n"))
        self.wait_for_job()
        self.assertIn(report.read_bytes(), self.printout().read_bytes())


if __name__ == "__main__":
    if sys.argv[1] == "--client":
        print_with_gtk(json.loads(sys.argv[2]))
        sys.exit()
    if lacking := missing():
        print("portal_end_to_end_test: there is no", ", ".join(lacking))
        sys.exit(1 if os.environ.get("CI") == "true" else 77)
    unittest.main(argv=sys.argv[:1], verbosity=2)
