#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""One tour of the panel in real windows, by pointer and keys: under X11 with openbox, under weston's desktop
and kiosk shells, and over VNC with a viewer. Before it, starts on a screen are held against ones without.

    tour.py PANEL SAMPLES [STAGE...]

All of it takes place on X servers without hardware, whose pixels are read: what counts is what is on
show, what scripts are told at the panel's own port, and the files that the panel leaves. Under openbox,
which comes first, assistive tools say where the widgets are; the same places are tapped everywhere else.
Exits with 77 where a stage lacks its programs and the others went well.
"""
import contextlib
import glob
import json
import os
import shutil
import socket
import struct
import subprocess
import sys
import tempfile
import time
import zlib

from display import (LAUNCHERS, SKIPPED, FrameBuffer, Picture, Tree, fail, running, wait_for,
                     x_server)

WIDTH, HEIGHT = 1280, 800  # of the panel
ROOM = 1400, 900  # where there is more than the panel on the screen
PARKED = 1000, 24  # for the pointer: in the bar above the diagrams, between the keys


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def read_png(data, rows=HEIGHT):
    """The first rows of a picture, as QImage writes it."""
    at, packed = 8, b""
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        chunk = data[at + 8:at + 8 + length]
        if kind == b"IHDR":
            width, height, bits, colours = struct.unpack(">IIBB", chunk[:10])
        elif kind == b"IDAT":
            packed += chunk
        at += 12 + length
    size = {2: 3, 6: 4}[colours]
    raw, stride = zlib.decompress(packed), width * size
    above, pixels = bytearray(stride), []
    for y in range(min(height, rows)):
        kind, line = raw[y * (stride + 1)], bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride) if kind else ():
            left = line[i - size] if i >= size else 0
            up, corner = above[i], above[i - size] if i >= size else 0
            if kind == 4:
                guess = left + up - corner
                _, _, nearest = min((abs(guess - left), 0, left), (abs(guess - up), 1, up),
                                    (abs(guess - corner), 2, corner))
            line[i] = (line[i] + (left, up, (left + up) // 2, nearest if kind == 4 else 0)[kind - 1]) & 255
        above = line
        row = bytearray(4 * width)
        row[0::4], row[1::4], row[2::4] = line[2::size], line[1::size], line[0::size]
        pixels.append(bytes(row))
    return Picture(b"".join(pixels), 4 * width)


class Script:
    """A connection to the panel's own port for scripts."""

    def __init__(self, process):
        place = process.stdout.readline().rsplit(" ", 1)[1].strip()
        host, port = place.rsplit(":", 1)
        self.socket = socket.create_connection((host, int(port)), 30)
        self.file = self.socket.makefile("rb")

    def ask(self, question):
        self.socket.sendall(question.encode() + b"\n")
        return self.file.readline().decode().strip()

    def picture(self):
        self.socket.sendall(b"HCOPy:DATA?\n")
        length = int(self.file.read(2)[1:])
        data = self.file.read(int(self.file.read(length)))
        self.file.readline()
        return data

    def marker(self):
        """Where marker 1 of S21 is, in Hz; None without one."""
        names = self.ask("CALC:PAR:CAT?").strip('"').split(",")
        state = self.ask(f"CALC:PAR:SEL '{names[names.index('S21') - 1]}';:CALC:MARK1:STAT?")
        return float(self.ask("CALC:MARK1:X?")) if state == "1" else None


class Panel:
    """The panel on a screen, and the pointer on it."""

    def __init__(self, process, frames, places, home):
        self.process, self.frames, self.places, self.home = process, frames, places, home
        self.script = Script(process)
        self.left, self.top = 0, 0

    def locate(self):
        """Looks on the screen for a row of the panel's own picture, until that stays in its place."""
        def look():
            place = self.place_on_screen()
            time.sleep(0.5)
            return place == self.place_on_screen() and place

        self.left, self.top = wait_for("the panel's picture on the screen", look)

    def place_on_screen(self):
        xdotool("mousemove", 0, 0)
        y = HEIGHT // 8
        row = read_png(self.script.picture(), y + 1).row(0, y, WIDTH * 3 // 4)
        found = self.frames.picture().find(row)
        return found and (found[0], found[1] - y)

    def shown(self):
        """What is on the screen of the panel."""
        return self.frames.picture().part(self.left, self.top, WIDTH, HEIGHT)

    def at_rest(self, seconds=5.0):
        """What is on show once that stays the same for a while."""
        end = time.monotonic() + seconds
        last = self.shown()
        while time.monotonic() < end:
            time.sleep(0.08)
            now = self.shown()
            if now.data == last.data:
                break
            last = now
        return now

    def point(self, x, y):
        xdotool("mousemove", self.left + round(x), self.top + round(y))

    def changed(self, what, before, rectangle=None):
        """Waits until something outside of a rectangle has changed, and then rests."""
        x, y, width, height = rectangle or (0, 0, 0, 0)

        def look():
            change = self.shown().changes(before)
            return change and (not rectangle or change[0] < x - 8 or change[1] < y - 8
                               or change[2] > x + width + 8 or change[3] > y + height + 8)

        wait_for("a change of the picture by " + what, look)
        return self.at_rest()

    def tap(self, role, name, opens=True, times=1):
        """Taps a widget, and waits for what that opens outside of it, or changes in it."""
        rectangle = self.places.find(role, name)
        x, y, width, height = rectangle
        # A marker's table is wide; what is tapped of an item is where its text begins.
        self.point(x + min(width, 200) / 2, y + height / 2)
        before = self.at_rest()
        xdotool("click", "--repeat", times, "--delay", 60, 1)
        return self.changed(f"a tap on {name}", before, rectangle if opens else None)

    def drag(self, start, way):
        (x, y), (dx, dy) = start, way
        self.point(x, y)
        self.at_rest()
        xdotool("mousedown", 1)
        for step in range(1, 9):
            self.point(x + dx * step / 8, y + dy * step / 8)
            time.sleep(0.02)
        before = self.at_rest()
        xdotool("mouseup", 1)
        return before


class Places:
    """Where widgets are in the panel's window: from assistive tools at first, and then as remembered."""

    def __init__(self):
        self.known, self.tree, self.origin, self.count = {}, None, (0, 0), 0

    def learn(self, tree):
        self.tree = tree
        extents = tree.window.queryComponent().getExtents(0)
        self.origin = extents.x, extents.y

    def begin(self):
        self.count = 0

    def find(self, role, name):
        self.count += 1  # the same name may be elsewhere at another time
        key = self.count, role, name
        if self.tree:
            self.known[key] = wait_for(f"{role} {name}", lambda: self.look(role, name))
        return self.known[key]

    def look(self, role, name):
        for node in self.tree.walk(self.tree.window.getApplication(), only=self.tree.shows):
            if node.getRoleName() != role or not node.name.startswith(name):
                continue
            extents = node.queryComponent().getExtents(0)
            x, y = extents.x - self.origin[0], extents.y - self.origin[1]
            if 0 <= x < WIDTH and 0 <= y < HEIGHT and extents.width > 0:
                return x, y, extents.width, extents.height
        return None


# The tour


def state(panel):
    with open(panel.home + "/state.ini") as file:
        return json.load(file)


def diagrams(picture):
    """The part of the window in which the diagrams are, without what lies under the pointer."""
    return picture.part(0, 50, 1000, HEIGHT - 90)


def open_file(panel):
    panel.tap("page tab", "System")
    panel.tap("push button", "File")
    panel.tap("list item", "band-pass.s2p")
    panel.tap("push button", "Open")
    wait_for("the traces of the file", lambda: "S21" in panel.script.ask("CALC:PAR:CAT?"))


def pick_from_list(panel):
    panel.tap("page tab", "Stimulus")
    panel.tap("combo box", "Frequency axis")
    before = diagrams(panel.tap("list item", "Logarithmic"))
    wait_for("the axis in the state", lambda: state(panel)["logarithmic"])
    panel.tap("combo box", "Frequency axis")
    after = diagrams(panel.tap("list item", "Linear"))
    if before.data == after.data:
        fail("a linear axis looks like a logarithmic one")
    wait_for("the axis in the state", lambda: not state(panel)["logarithmic"])


def colour(pixel):
    return max(pixel) - min(pixel)


def drag_marker(panel):
    x, y, width, height = panel.places.find("chart", "Cartesian diagram")
    x += width // 2
    on_trace = max(range(y, y + height), key=lambda at: colour(panel.shown().pixel(x, at)))

    def coloured(x):
        """How much of a marker stands there."""
        shown = panel.shown()
        return sum(colour(shown.pixel(x + i, on_trace - j)) > 35 for i in range(-8, 9) for j in range(4, 20))

    panel.point(x, on_trace)
    before = panel.at_rest()
    xdotool("click", "--repeat", 2, "--delay", 60, 1)
    panel.changed("two taps on a trace", before)
    frequencies = [wait_for("a marker", panel.script.marker)]
    for way in (90, -45):
        panel.drag((x, on_trace), (way, 0))
        wait_for("a marker where it was dragged", lambda: coloured(x + way) > 40 and coloured(x) < 10)
        x += way
        frequencies.append(panel.script.marker())
    there, back = frequencies[1] - frequencies[0], frequencies[2] - frequencies[1]
    if there <= 0 or abs(back / there + 0.5) > 0.04:
        fail(f"a marker was dragged from and to {frequencies}")


def type_value(panel):
    panel.tap("page tab", "Marker")
    panel.tap("push button", "Stimulus")
    for key in ("2", "Point", "4", "5", "GHz"):
        panel.tap("push button", key)
    wait_for("the marker where it was typed",
             lambda: panel.script.marker() == 2.45e9)


def move_dialog(panel):
    panel.tap("page tab", "System")
    before = diagrams(panel.at_rest())
    panel.tap("push button", "Settings")
    x, y, width, height = panel.places.find("dialog", "Settings")
    # Within it and below its title. A dialog is as wide as its texts.
    x, y, width, height = x + 50, y + 45, width - 100, height - 60
    dialog = panel.shown().part(x, y, width, height)
    panel.drag((x + 50, y - 35), (-90, -60))
    panel.point(*PARKED)
    wait_for("the dialog where it was dragged",
             lambda: panel.shown().part(x - 90, y - 60, width, height).data == dialog.data)
    panel.tap("push button", "Close")
    panel.point(*PARKED)
    wait_for("the diagrams as they were", lambda: diagrams(panel.shown()).data == before.data)


def turn_theme(panel):
    x, y, width, height = panel.places.find("chart", "Cartesian diagram")
    for look, bright in ((1, True), (0, False), (1, True)):
        panel.tap("push button", "Dark or light")
        wait_for("the look in the state", lambda: state(panel)["look"] == look)
        wait_for("a bright diagram" if bright else "a dark diagram",
                 lambda: (min(panel.shown().pixel(x + 6, y + height // 2)) > 200) == bright)


def save_picture(panel):
    panel.point(*PARKED)
    before = diagrams(panel.at_rest())
    panel.tap("push button", "Screenshot")
    pattern = panel.home + "/**/*.png"
    saved, = wait_for("the saved picture", lambda: glob.glob(pattern, recursive=True))
    with open(saved, "rb") as file:
        picture = diagrams(read_png(file.read()))
    if change := picture.changes(before):
        fail(f"the saved picture differs from the screen within {change}")


def take_the_tour(panel, hide_and_show):
    panel.places.begin()
    for step in (open_file, pick_from_list, drag_marker, type_value, move_dialog, turn_theme):
        print(" ", step.__name__.replace("_", " "), flush=True)
        step(panel)
    if hide_and_show:
        panel.point(*PARKED)
        before = diagrams(panel.at_rest())
        hide_and_show()
        wait_for("the picture after it was hidden",
                 lambda: diagrams(panel.shown()).data == before.data)
    save_picture(panel)
    panel.process.terminate()
    if code := panel.process.wait(30):
        fail(f"the panel ends with {code}")
    kept = state(panel)
    if kept["look"] != 1 or [os.path.basename(name) for name in kept["files"]] != ["band-pass.s2p"]:
        fail("the state is not what was left")


# The stages: each yields the panel and what hides and shows it, where there is such a thing


def started(platform, home, *files, **environment):
    """A panel whose state is in a folder, as is what it opens."""
    program, samples = sys.argv[1:3]
    for name in ("antenna.s1p", "band-pass.s2p"):
        shutil.copy(os.path.join(samples, name), home)
    given = {**os.environ, "HOME": home, "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home, "XDG_RUNTIME_DIR": home,
             # The same sizes everywhere, whatever a screen says of its millimetres.
             "QT_FONT_DPI": "96",
             # What a screen's libraries keep is not the panel's.
             "ASAN_OPTIONS": "detect_leaks=0", **environment}
    command = [program, "-platform", platform, "--size", f"{WIDTH}x{HEIGHT}", "--serve", "0",
               "--state", home + "/state.ini", *(os.path.join(home, name) for name in files)]
    return running(command, env=given, stdout=subprocess.PIPE, text=True)


@contextlib.contextmanager
def panel_on(platform, places, home, **environment):
    with started(platform, home, "antenna.s1p", **environment) as process:
        yield Panel(process, FrameBuffer(home), places, home)


@contextlib.contextmanager
def openbox(places, home):
    import pyatspi

    def hide_and_show():
        window = subprocess.check_output(["xdotool", "search", "--name", "^Vector network"], text=True).split()[-1]
        xdotool("windowminimize", window)
        wait_for("a hidden window", lambda: not panel.place_on_screen())
        xdotool("windowactivate", window)

    launcher = [next(filter(os.path.exists, LAUNCHERS)), "--launch-immediately"]
    with running(launcher, stderr=subprocess.DEVNULL), running(["openbox"], stderr=subprocess.DEVNULL):
        with panel_on("xcb", places, home, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1") as panel:
            places.learn(Tree(pyatspi, panel.process))
            panel.locate()
            yield panel, hide_and_show
    places.tree = None


@contextlib.contextmanager
def weston(shell, size, places, home):
    width, height = size
    command = ["weston", "--backend=x11-backend.so", f"--shell={shell}-shell.so", "--use-pixman", "--no-config",
               "--idle-time=0", f"--width={width}", f"--height={height}", "--socket=tour"]
    environment = {**os.environ, "XDG_RUNTIME_DIR": home}
    with running(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL):
        wait_for("weston", lambda: os.path.exists(home + "/tour"))
        with panel_on("wayland", places, home, WAYLAND_DISPLAY="tour") as panel:
            panel.locate()
            yield panel, None


@contextlib.contextmanager
def vnc(places, home):
    with socket.create_server(("127.0.0.1", 0)) as free:
        port = free.getsockname()[1]
    viewer = ["xtigervncviewer", "-SecurityTypes=None", "-AutoSelect=0", "-PreferredEncoding=Raw",
              "-RemoteResize=0", "-MenuKey=", "-Shared", f"127.0.0.1::{port}"]

    def listens():
        """It does so later than it answers scripts."""
        listening = "0A"
        for path in ("/proc/net/tcp", "/proc/net/tcp6"):
            with open(path) as table:
                rows = [line.split() for line in table]
            if any(row[1].endswith(f":{port:04X}") and row[3] == listening for row in rows):
                return True
        return False

    def close_and_open():
        views.close()
        wait_for("a closed viewer", lambda: not panel.place_on_screen())
        views.enter_context(running(viewer, stderr=subprocess.DEVNULL))

    with panel_on(f"vnc:size={WIDTH}x{HEIGHT}:port={port}", places, home) as panel:
        wait_for("the VNC server", listens)
        with contextlib.ExitStack() as views:
            views.enter_context(running(viewer, stderr=subprocess.DEVNULL))
            panel.locate()
            yield panel, close_and_open


STAGES = {
    "openbox": (openbox, ROOM, ["openbox"]),
    "desktop": (lambda *where: weston("desktop", ROOM, *where), ROOM, ["weston"]),
    "kiosk": (lambda *where: weston("kiosk", (WIDTH, HEIGHT), *where), (WIDTH, HEIGHT), ["weston"]),
    "vnc": (vnc, ROOM, ["xtigervncviewer"]),
}


# Starts


STARTS = [
    {},
    {"layout": 3, "look": 1, "language": "de"},
    {"layout": 2, "markerTable": True},
    {"layout": 0, "language": "zh_CN", "gridLabels": 1},
    {"logarithmic": True, "highContrast": True, "traceDashes": True},
]


def compare_starts():
    """A start on a screen, where sizes and pictures come as the system has them, ends with what one without a
    screen draws, which lays out first. Two files make titles too long for their line."""
    with tempfile.TemporaryDirectory() as home:
        with started("offscreen", home, "antenna.s1p", "band-pass.s2p") as process:
            script = Script(process)
            names = script.ask("CALC:PAR:CAT?").strip('"').split(",")[::2]
            for name, frequency in zip(names, (2.45e9, 2.5e9)):
                script.ask(f"CALC:PAR:SEL '{name}';:CALC:MARK1:X {frequency};*OPC?")
            process.terminate()
            process.wait(30)
        with open(home + "/state.ini") as file:
            left = json.load(file)
        if not left["networks"][0]["traces"][0]["markers"]:
            fail("no marker was set")
        for start in STARTS:
            with open(home + "/state.ini", "w") as file:
                json.dump({**left, **start}, file)
            compare_start(home, start)


def final_size(script):
    sizes = []
    for pause in (1, 0):
        sizes.append(struct.unpack(">II", script.picture()[16:24]))
        time.sleep(pause)
    return sizes[0] == sizes[1] and sizes[0]


def compare_start(home, start):
    difference = []

    def alike():
        picture = read_png(script.picture())
        shown = frames.picture()
        difference[:] = [len(shown.data) == len(picture.data) and shown.changes(picture)]
        return difference == [None]

    with started("offscreen", home) as process:
        script = Script(process)
        # The other's screen is as large as the window is here once it has been fitted to its screen.
        size = wait_for("a size", lambda: final_size(script))
        with x_server(*size, "-nocursor", "-fbdir", home) as os.environ["DISPLAY"]:
            frames = FrameBuffer(home)
            shutil.copytree(home, home + "/live", ignore=shutil.ignore_patterns("Xvfb*", "live"))
            with started("xcb", home + "/live"):
                search = ["xdotool", "search", "--sync", "--onlyvisible", "--class", "vnapanel"]
                window = subprocess.check_output(search, text=True)
                xdotool("windowfocus", window.split()[-1], "mousemove", 0, frames.height - 1)
                try:
                    wait_for("", alike)
                except SystemExit:
                    fail(f"a start with {start} differs on the screen within {difference}")
            shutil.rmtree(home + "/live")


def run_stage(name, places):
    stage, size, _ = STAGES[name]
    with tempfile.TemporaryDirectory() as home, x_server(*size, "-fbdir", home) as display:
        os.chmod(home, 0o700)
        os.environ["DISPLAY"] = display
        with stage(places, home) as (panel, hide_and_show):
            take_the_tour(panel, hide_and_show)


def inside():
    """Within a session bus of its own. A stage that fails is tried once more, and says so: servers and viewers
    start in their own time, and what is broken in the panel fails twice."""
    places, missing = Places(), []
    wanted = sys.argv[3:] or ["starts", *STAGES]
    if "starts" in wanted:
        begin = time.monotonic()
        compare_starts()
        print(f"starts: well, {time.monotonic() - begin:.1f} s", flush=True)
    for name, (_, _, needed) in STAGES.items():
        if name not in wanted:
            continue
        if not all(map(shutil.which, needed)):
            missing += needed
            continue
        print(name, flush=True)
        begin = time.monotonic()
        try:
            run_stage(name, places)
        except (Exception, SystemExit) as problem:
            print(f"{name}: {problem}; once more", flush=True)
            run_stage(name, places)
        print(f"{name}: well, {time.monotonic() - begin:.1f} s", flush=True)
    if missing:
        print("skipped, for lack of", ", ".join(missing))
        sys.exit(SKIPPED)


def main():
    if os.environ.get("VNA_TOUR_INSIDE"):
        inside()
        return
    missing = [name for name in ("Xvfb", "openbox", "xdotool", "dbus-run-session") if not shutil.which(name)]
    if subprocess.run([sys.executable, "-c", "import pyatspi"], stderr=subprocess.DEVNULL).returncode:
        missing.append("pyatspi")
    if missing or not any(map(os.path.exists, LAUNCHERS)):
        print("skipped, for lack of", ", ".join(missing or ["at-spi2-core"]))
        sys.exit(SKIPPED)
    environment = {**os.environ, "VNA_TOUR_INSIDE": "1"}
    sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv], env=environment,
                            timeout=580).returncode)


if __name__ == "__main__":
    main()
