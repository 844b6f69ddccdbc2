#!/usr/bin/env python3
"""The real program in a Wayland session, where the keyboard stays with the window: wayland_test.py KIVU"""

import glob
import json
import os
import re
import sys

from desk import Place, Program, run, skip, skip_without, until

binary = sys.argv[1]


class Session(Place):
    """A compositor without a screen, and a keyboard."""

    def __init__(self):
        skip_without("sway", "swaymsg", "wtype", "unshare")
        if not glob.glob("/usr/lib/*/qt6/plugins/platforms/libqwayland*.so"):
            skip("not installed: qt6-wayland")
        super().__init__("wayland")
        self.environment.update(WLR_BACKENDS="headless", WLR_RENDERER="pixman")
        names = os.path.join(self.directory, "names")
        config = os.path.join(self.directory, "config")
        with open(config, "w") as file:
            file.write("xwayland disable\noutput * resolution 1280x900\nfor_window [app_id=\".*\"] floating enable\n"
                       "exec echo $WAYLAND_DISPLAY $SWAYSOCK > %s.new && mv %s.new %s\n" % (names, names, names))
        # It refuses to be root's.
        user = ["unshare", "--user", "--map-user=1000", "--map-group=1000"] if os.getuid() == 0 else []
        compositor = self.start(user + ["sway", "--config", config])
        until("a session", lambda: os.path.exists(names) or compositor.poll() is not None)
        if not os.path.exists(names):
            self.close()
            skip("no session can be made here")
        with open(names) as file:
            self.environment["WAYLAND_DISPLAY"], self.environment["SWAYSOCK"] = file.read().split()
        # Without it each struck key would bring a keyboard along and take it away.
        self.start(["wtype", "-s", "3600000"])
        until("a keyboard", lambda: '"keyboard"' in self.output(["swaymsg", "--raw", "-t", "get_inputs"]))
        # Programs say what they ask the compositor for.
        self.environment["WAYLAND_DEBUG"] = "client"

    def strike(self, *keys):
        self.output(["wtype"] + [word for key in keys for word in ("-k", key)])

    def titles(self):
        found = []

        def look(node):
            if node.get("pid"):
                found.append(node["name"])
            for part in node["nodes"] + node["floating_nodes"]:
                look(part)

        look(json.loads(self.output(["swaymsg", "--raw", "-t", "get_tree"])))
        return found


class Kivu(Program):
    def start(self):
        with open(self.path("asked"), "w") as asked:
            self.process = self.desk.start([self.binary], stderr=asked)
        until("the window", lambda: self.desk.titles() == ["Kivu 1.4b"])

    def windows(self):
        return self.read("asked").count(".get_toplevel(")

    def open_lists(self):
        asked = self.read("asked")
        return asked.count(".get_popup(") - len(re.findall(r"-> xdg_popup@\d+\.destroy\(", asked))


def keys_that_close_a_drop_down():
    with Session() as session:
        program = Kivu(session, binary)
        program.start()
        # From the list to the sizes of the letters.
        session.strike(*["Tab"] * 7)
        for key in ("Escape", "Return", "F4"):
            session.strike("F4")
            until("the open drop-down", lambda: program.open_lists() == 1)
            session.strike(key)
            until("the closed drop-down after " + key, lambda: program.open_lists() == 0)
        assert program.windows() == 1
        assert not program.read("started")
        session.strike("Escape")
        until("the question", lambda: "Exit Kivu?" in session.titles())
        program.signal()
        assert program.wait() == 0


run([keys_that_close_a_drop_down])
