# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Runs the real app on a private display and finds things in it as a person finds them.

A scenario file is a plain unittest file, run as `python3 test_something.py PATH-OF-THE-APP`:

    import kindora_e2e

    class List(kindora_e2e.AppTest):
        def test_opens_with_the_challenges(self):
            self.app.wait_for("Bob the Astronaut")
            self.app.click(self.app.wait_for("Badges", role="page tab"))

    if __name__ == "__main__":
        kindora_e2e.main()

Every test gets an app of its own, started before it and closed after it. The display, the message
bus and the accessibility bus are started once for the file, and nothing of them is left behind.
Waiting always means looking again and again until a deadline; no sleep stands for an expectation.
"""

import atexit
import contextlib
import ctypes
import os
import pathlib
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest
import warnings
import zlib

import gi
from Xlib import X, XK
from Xlib.display import Display
from Xlib.ext import xtest
from Xlib.protocol.event import ClientMessage

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

WIDTH = 390
HEIGHT = 844
# Long, for machines that have much else to do: only a failure ever waits that long.
DEADLINE = 30.0
START_DEADLINE = 90.0
PAUSE = 0.02

_BUS_LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
_PR_SET_PDEATHSIG = 1
_PR_SET_CHILD_SUBREAPER = 36
_libc = ctypes.CDLL(None, use_errno=True)


def wait_until(condition, what, deadline=DEADLINE):
    """Asks until the answer is true, and returns it; a passed deadline is an AssertionError.

    `what` is a text, or a function that makes one when it is needed.
    """
    end = time.monotonic() + deadline
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() >= end:
            text = what() if callable(what) else what
            raise AssertionError(f"not within {deadline:g} s: {text}")
        time.sleep(PAUSE)


def _bound_to_this_process():
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


def _start(arguments, environment, **options):
    return subprocess.Popen(
        arguments,
        env=environment,
        stdin=subprocess.DEVNULL,
        start_new_session=True,
        preexec_fn=_bound_to_this_process,
        **options,
    )


def _end(process, patience=5.0):
    """Ends a process that leads a group, and everything else in that group."""
    for number in (signal.SIGTERM, signal.SIGKILL):
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, number)
        with contextlib.suppress(subprocess.TimeoutExpired):
            process.wait(patience)
            break
    with contextlib.suppress(ProcessLookupError):
        os.killpg(process.pid, signal.SIGKILL)


class Phone:
    """A screen of a phone's size, a message bus and an accessibility bus, for this process alone."""

    _the_phone = None

    @classmethod
    def get(cls):
        if cls._the_phone is None:
            cls._the_phone = cls()
        return cls._the_phone

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kindora-e2e-"))
        self._processes = []
        self.display = None
        atexit.register(self._close)
        # What the buses start in turn becomes a child of ours when its parent goes.
        _libc.prctl(_PR_SET_CHILD_SUBREAPER, 1)
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700)
        self._log = open(self.folder / "helpers.log", "wb")

        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.folder),
            "XDG_RUNTIME_DIR": str(runtime),
            "KINDORA_LOOKS": os.environ.get("KINDORA_LOOKS", "light"),
            "LC_ALL": "C.UTF-8",
            "TZ": "UTC",
        }
        number = self._start_and_read(
            ["Xvfb", "-displayfd", "1", "-screen", "0", f"{WIDTH}x{HEIGHT}x24"]
            + ["-nolisten", "tcp", "-noreset", "-fbdir", str(self.folder)]
        )
        self.environment["DISPLAY"] = f":{number}"
        address = self._start_and_read(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"]
        )
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        launcher = next(path for path in _BUS_LAUNCHERS if os.path.exists(path))
        self._spawn([launcher, "--launch-immediately"])

        # This process looks at the app through the same display and buses.
        for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR"):
            os.environ[name] = self.environment[name]
        self.display = Display(self.environment["DISPLAY"])
        bus_name = self.display.intern_atom("AT_SPI_BUS")
        root = self.display.screen().root
        wait_until(
            lambda: root.get_full_property(bus_name, X.AnyPropertyType),
            "the accessibility bus is there",
            START_DEADLINE,
        )
        Atspi.init()
        Atspi.set_timeout(3000, 5000)

    def _spawn(self, arguments, **options):
        options.setdefault("stdout", self._log)
        process = _start(arguments, self.environment, stderr=self._log, **options)
        self._processes.append(process)
        return process

    def _start_and_read(self, arguments):
        process = self._spawn(arguments, stdout=subprocess.PIPE)
        line = process.stdout.readline().decode().strip()
        if not line:
            raise RuntimeError(f"{arguments[0]} did not start, see {self._log.name}")
        return line

    def _close(self):
        if self.display is not None:
            self.display.close()
        for process in reversed(self._processes):
            _end(process)
            if process.stdout:
                process.stdout.close()
        # The rest are orphans of the buses that have come to us.
        children = pathlib.Path(f"/proc/self/task/{os.getpid()}/children")
        end = time.monotonic() + 5.0
        while time.monotonic() < end:
            orphans = [int(text) for text in children.read_text(encoding="ascii").split()]
            if not orphans:
                break
            for orphan in orphans:
                with contextlib.suppress(ProcessLookupError):
                    os.kill(orphan, signal.SIGTERM)
                with contextlib.suppress(ChildProcessError):
                    os.waitpid(orphan, os.WNOHANG)
            time.sleep(PAUSE)
        self._log.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def pixels(self):
        """The whole screen as rows of RGB bytes, read from the display's own memory."""
        self.display.sync()
        data = (self.folder / "Xvfb_screen0").read_bytes()
        header = struct.unpack(">25I", data[:100])
        (size, width, height, order, stride, colours) = (
            header[0], header[4], header[5], header[7], header[12], header[19],
        )
        if header[11] != 32 or order != 0:
            raise RuntimeError("the display keeps its pixels in an unknown order")
        start = size + 12 * colours
        rows = []
        for y in range(height):
            row = data[start + y * stride : start + y * stride + 4 * width]
            rgb = bytearray(3 * width)
            rgb[0::3], rgb[1::3], rgb[2::3] = row[2::4], row[1::4], row[0::4]
            rows.append(bytes(rgb))
        return rows

    # Pointer and keys.

    def move_pointer(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=round(x), y=round(y))
        self.display.sync()

    def button(self, down, number=1):
        xtest.fake_input(self.display, X.ButtonPress if down else X.ButtonRelease, number)
        self.display.sync()

    def _key(self, code, down):
        xtest.fake_input(self.display, X.KeyPress if down else X.KeyRelease, code)
        self.display.sync()

    def press_key(self, symbol, modifiers=()):
        code = self.display.keysym_to_keycode(symbol)
        if code == 0:
            raise ValueError(f"the keyboard has no key for the symbol {symbol:#x}")
        codes = [self.display.keysym_to_keycode(modifier) for modifier in modifiers]
        shift = self.display.keysym_to_keycode(XK.XK_Shift_L)
        if self.display.keycode_to_keysym(code, 0) != symbol and shift not in codes:
            codes.append(shift)
        for modifier in codes:
            self._key(modifier, True)
        self._key(code, True)
        self._key(code, False)
        for modifier in reversed(codes):
            self._key(modifier, False)


class Node:
    """One thing in the accessibility tree. It stays usable after the thing has gone; then it has an
    empty name and shows nothing."""

    def __init__(self, accessible):
        self._accessible = accessible

    def _ask(self, question, otherwise):
        try:
            return question()
        except GLib.Error:
            return otherwise

    @property
    def name(self):
        return self._ask(self._accessible.get_name, "") or ""

    @property
    def description(self):
        return self._ask(self._accessible.get_description, "") or ""

    @property
    def role(self):
        """The role's name in lower case with spaces, for instance "push button"."""
        return self._ask(self._accessible.get_role_name, "invalid")

    def has(self, state):
        """Whether a state holds, for instance "showing", "checked", "focused", "enabled"."""
        wanted = getattr(Atspi.StateType, state.upper())
        return self._ask(lambda: self._accessible.get_state_set().contains(wanted), False)

    @property
    def showing(self):
        return self.has("showing") and self.has("visible")

    @property
    def extents(self):
        """(x, y, width, height) on the screen."""
        box = self._ask(lambda: self._accessible.get_extents(Atspi.CoordType.SCREEN), None)
        return (box.x, box.y, box.width, box.height) if box else (0, 0, 0, 0)

    @property
    def centre(self):
        x, y, width, height = self.extents
        return (x + width / 2, y + height / 2)

    @property
    def children(self):
        count = self._ask(self._accessible.get_child_count, 0)
        nodes = []
        for index in range(count):
            child = self._ask(lambda at=index: self._accessible.get_child_at_index(at), None)
            if child is not None:
                nodes.append(Node(child))
        return nodes

    @property
    def text(self):
        """What stands in a text field."""
        return self._ask(
            lambda: Atspi.Text.get_text(
                self._accessible, 0, Atspi.Text.get_character_count(self._accessible)
            ),
            "",
        )

    @property
    def actions(self):
        count = self._ask(lambda: Atspi.Action.get_n_actions(self._accessible), 0)
        with warnings.catch_warnings():
            # The bindings take the function for an older one of nearly the same name.
            warnings.simplefilter("ignore", DeprecationWarning)
            return [
                self._ask(lambda at=index: Atspi.Action.get_action_name(self._accessible, at), "")
                for index in range(count)
            ]

    def do(self, action):
        """Does what an assistive tool does with a thing, for instance "Press"."""
        index = self.actions.index(action)
        if not Atspi.Action.do_action(self._accessible, index):
            raise AssertionError(f"{self} refuses the action {action}")

    def walk(self):
        """This thing and all below it, in the order of the tree, which is not that of the places."""
        yield self
        for child in self.children:
            yield from child.walk()

    def __str__(self):
        return f"{self.role} {self.name!r} at {self.extents}"


class App:
    """The running app."""

    def __init__(self, path, environment=None):
        self._phone = Phone.get()
        self._number = 0
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="home-", dir=self._phone.folder))
        self._standard_output = self.home.with_name(self.home.name + ".out")
        self._standard_error = self.home.with_name(self.home.name + ".err")
        # The sanitizers' settings pass; nothing else of this machine does.
        kept = {name: text for name, text in os.environ.items() if name.endswith("SAN_OPTIONS")}
        kept.update(self._phone.environment)
        kept.update(
            HOME=str(self.home),
            QT_QPA_PLATFORM="xcb",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
        )
        if "QSG_RENDER_LOOP" in os.environ:
            kept["QSG_RENDER_LOOP"] = os.environ["QSG_RENDER_LOOP"]
        kept.update(environment or {})
        with open(self._standard_output, "wb") as out, open(self._standard_error, "wb") as err:
            self.process = _start([str(path)], kept, stdout=out, stderr=err)
        try:
            self.window = self._wait_alive(self._find_window, "the app opens a window")
            self._root = self._wait_alive(self._find_root, "the app joins the accessibility tree")
        except BaseException:
            _end(self.process)
            raise

    # Starting and ending.

    def _wait_alive(self, condition, what):
        def ask():
            if self.process.poll() is not None:
                raise AssertionError(
                    f"the app ended with {self.process.returncode}: {self.output()!r}"
                )
            return condition()

        return wait_until(ask, lambda: f"{what}; it said {self.output()!r}", START_DEADLINE)

    def _find_window(self):
        display = self._phone.display
        process_of = display.intern_atom("_NET_WM_PID")
        for window in display.screen().root.query_tree().children:
            with contextlib.suppress(Exception):  # a window may go while it is asked
                if window.get_attributes().map_state != X.IsViewable:
                    continue
                owner = window.get_full_property(process_of, X.AnyPropertyType)
                if owner and owner.value[0] == self.process.pid:
                    return window
        return None

    def _find_root(self):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for index in range(desktop.get_child_count()):
            with contextlib.suppress(GLib.Error):
                root = desktop.get_child_at_index(index)
                if root is None or root.get_process_id() != self.process.pid:
                    continue
                # Every answer is to be today's.
                root.set_cache_mask(Atspi.Cache.NONE)
                if root.get_child_count() > 0:
                    return Node(root)
        return None

    @property
    def running(self):
        return self.process.poll() is None

    def wait_for_end(self, deadline=DEADLINE):
        """Waits until the app has ended by itself, and returns its exit status."""
        wait_until(lambda: not self.running, "the app ends", deadline)
        return self.process.returncode

    def close(self):
        """Closes the window as its close button does, and returns the app's exit status."""
        if self.running:
            display = self._phone.display
            event = ClientMessage(
                window=self.window,
                client_type=display.intern_atom("WM_PROTOCOLS"),
                data=(32, [display.intern_atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]),
            )
            self.window.send_event(event)
            display.sync()
        try:
            return self.wait_for_end()
        finally:
            self.kill()

    def kill(self):
        _end(self.process)

    def left_behind(self):
        """The files that are there because the app has run, but for those of the graphics driver,
        which keeps what it has compiled for every program of the machine."""
        files = (path.relative_to(self.home) for path in self.home.rglob("*") if path.is_file())
        return sorted(
            str(file)
            for file in files
            if not any(part.startswith("mesa_shader_cache") for part in file.parts)
        )

    def output(self):
        """All that the app has printed, on either stream."""
        return "".join(
            path.read_text(encoding="utf-8", errors="replace")
            for path in (self._standard_output, self._standard_error)
        )

    # Looking.

    def all_nodes(self):
        return list(self._root.walk())

    def find_all(self, name=None, role=None, showing=True):
        """Everything that matches, in the order of the tree. None matches anything."""
        return [
            node
            for node in self._root.walk()
            if (name is None or node.name == name)
            and (role is None or node.role == role)
            and (showing is None or node.showing == showing)
        ]

    def find(self, name=None, role=None, showing=True):
        """The first thing that matches now, or None."""
        return next(iter(self.find_all(name, role, showing)), None)

    def wait_for(self, name=None, role=None, showing=True, deadline=DEADLINE):
        """Waits until something matches, and returns it."""
        return wait_until(
            lambda: self.find(name, role, showing),
            lambda: f"there is {role or 'anything'} {name!r} in\n{self.tree()}{self._last_words()}",
            deadline,
        )

    def wait_gone(self, name=None, role=None, deadline=DEADLINE):
        """Waits until nothing that shows matches any more."""
        wait_until(
            lambda: self.running and self.find(name, role) is None,
            lambda: f"{role or 'anything'} {name!r} is gone from\n{self.tree()}{self._last_words()}",
            deadline,
        )

    def wait_still(self, node, deadline=DEADLINE):
        """Waits until a thing has stayed where it is for some frames, after an animation."""
        seen = []

        def settled():
            seen.append(node.extents)
            return len(seen) > 6 and len(set(seen[-6:])) == 1

        wait_until(settled, lambda: f"{node} comes to rest", deadline)
        return node

    def wait_settled(self):
        """Waits until everything has stayed where it is for some frames, after a page came in."""
        seen = []

        def settled():
            seen.append(tuple((node.name, *node.extents) for node in self.find_all()))
            return len(seen) > 6 and len(set(seen[-6:])) == 1

        wait_until(settled, lambda: f"everything comes to rest in\n{self.tree()}")

    def _last_words(self):
        return "" if self.running else f"\nthe app has ended: {self.output()!r}"

    def tree(self):
        """The accessibility tree as text, one thing a line; what does not show is marked."""
        lines = []

        def add(node, depth):
            mark = "" if node.showing else "  (not showing)"
            lines.append(f"{'  ' * depth}{node}{mark}")
            for child in node.children:
                add(child, depth + 1)

        add(self._root, 0)
        return "\n".join(lines)

    @property
    def title(self):
        return self.window.get_full_text_property(
            self._phone.display.intern_atom("_NET_WM_NAME"),
            self._phone.display.intern_atom("UTF8_STRING"),
        )

    def geometry(self):
        """(x, y, width, height) of the window."""
        place = self.window.get_geometry()
        return (place.x, place.y, place.width, place.height)

    # Touching. A place is a node (its centre is meant) or a pair of coordinates on the screen.

    @staticmethod
    def _point(place):
        return place.centre if isinstance(place, Node) else place

    def click(self, place):
        x, y = self._point(place)
        self._phone.move_pointer(x, y)
        self._phone.button(True)
        self._phone.button(False)

    def press(self, place):
        """Puts the finger down and leaves it there, until `release`."""
        self._phone.move_pointer(*self._point(place))
        self._phone.button(True)

    def move(self, place):
        self._phone.move_pointer(*self._point(place))

    def release(self):
        self._phone.button(False)

    def drag(self, places, step=8.0, pace=0.004):
        """Draws the finger along a line through all places, `pace` seconds for every `step`
        points: a finger moves in small steps, and gestures want to see them."""
        points = [self._point(place) for place in places]
        self.press(points[0])
        for (x0, y0), (x1, y1) in zip(points, points[1:]):
            length = ((x1 - x0) ** 2 + (y1 - y0) ** 2) ** 0.5
            count = max(1, round(length / step))
            for index in range(1, count + 1):
                part = index / count
                self.move((x0 + (x1 - x0) * part, y0 + (y1 - y0) * part))
                time.sleep(pace)
        self.release()

    def wheel(self, place, clicks):
        """Turns the wheel, down for positive numbers."""
        self.move(place)
        for _ in range(abs(clicks)):
            self._phone.button(True, 5 if clicks > 0 else 4)
            self._phone.button(False, 5 if clicks > 0 else 4)

    _MODIFIERS = {
        "ctrl": XK.XK_Control_L,
        "alt": XK.XK_Alt_L,
        "shift": XK.XK_Shift_L,
        "super": XK.XK_Super_L,
    }

    def key(self, combination):
        """Presses keys together, for instance "Escape", "alt+Left", "ctrl+shift+k"."""
        *modifiers, name = combination.split("+")
        symbol = XK.string_to_keysym(name)
        if symbol == X.NoSymbol:
            raise ValueError(f"no key is called {name}")
        self._phone.press_key(symbol, [self._MODIFIERS[word.lower()] for word in modifiers])

    def type(self, text):
        """Types text that a plain keyboard has keys for."""
        for character in text:
            self._phone.press_key(ord(character))

    def move_window(self, x, y):
        """Moves the window, as a hand on its title bar does."""
        self.window.configure(x=x, y=y)
        self._phone.display.sync()

    def shake_window(self, times=6, distance=40, pace=0.03):
        """Shakes the window to and fro, and puts it back."""
        x, y, _, _ = self.geometry()
        for index in range(times):
            self.move_window(x + (distance if index % 2 == 0 else 0), y)
            time.sleep(pace)
        self.move_window(x, y)

    def resize_window(self, width, height):
        self.window.configure(width=width, height=height)
        self._phone.display.sync()

    # Seeing.

    def pixel(self, x, y):
        """(red, green, blue) of one pixel on the screen, 0 to 255."""
        row = self._phone.pixels()[round(y)]
        return tuple(row[3 * round(x) : 3 * round(x) + 3])

    def screenshot(self, path):
        """Writes the screen to a PNG file."""
        rows = self._phone.pixels()

        def chunk(kind, data):
            body = kind + data
            return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

        header = struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
        packed = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
        pathlib.Path(path).parent.mkdir(parents=True, exist_ok=True)
        pathlib.Path(path).write_bytes(
            b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", header)
            + chunk(b"IDAT", packed)
            + chunk(b"IEND", b"")
        )


class AppTest(unittest.TestCase):
    """A test of one run of the app. After the test the app is closed as a person closes it, and must
    leave with status 0, having printed nothing."""

    app_path = None

    def start_app(self, environment=None):
        """Starts another app, which the test may close, kill or leave."""
        app = App(self.app_path, environment)
        self.addCleanup(app.kill)
        return app

    def setUp(self):
        self.app = self.start_app()

    def tearDown(self):
        status = self.app.close()
        self.assertEqual(self.app.output(), "", "the app is quiet")
        self.assertEqual(status, 0, "the app leaves in good order")


def main():
    """Runs the tests of the calling file against the app that the command line names."""
    if len(sys.argv) < 2:
        sys.exit(f"usage: {sys.argv[0]} PATH-OF-THE-APP [UNITTEST-ARGUMENT...]")
    AppTest.app_path = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main(verbosity=2)
