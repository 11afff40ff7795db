#!/usr/bin/python3
"""A whole game played through AT-SPI alone, as a screen reader's user plays it: the
slider set by its value, the pause switched on by its button's Press action, every pot
and every release of a pause pressed by its action. Each new log row must be heard of
as it arrives, in order, and each step of the computer's move said on the bar."""
import sys
import time

import pyatspi
from gi.repository import GLib

failures = []


def check(ok, what):
    if not ok:
        failures.append(what)
        print("FAIL:", what, flush=True)


def pump(quiet=0.15, longest=5.0):
    """Runs the reader's side until nothing has come for `quiet` seconds."""
    context = GLib.MainContext.default()
    start = last = time.monotonic()
    while time.monotonic() - start < longest:
        if context.iteration(False):
            last = time.monotonic()
        elif time.monotonic() - last > quiet:
            return
        else:
            time.sleep(0.01)


def find_app(name):
    for _ in range(100):
        for app in pyatspi.Registry.getDesktop(0):
            if app is not None and app.name == name:
                return app
        time.sleep(0.1)
    return None


def walk(node):
    for child in node:
        if child is None:
            continue
        yield child
        yield from walk(child)


def find(node, role, test=lambda a: True):
    for a in walk(node):
        if a.getRoleName() == role and test(a):
            return a
    return None


def enabled(a):
    return a.getState().contains(pyatspi.STATE_ENABLED)


def press(a):
    action = a.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    check("Press" in names, f"{a.name} has a Press action")
    action.doAction(names.index("Press"))
    pump()


def beads(pot):
    return int(pot.name.split(", ")[-1].split()[0])


app = find_app("tavok")
if app is None:
    print("the game never came on the accessibility bus")
    sys.exit(1)
frame = app[0]
check(frame.getRoleName() == "frame" and frame.name == "TAVOK", "the window is a frame TAVOK")
check(find(frame, "text") is None, "no hidden text box in the tree")
check(find(frame, "push button", lambda a: a.name == "Undo last move") is not None,
      "undo is a push button")

heard = []
said = []
focused = []


def on_children(event):
    if event.type.endswith(":add") and event.source.getRoleName() == "list":
        heard.append(event.any_data.name)


def on_name(event):
    said.append(event.source.name)


def on_focus(event):
    if event.detail1:
        focused.append((event.source.getRoleName(), event.source.name))


pyatspi.Registry.registerEventListener(on_children, "object:children-changed")
pyatspi.Registry.registerEventListener(on_name, "object:property-change:accessible-name")
pyatspi.Registry.registerEventListener(on_focus, "object:state-changed:focused")
pump()

log = find(frame, "list", lambda a: a.name == "Moves")
opening = [row.name for row in log]
check(len(opening) == 2, "the log opens with two lines")


def bar():
    return find(frame, "push button", lambda a: a.description == "The game's messages") or \
        find(frame, "label", lambda a: a.description == "The game's messages")


slider = find(frame, "slider", lambda a: a.name == "Beads per pot")
check(slider is not None, "the slider is named")
slider.queryValue().currentValue = 2
pump()
check(find(frame, "label", lambda a: a.name == "Start with 2 beads") is not None,
      "the slider's value is read back on its label")

pausex = find(frame, "push button", lambda a: a.name == "Do not pause")
press(pausex)
check(pausex.name == "Pause at moves", "the pause button says the mode in force")

check(bar().getRoleName() == "label" and bar().name == "YOUR MOVE NOW",
      "the bar reads as a label while it takes no clicks")

# A key selects pot A, which shows nowhere on the screen: a reader hears the focus go to
# it and finds it in its description.
pyatspi.Registry.generateKeyboardEvent(ord("a"), None, pyatspi.KEY_SYM)
pump()
pot_a = find(frame, "push button", lambda a: a.name.startswith("Pot A, yours"))
check(("push button", pot_a.name) in focused, f"the selection of pot A is heard: {focused}")
check(pot_a.description == "Selected: Enter plays it", "pot A says it is selected")
press(pot_a)
check(pot_a.description == "", "pot A, played empty, is no longer said to be selected")

for step in range(400):
    message = bar()
    if message.getRoleName() == "push button":
        if "click here to restart" in message.name:
            break
        check("click to continue" in message.name, f"a pause says so: {message.name}")
        press(message)
        continue
    pots = [p for p in walk(frame)
            if p.getRoleName() == "push button" and p.name.startswith("Pot ")
            and enabled(p) and beads(p) > 0]
    check(pots, "a pot to play")
    if not pots:
        break
    press(pots[0])
else:
    check(False, "the game ends")

check(all(name for role, name in focused), f"the focus never lands on a nameless part: {focused}")

rows = [row.name for row in log]
check(heard == list(reversed(rows))[len(opening):],
      "every new row was heard of in the order it came")
pauses = [s for s in said if s.startswith("Computer move> ")]
check(pauses and all("click to continue" in s for s in pauses),
      "each step of the computer's move was said on the bar")
check(any("click here to restart" in s for s in said), "the result was said on the bar")

press(bar())
check([row.name for row in log] == [], "the restart clears the log")
check(bar().name == "YOUR MOVE NOW", "the restart says whose move it is")

print(f"{len(heard)} rows heard, {len(pauses)} pauses said, focus on {sorted(set(focused))}, {len(failures)} failures")
sys.exit(1 if failures else 0)
