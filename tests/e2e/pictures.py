# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Pictures and a file chooser for the scenarios, and a folder of pictures that the app finds."""

import os
import pathlib
import struct
import threading
import zlib

import kindora_e2e
from gi.repository import Gio, GLib


def write_png(path, colour, width=64, height=48):
    """Writes a picture of one colour (red, green, blue; 0 to 255)."""

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    rows = (b"\0" + bytes(colour) * width) * height
    path = pathlib.Path(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
        + chunk(b"IDAT", zlib.compress(rows))
        + chunk(b"IEND", b"")
    )
    return path


def environment_with_pictures(folder):
    """What an app is started with that is to find its pictures in that folder."""
    settings = folder.parent / "settings"
    settings.mkdir(parents=True, exist_ok=True)
    (settings / "user-dirs.dirs").write_text(f'XDG_PICTURES_DIR="{folder}"\n', encoding="utf-8")
    return {"XDG_CONFIG_HOME": str(settings)}


def set_age(path, hours):
    """Makes a file as old as that many hours before a moment long ago."""
    moment = 1_000_000_000 - 3600 * hours
    os.utime(path, (moment, moment))


class FileChooser:
    """The desktop's file chooser on the session bus, as far as the app asks it. It answers every
    question at once with the path, or as a user who chose nothing."""

    _DESCRIPTION = """
    <node><interface name='org.freedesktop.portal.FileChooser'>
      <method name='OpenFile'>
        <arg type='s' direction='in'/><arg type='s' direction='in'/>
        <arg type='a{sv}' direction='in'/><arg type='o' direction='out'/>
      </method>
    </interface></node>"""

    def __init__(self, path=None):
        self._path = path
        self.asked = []
        self._ready = threading.Event()
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._thread.start()
        kindora_e2e.wait_until(self._ready.is_set, "the file chooser is on the bus")

    def _serve(self):
        self._context.push_thread_default()
        address = os.environ["DBUS_SESSION_BUS_ADDRESS"]
        flags = (
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        )
        self._bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        interface = Gio.DBusNodeInfo.new_for_xml(self._DESCRIPTION).interfaces[0]
        self._bus.register_object(
            "/org/freedesktop/portal/desktop", interface, self._open_file, None, None
        )
        Gio.bus_own_name_on_connection(
            self._bus,
            "org.freedesktop.portal.Desktop",
            Gio.BusNameOwnerFlags.NONE,
            lambda *_: self._ready.set(),
            None,
        )
        self._loop.run()
        self._bus.close_sync(None)
        self._context.pop_thread_default()

    def _open_file(self, _bus, sender, _path, _interface, _method, arguments, invocation):
        _parent, title, options = arguments.unpack()
        self.asked.append((title, options))
        request = "/org/freedesktop/portal/desktop/request/{}/{}".format(
            sender[1:].replace(".", "_"), options["handle_token"]
        )
        invocation.return_value(GLib.Variant("(o)", (request,)))
        chosen = {}
        if self._path is not None:
            chosen["uris"] = GLib.Variant("as", [pathlib.Path(self._path).as_uri()])
        answer = GLib.Variant("(ua{sv})", (0 if self._path is not None else 1, chosen))
        self._bus.emit_signal(
            sender, request, "org.freedesktop.portal.Request", "Response", answer
        )

    def close(self):
        self._context.invoke_full(GLib.PRIORITY_DEFAULT, self._loop.quit)
        self._thread.join(30)
