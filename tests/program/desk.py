"""A desktop of the test's own, with the real program on it: an X server, a window manager, nothing of the user's."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 30  # seconds; nothing that goes well takes them
SKIPPED = 77


def skip(reason):
    print("SKIPPED: " + reason)
    sys.exit(SKIPPED)


def until(what, condition):
    """What the condition gives once that is true."""
    deadline = time.monotonic() + PATIENCE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError("still waiting: " + what)
        time.sleep(0.05)


class Place:
    """What a desk of either kind has: a directory that goes with it, and its processes."""

    def __init__(self, platform):
        self.directory = tempfile.mkdtemp(prefix="kivu-program-")
        runtime = os.path.join(self.directory, "run")
        os.mkdir(runtime, 0o700)
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": self.directory,
            "XDG_RUNTIME_DIR": runtime,
            "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": platform,
            **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")},
        }
        self.processes = []

    def start(self, words, **more):
        process = subprocess.Popen(words, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=more.pop("stderr", subprocess.DEVNULL), **more)
        self.processes.append(process)
        return process

    def output(self, words):
        return subprocess.run(words, env=self.environment, capture_output=True, text=True).stdout

    def close(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.kill()
            process.wait()
        shutil.rmtree(self.directory, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


def skip_without(*tools):
    missing = [tool for tool in tools if not shutil.which(tool)]
    if missing:
        skip("not installed: " + ", ".join(missing))


class Desk(Place):
    def __init__(self, manager=True):
        skip_without("Xvfb", "openbox", "xdotool", "wmctrl", "xprop")
        super().__init__("xcb")
        read, write = os.pipe()
        self.server = self.start(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x900x24", "-nolisten", "tcp",
                                  "-noreset"], pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as number:
            display = number.readline().strip()
        if not display:
            skip("no virtual display can be made here")
        self.environment["DISPLAY"] = ":" + display
        if manager:
            self.start(["openbox"])
            try:
                until("a window manager",
                      lambda: "window id" in self.output(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]))
            except AssertionError:
                self.close()
                raise


class Program:
    """Kivu in a directory of its own, with an emulator of four games."""

    def __init__(self, desk, binary, settings=""):
        self.desk = desk
        self.directory = tempfile.mkdtemp(dir=desk.directory)
        self.binary = os.path.join(self.directory, "Kivu")
        shutil.copy(binary, self.binary)
        self.write("Config/Kivu.ini", "[Settings]\r\nLastEmulator=Alpha\r\nUseJoystick=0\r\n" + settings)
        self.write("Config/Alpha/Kivu.ini", "[Settings]\r\nRomPath=/Roms\r\nEmulatorPath=/alpha\r\nRomCount=4\r\nEmulatorParameterAddDiskPath=1\r\nWinUAE_UseMasterConfig=0\r\n")
        cache = ""
        self.games = ["Ant (1990)(Maker)", "Bee (1991)(Maker)", "Cat (1992)(Maker)", "Dog (1993)(Maker)"]
        for game in self.games:
            self.write("Roms/" + game + ".adf", "x")
            cache += "/Roms/" + game + ".adf" + "\r\n" + game + "\r\n"
        self.write("Config/Alpha/Kivu_Cache.txt", cache)
        self.write("alpha", "#!/bin/sh\necho \"$$ $@\" >> '" + self.path("started") + "'\nexec sleep 60\n")
        os.chmod(self.path("alpha"), 0o755)
        self.process = None
        self.window = None

    def path(self, name):
        return os.path.join(self.directory, name)

    def write(self, name, text):
        os.makedirs(os.path.dirname(self.path(name)), exist_ok=True)
        with open(self.path(name), "w", newline="") as file:
            file.write(text)

    def read(self, name):
        try:
            with open(self.path(name), newline="") as file:
                return file.read()
        except FileNotFoundError:
            return ""

    def stored(self, name, key):
        for line in self.read(name).splitlines():
            if line.startswith(key + "="):
                return line[len(key) + 1:]
        return None

    def windows(self):
        return self.desk.output(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)]).split()

    def start(self):
        self.process = self.desk.start([self.binary], stderr=None)
        self.window = until("the window", lambda: [w for w in self.desk.output(
            ["xdotool", "search", "--onlyvisible", "--name", "^Kivu 1.4b$"]).split()])[-1]
        # What the window manager makes of it has come to rest.
        until("the window on the screen", lambda: "window state: Normal" in self.desk.output(
            ["xprop", "-id", self.window, "WM_STATE"]))

    def ended(self):
        return self.process.poll() is not None

    def emulator(self):
        """The number of the emulator's process and what it was given, once it has been started."""
        words = until("the emulator", lambda: self.read("started")).split(" ", 1)
        return int(words[0]), words[1].strip()

    def signal(self, number=signal.SIGTERM):
        self.process.send_signal(number)

    def wait(self):
        until("the end of the program", self.ended)
        return self.process.returncode


def run(tests):
    """Each with its name; the first failure ends the run."""
    for test in tests:
        print("  " + test.__name__, flush=True)
        test()
    print("%d passed, 0 failed" % len(tests))
