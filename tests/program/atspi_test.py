#!/usr/bin/python3
"""The real program as a screen reader meets it, over a bus of the test's own: atspi_test.py KIVU"""

import atexit
import os
import re
import shutil
import sys

from desk import Desk, Program, run, skip, until

binary = sys.argv[1]

launcher = next((path for path in ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
                 if os.access(path, os.X_OK)), None)
if not launcher or not shutil.which("dbus-daemon"):
    skip("at-spi2-core or dbus is not installed")

desk = Desk()
atexit.register(desk.close)
read, write = os.pipe()
desk.start(["dbus-daemon", "--session", "--nofork", "--print-address=%d" % write], pass_fds=[write])
os.close(write)
with os.fdopen(read) as address:
    desk.environment["DBUS_SESSION_BUS_ADDRESS"] = address.readline().strip()
if not desk.environment["DBUS_SESSION_BUS_ADDRESS"]:
    skip("no bus can be made here")
desk.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
desk.start([launcher, "--launch-immediately"])
# This process is the screen reader, on the same desktop.
for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY", "XDG_RUNTIME_DIR", "HOME"):
    os.environ[name] = desk.environment[name]
try:
    import pyatspi
    from gi.repository import GLib
except ImportError:
    skip("python3-pyatspi is not installed")

heard = []


def hear(event):
    try:
        what = event.source_name or event.source.name
    except Exception:  # it has gone since
        return
    if event.type.startswith("object:state-changed:focused") and event.detail1:
        heard.append("focus " + what)
    elif event.type.startswith("object:property-change:accessible-name"):
        heard.append("name " + what)


def wait(what, condition):
    def turn():
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            return condition()
        except GLib.Error:  # it is changing just now
            return None
    return until(what, turn)


def everything(thing, depth=0):
    yield thing
    if depth > 12:
        return
    for i in range(min(thing.childCount, 200)):
        child = thing.getChildAtIndex(i)
        if child is not None:
            yield from everything(child, depth + 1)


def find(root, role, name=""):
    for thing in everything(root):
        if thing.getRole() == role and re.search(name, thing.name):
            return thing
    return None


def windows():
    desktop = pyatspi.Registry.getDesktop(0)
    for i in range(desktop.childCount):
        application = desktop.getChildAtIndex(i)
        if application and application.name == "Kivu":
            return [application.getChildAtIndex(n) for n in range(application.childCount)]
    return []


def window(title="Kivu 1.4b"):
    return next((one for one in windows() if one and one.name == title), None)


def has(thing, state):
    return thing.getState().contains(state)


def act(thing, name):
    action = thing.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    match = [i for i, one in enumerate(names) if one.lower() == name]
    assert match, names
    assert action.doAction(match[0])


program = Program(desk, binary)
pyatspi.Registry.registerEventListener(hear, "object:state-changed:focused", "object:property-change:accessible-name")
program.start()
desk.output(["xdotool", "windowactivate", "--sync", program.window])


def window_is_one_with_its_title():
    found = wait("the window on the bus", window)
    assert found.name == "Kivu 1.4b", found.name
    assert found.getRole() in (pyatspi.ROLE_FRAME, pyatspi.ROLE_WINDOW), found.getRoleName()


def no_control_is_called_by_its_own_name():
    own = re.compile(r"^(Form1|Label\d|UAE_|WIthoutDoubles|Favoriten(Liste)|.*Btn$|.*Combo$|AOT_|Check_Dfx|.*Txt$)")
    for thing in everything(window()):
        assert not own.match(thing.name), thing.name
        assert thing.getRole() != pyatspi.ROLE_SCROLL_BAR, thing.name


def tabs_are_in_their_list():
    tabs = wait("the tabs", lambda: find(window(), pyatspi.ROLE_PAGE_TAB_LIST))
    names = [tabs.getChildAtIndex(i).name for i in range(tabs.childCount)]
    assert any(name.startswith("Simple") for name in names), names
    selected = [tabs.getChildAtIndex(i).name for i in range(tabs.childCount)
                if has(tabs.getChildAtIndex(i), pyatspi.STATE_SELECTED)]
    assert len(selected) == 1 and selected[0].startswith("Simple"), selected
    act(find(window(), pyatspi.ROLE_PAGE_TAB, "^Complete"), "press")
    wait("the complete list", lambda: find(window(), pyatspi.ROLE_LIST, "^Complete"))
    act(find(window(), pyatspi.ROLE_PAGE_TAB, "^Simple"), "press")


def third_row_is_chosen():
    games = wait("the list", lambda: find(window(), pyatspi.ROLE_LIST, "^Simple"))
    assert games.childCount == 4, games.childCount
    row = games.getChildAtIndex(2)
    assert row.getRole() == pyatspi.ROLE_LIST_ITEM and row.name == program.games[2], row.name
    assert not has(row, pyatspi.STATE_SELECTED)
    heard.clear()
    act(row, "press")
    assert not os.path.exists(program.path("started"))
    wait("the row", lambda: has(row, pyatspi.STATE_SELECTED) and has(row, pyatspi.STATE_FOCUSED))
    wait("what is said of it", lambda: "focus " + program.games[2] in heard)


def start_starts_the_row():
    act(find(window(), pyatspi.ROLE_LIST, "^Simple").getChildAtIndex(2), "activate")
    number, given = wait("the emulator", program.emulator)
    assert program.games[2] in given, given
    os.kill(number, 9)
    wait("the list again", lambda: find(window(), pyatspi.ROLE_LIST, "^Simple"))


def pin_tells_its_state():
    pin = wait("the pin", lambda: find(window(), pyatspi.ROLE_CHECK_BOX, "^Always on top$"))
    before = has(pin, pyatspi.STATE_CHECKED)
    act(pin, "toggle")
    wait("the other state", lambda: has(pin, pyatspi.STATE_CHECKED) != before)
    act(pin, "toggle")
    wait("the first state", lambda: has(pin, pyatspi.STATE_CHECKED) == before)


def nothing_is_reached_behind_a_modal_window():
    leave = find(window(), pyatspi.ROLE_PUSH_BUTTON, "^Exit$")
    row = find(window(), pyatspi.ROLE_LIST, "^Simple").getChildAtIndex(0)
    assert has(leave, pyatspi.STATE_ENABLED)
    act(find(window(), pyatspi.ROLE_PUSH_BUTTON, "^Optionen"), "press")
    settings = wait("the settings", lambda: window("Einstellungen"))
    field = wait("their fields", lambda: find(settings, pyatspi.ROLE_TEXT, "Parameter"))
    assert field.queryEditableText().setTextContents("-x")
    save = wait("a change to save", lambda: (lambda found: found if found and has(
        found, pyatspi.STATE_ENABLED) else None)(find(settings, pyatspi.ROLE_PUSH_BUTTON, "^Save$")))
    assert not has(leave, pyatspi.STATE_ENABLED)
    act(leave, "press")
    act(row, "activate")
    # What was asked for is done in its turn; the answer to this comes behind it.
    act(save, "press")
    wait("the change saved", lambda: "-x" in program.read("Config/Alpha/Kivu.ini"))
    assert not program.ended() and not has(row, pyatspi.STATE_SELECTED)
    act(find(settings, pyatspi.ROLE_PUSH_BUTTON, "^Close$"), "press")
    wait("the main window alone", lambda: has(leave, pyatspi.STATE_ENABLED))
    # Back to what the other tests start from.
    program.write("Config/Alpha/Kivu.ini", program.read("Config/Alpha/Kivu.ini").replace("-x", ""))


def search_text_searches():
    field = wait("the search box", lambda: find(window(), pyatspi.ROLE_TEXT))
    assert field.name, "it has no name"
    field.queryEditableText().setTextContents("dog")
    hits = wait("the hits", lambda: (lambda found: found if found and found.childCount == 1 else None)(
        find(window(), pyatspi.ROLE_LIST)))
    assert hits.getChildAtIndex(0).name.startswith("Dog"), hits.getChildAtIndex(0).name


def focus_is_moved():
    button = wait("the button", lambda: find(window(), pyatspi.ROLE_PUSH_BUTTON, "^Exit$"))
    assert button.queryComponent().grabFocus()
    wait("the focus on it", lambda: has(button, pyatspi.STATE_FOCUSED))
    wait("what is said of it", lambda: "focus Exit" in heard)


def press_presses():
    act(find(window(), pyatspi.ROLE_PUSH_BUTTON, "^Exit$"), "press")
    program.wait()
    assert program.stored("Config/Kivu.ini", "WindowState") == "0"


run([window_is_one_with_its_title, no_control_is_called_by_its_own_name, tabs_are_in_their_list, third_row_is_chosen,
     start_starts_the_row, pin_tells_its_state, nothing_is_reached_behind_a_modal_window, search_text_searches, focus_is_moved, press_presses])
