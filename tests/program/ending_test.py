#!/usr/bin/env python3
"""The real program is ended in every way but its own, and its files are looked at: ending_test.py KIVU"""

import atexit
import os
import shutil
import signal
import sys

from desk import Desk, Program, run, until
from session import SessionManager, Unavailable

binary = sys.argv[1]


TWIPS = 15400  # as wide as the window is then


# By its own key: what the window manager changes, the program hears of later than its display.
def widen(desk, program):
    desk.output(["xdotool", "windowactivate", "--sync", program.window])
    for _ in range(5):
        desk.output(["xdotool", "key", "alt+Right"])
    until("the wider window", lambda: "WIDTH=1027\n" in desk.output(
        ["xdotool", "getwindowgeometry", "--shell", program.window]))


def expect(program):
    for key, value in (("WindowState", "0"), ("WindowX", str(TWIPS)), ("WindowY", "10200")):
        stored = program.stored("Config/Kivu.ini", key)
        assert stored == value, (key, stored, value)
    assert program.stored("Config/Alpha/Kivu.ini", "DrvWindowDocked") is not None


def each_signal_stores():
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        with Desk() as desk:
            program = Program(desk, binary)
            program.start()
            widen(desk, program)
            program.signal(number)
            assert program.wait() == 0, number
            expect(program)


def signal_with_the_question_open():
    with Desk() as desk:
        program = Program(desk, binary)
        program.start()
        widen(desk, program)
        desk.output(["wmctrl", "-i", "-c", program.window])
        until("the question", lambda: len(program.windows()) > 1)
        program.signal()
        assert program.wait() == 0
        expect(program)


def panel_asks_and_enter_ends():
    with Desk() as desk:
        program = Program(desk, binary)
        program.start()
        widen(desk, program)
        desk.output(["wmctrl", "-i", "-c", program.window])
        until("the question", lambda: "Exit Kivu?" in desk.output(
            ["xdotool", "getactivewindow", "getwindowname"]))
        assert not program.ended()
        desk.output(["xdotool", "key", "Return"])
        assert program.wait() == 0
        expect(program)


def active(desk):
    return desk.output(["xdotool", "getactivewindow"]).strip()


def panel_fetches_the_settings_in_front():
    with Desk() as desk:
        program = Program(desk, binary)
        # At a first start Enter opens the settings.
        shutil.rmtree(program.path("Config"))
        program.start()
        desk.output(["xdotool", "windowactivate", "--sync", program.window, "key", "Return"])
        until("the settings", lambda: len(program.windows()) > 1 and active(desk) not in ("", program.window))
        settings = active(desk)
        assert settings in program.windows()
        # Another program's window comes over them.
        other = Program(desk, binary)
        other.start()
        other.window = until("the other window", other.windows)[-1]
        desk.output(["xdotool", "windowactivate", "--sync", other.window])
        until("the other window in front", lambda: active(desk) == other.window)
        desk.output(["wmctrl", "-i", "-c", program.window])
        until("the settings in front", lambda: active(desk) == settings)
        assert not program.ended()


def alt_f4_ends_nothing():
    with Desk() as desk:
        program = Program(desk, binary)
        program.start()
        desk.output(["xdotool", "windowactivate", "--sync", program.window])
        # The window manager makes a close request of it.
        desk.output(["xdotool", "keydown", "alt", "key", "F4", "sleep", "0.3", "keyup", "alt"])
        desk.output(["wmctrl", "-i", "-c", program.window])
        until("the question of the panel alone", lambda: "Exit Kivu?" in desk.output(
            ["xdotool", "getactivewindow", "getwindowname"]))
        assert not program.ended()
        program.signal()
        program.wait()


def end_of_the_session_stores_and_asks_nothing():
    for question in (False, True):
        with Desk() as desk:
            desk.environment["SESSION_MANAGER"] = manager.address
            program = Program(desk, binary)
            program.start()
            until("the client of the session", lambda: manager.saved == 1)
            widen(desk, program)
            if question:
                desk.output(["wmctrl", "-i", "-c", program.window])
                until("the question", lambda: len(program.windows()) > 1)
            manager.ask_to_save()
            until("the answer to the session's end", lambda: manager.saved == 2)
            # Before the session goes on to its end, which may take the program's files with it.
            expect(program)
            assert not program.ended() and manager.interactions == 0
            manager.end()
            assert program.wait() == 0
            expect(program)


def session_that_is_called_off_leaves_the_program():
    with Desk() as desk:
        desk.environment["SESSION_MANAGER"] = manager.address
        program = Program(desk, binary)
        program.start()
        until("the client of the session", lambda: manager.saved == 1)
        manager.ask_to_save()
        until("the answer to the session's end", lambda: manager.saved == 2)
        manager.call_off()
        # Asked as ever.
        desk.output(["wmctrl", "-i", "-c", program.window])
        until("the question", lambda: len(program.windows()) > 1)
        assert not program.ended()
        program.signal()
        assert program.wait() == 0


def display_that_goes_stores():
    with Desk() as desk:
        program = Program(desk, binary)
        program.start()
        widen(desk, program)
        desk.server.terminate()
        program.wait()
        expect(program)


def emulator_lives_on():
    with Desk() as desk:
        program = Program(desk, binary)
        program.start()
        desk.output(["xdotool", "windowactivate", "--sync", program.window])
        desk.output(["xdotool", "mousemove", "--window", program.window, "150", "110",
                     "click", "--repeat", "2", "--delay", "60", "1"])
        emulator, _ = program.emulator()
        program.signal()
        program.wait()
        # Fails where there is no such process.
        os.kill(emulator, signal.SIGKILL)


# A tool that hangs is waited for; the program may end in it, and its small files with it.
def nothing_is_left_of_a_mount(end):
    with Desk() as desk:
        program = Program(desk, binary, "DeamonToolPath=/hang\r\n")
        program.write("Config/Alpha/Kivu.ini", program.read("Config/Alpha/Kivu.ini") +
                      "AutoMountDeamonTool=1\r\nSplashTimer=0\r\n")
        program.write("hang", "#!/bin/sh\necho $$ >> '" + program.path("hanging") + "'\nexec sleep 60\n")
        os.chmod(program.path("hang"), 0o755)
        program.start()
        widen(desk, program)
        desk.output(["xdotool", "mousemove", "--window", program.window, "150", "110",
                     "click", "--repeat", "2", "--delay", "60", "1"])
        tool = int(until("the tool", lambda: program.read("hanging")))
        assert os.path.exists(program.path("Config/Alpha/MountDeamon.bat"))
        end(desk, program)
        program.wait()
        os.kill(tool, signal.SIGKILL)
        assert not os.path.exists(program.path("Config/Alpha/MountDeamon.bat"))
        assert program.read("started") == "", "the emulator"
        expect(program)


def signal_while_a_mount_waits():
    nothing_is_left_of_a_mount(lambda desk, program: program.signal())


def display_that_goes_while_a_mount_waits():
    nothing_is_left_of_a_mount(lambda desk, program: desk.server.terminate())


def question_while_a_mount_waits():
    def end(desk, program):
        desk.output(["wmctrl", "-i", "-c", program.window])
        until("the question", lambda: "Exit Kivu?" in desk.output(
            ["xdotool", "getactivewindow", "getwindowname"]))
        assert os.path.exists(program.path("Config/Alpha/MountDeamon.bat"))
        desk.output(["xdotool", "key", "Return"])
    nothing_is_left_of_a_mount(end)


tests = [each_signal_stores, signal_with_the_question_open, panel_asks_and_enter_ends,
         panel_fetches_the_settings_in_front, alt_f4_ends_nothing, display_that_goes_stores, emulator_lives_on,
         signal_while_a_mount_waits, display_that_goes_while_a_mount_waits, question_while_a_mount_waits]
try:
    manager = SessionManager()
    atexit.register(manager.close)
    tests += [end_of_the_session_stores_and_asks_nothing, session_that_is_called_off_leaves_the_program]
except Unavailable as reason:
    print("  without a session: %s" % reason)
run(tests)
