# SPDX-License-Identifier: MIT
"""Works with the program by ear: each control is found by the name that a screen reader says.

usage: spoken.py DRAWING PROGRAM_TO_WRITE
"""

import re
import subprocess
import sys
import time

import pyatspi

PATIENCE = 30  # seconds that a window or a name may take to come
MOST_STEPS = 60  # of the Tab key, more than any form has controls


class Silent(Exception):
    """What was listened for is not heard."""


def press(*keys):
    subprocess.run(["xdotool", "key", "--delay", "24", *keys], check=True)
    time.sleep(0.1)


def write(text):
    subprocess.run(["xdotool", "type", "--delay", "12", text], check=True)


def parts(item):
    return [part for part in item if part is not None]


def has(item, state):
    return item.getState().contains(state)


def program():
    return next(app for app in parts(pyatspi.Registry.getDesktop(0)) if app.name == "Torvik")


def within(item):
    """The innermost item that has the focus in this one, as a cell in its table, or none."""
    shown = (part for part in parts(item) if has(part, pyatspi.STATE_SHOWING))
    inside = next((found for found in map(within, shown) if found is not None), None)
    return item if inside is None and has(item, pyatspi.STATE_FOCUSED) else inside


def active_window():
    return next((w for w in parts(program()) if has(w, pyatspi.STATE_ACTIVE)), None)


def heard():
    """Name and role of what has the focus."""
    window = active_window()
    item = None if window is None else within(window)
    return ("", "") if item is None else (item.name.replace("\xa0", " "), item.getRoleName())


def listen(what, is_there):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            if is_there():
                return
        except Exception:  # what was listened to has just gone
            pass
        time.sleep(0.05)
    raise Silent(f"{what}; heard instead: {heard()}")


def window(title):
    def is_active():
        found = active_window()
        return found is not None and re.search(title, found.name)

    listen(f"window {title}", is_active)
    time.sleep(0.35)  # a dialog takes no key in its first 300 ms


def go_to(name, role, key="Tab"):
    """Presses the key until the control is heard."""
    said = []
    for _ in range(MOST_STEPS):
        said.append(heard())
        if said[-1] == (name, role):
            return
        press(key)
    raise Silent(f"{role} {name} among {said}")


def fill(values):
    for name, value in values.items():
        go_to(name, "text")
        write(value)


def choose_tool(pen, number):
    """From the choice of the pen to the tool list, whose rows are heard by the tool's number."""
    go_to(f"Cut the {pen} lines", "radio button", "shift+Tab")
    press("space")
    listen("Choose tool", lambda: heard() == ("Choose tool", "push button"))
    press("space")
    window(f"^Select the Tool for the {pen} lines$")
    go_to(number, "table cell", "Down")
    press("Return")
    window("^Torvik - importing")


def next_page(step):
    go_to("Next", "push button")
    press("space")
    listen(step, lambda: says_step(step))


def says_step(step):
    def names(item):
        yield item.name
        for part in parts(item):
            yield from names(part)

    return f"{step}, current step" in names(active_window())


def work(drawing, written):
    listen("the program", program)
    go_to("Start", "push button")
    press("space")
    window("^Select the HPGL file to process$")
    listen("File name:", lambda: heard() == ("File name:", "text"))
    write(drawing)
    press("Return")
    window("^Torvik - importing from HPGL file .*nameplate.plt$")
    fill({"Safe Height for Rapids (mm)": "5"})
    go_to("mm per second", "radio button")
    go_to("mm per minute", "radio button", "Up")
    next_page("3 Pens")
    choose_tool("Black", "4")
    fill(
        {
            "Spindle Speed (rpm)": "4000",
            "Horizontal Feed Rate for Cutting (mm/min)": "300",
            "Vertical Feed Rate into Material (mm/min)": "75",
            "Final Depth (mm)": "0.4",
            "Maximum Depth per Pass (mm)": "0.4",
        }
    )
    next_page("3 Pens")
    choose_tool("Red", "2")
    fill(
        {
            "Spindle Speed (rpm)": "3500",
            "Horizontal Feed Rate for Cutting (mm/min)": "240",
            "Vertical Feed Rate into Material (mm/min)": "60",
            "Final Depth (mm)": "3",
            "Maximum Depth per Pass (mm)": "1",
            "Final Pass Depth of Cut (mm)": "0.2",
            "Final Pass Horizontal Feed Rate (mm/min)": "120",
        }
    )
    next_page("4 Order")
    go_to("1: Black, cut – T4 0.5 mm – 0.4 mm deep", "list item")
    press("Down")
    listen("the Black pen second", lambda: heard()[0].startswith("2: Black"))
    press("Up")
    next_page("5 Job details")
    fill(
        {
            "Date": "14 March 2025",
            "Designer": "Sam Carter",
            "Teacher": "Ms Green",
            "Teaching Group": "Year 9 Blue",
            "Name of Part": "Workshop name plate",
            "Material": "Acrylic (two-colour)",
            "Billet Length X (mm)": "140",
            "Billet Width Y (mm)": "60",
            "Billet Depth Z (mm)": "3",
        }
    )
    next_page("6 Output")
    go_to("Kestra", "radio button", "Down")
    go_to("Write…", "push button")
    press("space")
    window("^Select the destination Kestra file$")
    listen("File name:", lambda: heard() == ("File name:", "text"))
    write(written)
    press("Return")
    window("^Torvik$")
    go_to("Close Torvik", "push button")
    press("space")


try:
    work(*sys.argv[1:])
except Silent as silence:
    sys.exit(f"not heard: {silence}")
