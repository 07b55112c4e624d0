# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests with real windows share: a display of their own, waiting, and what the panel tells
assistive tools of where its widgets are."""
import contextlib
import mmap
import os
import struct
import subprocess
import sys
import time

SKIPPED = 77
LAUNCHERS = ["/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher"]


def fail(what):
    sys.exit("FAILED: " + what)


def wait_for(what, probe, seconds=30.0):
    end, why = time.monotonic() + seconds, ""
    while time.monotonic() < end:
        try:
            result, why = probe(), ""
        except Exception as error:  # what is read changes meanwhile
            result, why = None, f" ({error!r})"
        if result:
            return result
        time.sleep(0.03)
    fail("nothing came of " + what + why)


@contextlib.contextmanager
def running(command, **options):
    """A process that ends with the block."""
    process = subprocess.Popen(command, **options)
    try:
        yield process
    finally:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


@contextlib.contextmanager
def x_server(width, height, *options):
    """An X server without hardware; gives its display."""
    reading, writing = os.pipe()
    # Without -noreset the server breaks new connections when its first client leaves it.
    command = ["Xvfb", "-noreset", "-displayfd", str(writing),
               "-screen", "0", f"{width}x{height}x24", *options]
    with running(command, pass_fds=[writing], stderr=subprocess.DEVNULL):
        os.close(writing)
        # In pieces, the last of which is the end of the line.
        with os.fdopen(reading) as lines:
            yield ":" + lines.readline().strip()


class FrameBuffer:
    """What a server that was started with -fbdir shows, four bytes a pixel (blue, green, red, none)."""

    def __init__(self, folder):
        with open(os.path.join(folder, "Xvfb_screen0"), "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self.memory[:100])
        self.width, self.height, self.stride = header[4], header[5], header[12]
        self.start = header[0] + 12 * header[19]
        if header[11] != 32:
            fail(f"{header[11]} bits a pixel")

    def picture(self):
        data = bytearray(self.memory[self.start:self.start + self.stride * self.height])
        data[3::4] = bytes(len(data) // 4)  # whatever a window leaves there
        return Picture(bytes(data), self.stride)


class Picture:
    def __init__(self, data, stride):
        self.data, self.stride = data, stride

    def row(self, x, y, width):
        at = y * self.stride + 4 * x
        return self.data[at:at + 4 * width]

    def part(self, x, y, width, height):
        return Picture(b"".join(self.row(x, y + i, width) for i in range(height)), 4 * width)

    def pixel(self, x, y):
        blue, green, red = self.row(x, y, 1)[:3]
        return red, green, blue

    def find(self, row):
        """Where a row of pixels is on show: (x, y), or None."""
        at = -1
        while (at := self.data.find(row, at + 1)) >= 0:
            if at % 4 == 0 and at % self.stride + len(row) <= self.stride:
                return at % self.stride // 4, at // self.stride
        return None

    def changes(self, other):
        """The rectangle in which two pictures of one size differ: (left, top, right, bottom), or None."""
        rows = len(self.data) // self.stride
        top = next((y for y in range(rows) if self.line(y) != other.line(y)), None)
        if top is None:
            return None
        bottom = next(y for y in reversed(range(rows)) if self.line(y) != other.line(y))
        left, right = self.stride // 4, 0
        for y in range(top, bottom + 1):
            a, b = self.line(y), other.line(y)
            if a[:4 * left] != b[:4 * left]:
                left = next(x for x in range(left) if a[4 * x:4 * x + 4] != b[4 * x:4 * x + 4])
            if a[4 * right:] != b[4 * right:]:
                right = next(x for x in reversed(range(right, len(a) // 4))
                             if a[4 * x:4 * x + 4] != b[4 * x:4 * x + 4]) + 1
        return left, top, right, bottom + 1

    def line(self, y):
        return self.data[y * self.stride:(y + 1) * self.stride]


class Tree:
    """The widgets of a panel, as assistive tools see them."""

    def __init__(self, pyatspi, process):
        self.atspi, self.process = pyatspi, process
        self.window = wait_for("the panel", self.find_window)

    def find_window(self):
        if self.process.poll() is not None:
            fail(f"the panel ended with {self.process.returncode}")
        for application in self.atspi.Registry.getDesktop(0):
            if application and application.name == "vnapanel" and application.childCount:
                return application.getChildAtIndex(0)
        return None

    def walk(self, node, depth=0, only=lambda node: True):
        if not only(node):
            return
        yield node
        if depth > 14 or node.getRoleName() == "table":
            return
        for i in range(node.childCount):
            child = node.getChildAtIndex(i)
            if child is not None:
                yield from self.walk(child, depth + 1, only)

    def find(self, role, name):
        for node in self.walk(self.window.getApplication()):
            if node.getRoleName() == role and node.name.startswith(name):
                return node
        return None

    def shows(self, node):
        return node.getState().contains(self.atspi.STATE_SHOWING)
