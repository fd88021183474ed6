#!/usr/bin/python3
"""Prints numbered pages with GTK, as an application does.

usage: portal_client.py '{"pages": 4, "settings": {"n-copies": "3"}}'
Prints the result on one line of JSON: that of the operation, and the settings that an application would save.
"""
import json
import sys

import gi

gi.require_version("Gtk", "3.0")
gi.require_version("PangoCairo", "1.0")
from gi.repository import Gtk, GLib, PangoCairo  # noqa: E402


def draw(_operation, context, number):
    layout = context.create_pango_layout()
    layout.set_text(f"This is page {number + 1}", -1)
    PangoCairo.show_layout(context.get_cairo_context(), layout)


wish = json.loads(sys.argv[1])
settings = Gtk.PrintSettings()
for key, value in wish.get("settings", {}).items():
    settings.set(key, value)
operation = Gtk.PrintOperation(n_pages=wish.get("pages", 1), job_name="Numbered pages", print_settings=settings)
if "paper" in wish:
    setup = Gtk.PageSetup()
    setup.set_paper_size_and_default_margins(Gtk.PaperSize.new(wish["paper"]))
    setup.set_orientation(Gtk.PageOrientation.LANDSCAPE)
    operation.set_default_page_setup(setup)
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
