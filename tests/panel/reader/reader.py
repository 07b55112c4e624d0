#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Uses the panel as one does who cannot see it: over a real accessibility bus, with keys alone.

    reader.py PANEL FILE      VNA_READER_FILE, where it is set, stands in for FILE

It finds the resonance of S11 with the least reflection, reads the impedance there and the band in which
less than a tenth of the power comes back, sets a marker and saves the data, and compares all of it with
the file. Exits with 77 where the machine has no bus, no X server or no pyatspi.
"""
import cmath
import math
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "desktop"))
from display import LAUNCHERS, SKIPPED, Tree, running, wait_for, x_server


# What the file says


def read_touchstone(path):
    """Frequencies in Hz and S11 of a version 1 file."""
    units = {"HZ": 1.0, "KHZ": 1e3, "MHZ": 1e6, "GHZ": 1e9}
    unit, kind, resistance = 1e9, "MA", 50.0
    numbers, points = 0, []
    for line in open(path, encoding="latin-1"):
        line = line.split("!")[0].strip()
        if line.startswith("#"):
            words = line[1:].upper().split()
            unit = next((units[word] for word in words if word in units), unit)
            kind = next((word for word in words if word in ("MA", "DB", "RI")), kind)
            if "R" in words:
                resistance = float(words[words.index("R") + 1])
            continue
        fields = [float(field) for field in line.split()]
        if not fields:
            continue
        numbers = numbers or len(fields)
        if len(fields) == numbers:
            a, b = fields[1:3]
            if kind == "DB":
                a = 10 ** (a / 20)
            value = complex(a, b) if kind == "RI" else cmath.rect(a, math.radians(b))
            points.append((fields[0] * unit, value))
    return points, resistance


def resonances(points):
    """Where the reactance is zero: frequency and reflection."""
    found = []
    for (f, a), (g, b) in zip(points, points[1:]):
        if (a.imag < 0) != (b.imag < 0):
            share = a.imag / (a.imag - b.imag)
            found.append((f + share * (g - f), a + share * (b - a)))
    return found


def band_around(points, hertz, magnitude):
    """The ends of the band around a frequency in which the magnitude is below a value."""
    near = min(range(len(points)), key=lambda i: abs(points[i][0] - hertz))
    ends = []
    for step in (-1, 1):
        i = near
        while 0 <= i + step < len(points) and points[i + step][1] < magnitude:
            i += step
        f, m = points[i]
        if 0 <= i + step < len(points):
            g, n = points[i + step]
            f += (magnitude - m) / (n - m) * (g - f)
        ends.append(f)
    return ends


# What the panel says


def number(text):
    return float(text.replace("\u2212", "-").replace(" ", ""))


def hertz(text):
    value, unit = re.search(r"([\d.]+) ([GMk]?Hz)", text).groups()
    return float(value) * {"Hz": 1.0, "kHz": 1e3, "MHz": 1e6, "GHz": 1e9}[unit]


def close_to(what, value, expected, tolerance):
    print(f"{what}: {value:.6g}, by the file {expected:.6g}")
    if abs(value - expected) > tolerance:
        sys.exit(f"FAILED: {what} is off by {abs(value - expected):.3g}")


class Panel(Tree):
    def __init__(self, pyatspi, program, path, home):
        process = subprocess.Popen([program, "--lang", "en", "--state", home + "/state.ini", path])
        super().__init__(pyatspi, process)
        self.chart = wait_for("the chart", lambda: self.find("chart", "Smith chart"))

    def find_key(self, name):
        """A soft key, whose page is turned to."""
        for _ in range(12):
            key = self.find("push button", name) or self.find("combo box", name)
            if key and self.shows(key):
                return key
            self.press("ctrl+Next")
            time.sleep(0.3)
        return None

    def press(self, *keys):
        subprocess.run(["xdotool", "key", *keys], check=True)

    def announced(self):
        """What a screen reader was told last; it says a notification when that shows."""
        for node in self.walk(self.chart):
            if node.getRoleName() == "notification":
                node.clearCache()
                return node.name
        return ""

    def said_after(self, *keys):
        """Presses keys, and returns what is announced then, in the status line of the chart."""
        before = self.announced()
        self.press(*keys)

        def changed():
            now = self.announced()
            return now if now != before else None

        said = wait_for("the key " + " ".join(keys), changed)
        print("said:", said)
        return said

    def quit(self):
        self.process.terminate()
        self.process.wait(10)


def use(panel, points, resistance, home):
    expected_hertz, gamma = min(resonances(points), key=lambda found: abs(found[1]))
    expected_ohms = (resistance * (1 + gamma) / (1 - gamma)).real
    print("summary:", panel.chart.description)
    if "best match at" not in panel.chart.description:
        sys.exit("FAILED: the chart is not described")

    # From feature to feature, until the walk is at that resonance.
    wait_for("the focus", lambda: panel.window.getState().contains(panel.atspi.STATE_ACTIVE))
    said = panel.said_after("Home")
    for _ in range(100):
        said = panel.said_after("ctrl+Right")
        if "resonance" in said.lower() and abs(hertz(said) - expected_hertz) < 0.01 * expected_hertz:
            break
    else:
        sys.exit("FAILED: the walk does not come to the resonance")
    resonance = hertz(said)
    ohms = number(re.search(r"z, ([\u2212-]?[\d.]+) ", said).group(1))
    close_to("resonance in Hz", resonance, expected_hertz, 0.01 * expected_hertz)
    close_to("resistance there in ohms", ohms, expected_ohms, 0.01 * expected_ohms)

    # A marker where the walk is, then by its value.
    said = panel.said_after("Return")
    marker = wait_for("the marker", lambda: panel.find("slider", "Marker 1 on S11"))
    close_to("marker in Hz", marker.queryValue().currentValue, resonance, 0.01 * resonance)
    goal = points[len(points) // 3][0]
    marker.queryValue().currentValue = goal
    wait_for("the marker's new place",
             lambda: abs(marker.queryValue().currentValue - goal) <= 1e-3 * goal)

    # The band, from the table.
    table = panel.find("table", "S11").queryTable()
    columns = [table.getColumnDescription(i) for i in range(table.nColumns)]
    read = [(hertz(table.getAccessibleAt(row, 0).name),
             number(table.getAccessibleAt(row, columns.index("Magnitude")).name))
            for row in range(table.nRows)]
    best = min(points, key=lambda point: abs(point[1]))[0]
    level = 10 ** (-10 / 20)
    low, high = band_around(read, best, level)
    low_expected, high_expected = band_around([(f, abs(s)) for f, s in points], best, level)
    close_to("10 dB bandwidth in Hz", high - low, high_expected - low_expected,
             0.01 * (high_expected - low_expected))

    # Save: the key opens a list, whose first entry is Touchstone, and then asks for a name.
    key = wait_for("the save key", lambda: panel.find_key("Save"))
    action = key.queryAction()
    action.doAction(0)
    wait_for("the list", lambda: panel.find("list item", "Touchstone"))
    panel.press("Down", "Return")
    name = wait_for("the question for a name", lambda: panel.find("text", "Name"))
    wait_for("the focus", lambda: name.getState().contains(panel.atspi.STATE_FOCUSED))
    panel.press("Return")
    saved = wait_for("the file", lambda: [os.path.join(folder, name)
                                          for folder, _, names in os.walk(home)
                                          for name in names if re.search(r"\.s\dp$", name)])
    copy, _ = wait_for("its points", lambda: read_touchstone(saved[0])[0] and read_touchstone(saved[0]))
    close_to("points saved", len(copy), len(points), 0)
    close_to("S11 saved", abs(copy[0][1] - points[0][1]), 0.0, 1e-6)
    print("PASSED")


def inside(program, path):
    """Within a session bus and a display of its own."""
    import pyatspi

    points, resistance = read_touchstone(path)
    launcher = [next(filter(os.path.exists, LAUNCHERS)), "--launch-immediately"]
    with running(launcher), running(["openbox"]):
        panel = Panel(pyatspi, program, path, os.environ["HOME"])
        try:
            use(panel, points, resistance, os.environ["HOME"])
        finally:
            panel.quit()


def main():
    program, path = sys.argv[1:3]
    path = os.environ.get("VNA_READER_FILE", path)
    if os.environ.get("VNA_READER_INSIDE"):
        inside(program, path)
        return
    needed = ["Xvfb", "openbox", "xdotool", "dbus-run-session"]
    missing = [name for name in needed if not shutil.which(name)]
    if not any(map(os.path.exists, LAUNCHERS)):
        missing.append("at-spi2-core")
    if subprocess.run([sys.executable, "-c", "import pyatspi"], stderr=subprocess.DEVNULL).returncode:
        missing.append("pyatspi")
    if missing:
        print("skipped, for lack of", ", ".join(missing))
        sys.exit(SKIPPED)
    with tempfile.TemporaryDirectory() as home, x_server(1280, 800) as display:
        os.chmod(home, 0o700)
        environment = {**os.environ, "DISPLAY": display, "HOME": home, "XDG_RUNTIME_DIR": home,
                       "XDG_CONFIG_HOME": home, "QT_QPA_PLATFORM": "xcb", "VNA_READER_INSIDE": "1",
                       "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        code = subprocess.run(["dbus-run-session", "--", sys.executable, __file__, program, path],
                              env=environment, timeout=150).returncode
    sys.exit(code)


if __name__ == "__main__":
    main()
