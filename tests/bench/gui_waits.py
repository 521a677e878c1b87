#!/usr/bin/python3
"""The waits a user sees in the desktop program, measured from outside.

On a private Xvfb display the program is driven with XTEST key presses and
watched through X DAMAGE: a wait ends with the last paint of the window before
it has stayed still for SETTLE seconds. Measured:
  start      exec of the program to the start page painted (and whether the
             main window was taken down again after it first showed)
  preview    F5 (build the whole page) to the preview painted, cold and warm
  localtest  Ctrl+T (Test Locally) to the served form painted, cold and warm
usage: tests/bench/gui_waits.py [--start-only] build/bin/tarnquill [runs]
"""
import os
import random
import re
import select
import shutil
import subprocess
import sys
import tempfile
import time

from Xlib import X, XK, display
from Xlib.ext import damage, xtest  # noqa: F401  (the extensions register themselves)

SETTLE = 0.35
TIMEOUT = 20.0
HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLE = os.path.join(HERE, "..", "..", "data", "samples", "sample_form.fms")


class Watch:
    """Top-level windows of the display, their maps, unmaps and paints."""

    def __init__(self, name):
        self.d = display.Display(name)
        self.root = self.d.screen().root
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self.damage = self.d.query_extension("DAMAGE")
        self.d.damage_query_version()
        self.tracked = {}  # window id -> damage object
        self.paints = []  # (time, window id)
        self.maps = []  # (time, window id)
        self.unmaps = []  # (time, window id)
        self.d.sync()

    def title(self, wid):
        try:
            name = self.d.create_resource_object("window", wid).get_full_property(
                self.d.intern_atom("_NET_WM_NAME"), X.AnyPropertyType)
            return name.value.decode("utf-8", "replace") if name else ""
        except Exception:
            return ""

    def pump(self, seconds):
        end = time.monotonic() + seconds
        while True:
            left = end - time.monotonic()
            if left <= 0:
                return
            if not self.d.pending_events():
                select.select([self.d.fileno()], [], [], min(left, 0.001))
            while self.d.pending_events():
                self.handle(self.d.next_event(), time.monotonic())

    def handle(self, e, now):
        if e.type == X.MapNotify:
            self.maps.append((now, e.window.id))
            if e.window.id not in self.tracked:
                self.tracked[e.window.id] = e.window.damage_create(damage.DamageReportNonEmpty)
        elif e.type == X.UnmapNotify:
            self.unmaps.append((now, e.window.id))
        elif e.type == X.DestroyNotify:
            self.tracked.pop(e.window.id, None)
        elif e.type == self.damage.first_event + damage.DamageNotifyCode:
            self.paints.append((now, e.drawable.id))
            self.d.damage_subtract(e.damage)

    def main_window(self, since):
        for t, wid in self.maps:
            if t >= since and self.title(wid).endswith("Tarnquill"):
                return wid
        return None

    def settled(self, since, windows=None):
        """Waits until nothing painted for SETTLE s; the time of the last paint after `since`."""
        deadline = since + TIMEOUT
        while time.monotonic() < deadline:
            self.pump(0.02)
            mine = [t for t, w in self.paints if t >= since and (windows is None or w in windows)]
            if mine and time.monotonic() - mine[-1] >= SETTLE:
                return mine[-1]
        raise SystemExit("no paint settled within %d s" % TIMEOUT)

    def page_shown(self, wid, since):
        """Waits until the lower left of `wid` shows a web page (a colour that is
        neither white nor the program's grey) and has settled; the last paint."""
        win = self.d.create_resource_object("window", wid)
        deadline = since + TIMEOUT
        while time.monotonic() < deadline:
            self.pump(0.002)
            geometry = win.get_geometry()
            pixel = win.get_image(40, geometry.height - 40, 1, 1, X.ZPixmap, 0xFFFFFFFF).data[:3]
            b, g, r = pixel[0], pixel[1], pixel[2]
            if max(r, g, b) - min(r, g, b) > 24:  # a colour of the page, not a grey
                return self.settled(since, {wid})
        raise SystemExit("no page shown within %d s" % TIMEOUT)

    def key(self, wid, name, *mods):
        self.d.set_input_focus(wid, X.RevertToParent, X.CurrentTime)
        codes = [self.d.keysym_to_keycode(XK.string_to_keysym(m)) for m in mods]
        code = self.d.keysym_to_keycode(XK.string_to_keysym(name))
        for c in codes:
            xtest.fake_input(self.d, X.KeyPress, c)
        t = time.monotonic()
        xtest.fake_input(self.d, X.KeyPress, code)
        xtest.fake_input(self.d, X.KeyRelease, code)
        for c in reversed(codes):
            xtest.fake_input(self.d, X.KeyRelease, c)
        self.d.sync()
        return t


def ms(seconds):
    return "%d ms" % round(seconds * 1000)


def main():
    args = [a for a in sys.argv[1:] if a != "--start-only"]
    start_only = len(args) < len(sys.argv) - 1
    program = os.path.realpath(args[0])
    runs = int(args[1]) if len(args) > 1 else 3
    scratch = tempfile.mkdtemp(prefix="tq-waits-")
    home = os.path.join(scratch, "home")
    data = os.path.join(scratch, "data")
    site = os.path.join(scratch, "site")
    for folder in (os.path.join(home, "Documents/tarnquill/forms"), data, site):
        os.makedirs(folder)
    with open(os.path.join(home, "Documents/tarnquill/forms/Tarnquill.stt"), "wb") as f:
        f.write(data.encode() + b"\r\n")
    project = os.path.join(scratch, "bench.fms")
    with open(SAMPLE, "rb") as f:
        text = f.read()
    with open(project, "wb") as f:
        f.write(re.sub(rb"\[Drive Folder Path=[^\]]*\]", b"[Drive Folder Path=" + site.encode() + b"]", text))

    name = ":%d" % random.randint(150, 250)
    xvfb = subprocess.Popen(["Xvfb", name, "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    env = dict(os.environ, DISPLAY=name, HOME=home, QT_QPA_PLATFORM="xcb",
               QTWEBENGINE_CHROMIUM_FLAGS="--disable-gpu")
    running = []
    try:
        time.sleep(1.0)
        w = Watch(name)

        # start to the start page painted, and no second showing of the window
        for i in range(runs):
            t0 = time.monotonic()
            p = subprocess.Popen([program], env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            running.append(p)
            while w.main_window(t0) is None:
                w.pump(0.005)
                if time.monotonic() - t0 > TIMEOUT:
                    raise SystemExit("no main window")
            main_id = w.main_window(t0)
            painted = w.settled(t0, {main_id})
            w.pump(1.0)  # a window taken down late would show here
            again = sum(1 for t, wid in w.unmaps if t >= t0 and wid == main_id)
            print("start, run %d: %s to the start page painted; taken down again %d times"
                  % (i + 1, ms(painted - t0), again))
            p.terminate()
            p.wait()
            running.remove(p)
            w.pump(0.3)  # the ended program's last events are read before the next run starts
        if start_only:
            return

        # one program for the build and the local test, cold then warm
        t0 = time.monotonic()
        p = subprocess.Popen([program, project], env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        running.append(p)
        while w.main_window(t0) is None:
            w.pump(0.005)
        main_id = w.main_window(t0)
        w.settled(t0)
        for i in range(runs):
            for f in os.listdir(site):
                os.remove(os.path.join(site, f))
            t = w.key(main_id, "F5")
            done = w.page_shown(main_id, t)
            print("preview, run %d (%s): %s from F5 to the preview painted"
                  % (i + 1, "cold" if i == 0 else "warm", ms(done - t)))
            w.settled(w.key(main_id, "x", "Alt_L"), {main_id})  # Exit: back to the final page
        for i in range(runs):
            t = w.key(main_id, "t", "Control_L")
            test_window = None
            while test_window is None:
                w.pump(0.002)
                test_window = next((wid for wid in w.tracked if "Test Locally" in w.title(wid)), None)
                if time.monotonic() - t > TIMEOUT:
                    raise SystemExit("no local test window")
            done = w.page_shown(test_window, t)
            print("localtest, run %d (%s): %s from Ctrl+T to the form painted"
                  % (i + 1, "cold" if i == 0 else "warm", ms(done - t)))
    finally:
        for p in running:
            p.terminate()
            p.wait()
        xvfb.terminate()
        xvfb.wait()
        shutil.rmtree(scratch, ignore_errors=True)


if __name__ == "__main__":
    main()
