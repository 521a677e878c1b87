#!/usr/bin/python3
"""The waits a user sees in the desktop program, measured from outside.

On a private Xvfb display the program is driven with XTEST keys and clicks
and watched through X DAMAGE: a wait ends with the last paint of the window
(or of a part of it) before it has stayed still for SETTLE seconds. Measured:
  start         exec of the program to the start page painted (and whether the
                main window was taken down again after it first showed)
  preview       F5 (build the whole page) to the preview painted, cold and warm
  live preview  a key typed into the TITLE row of an edit page to its preview
                pane painted, with the 150 ms pause and without it
  localtest     Ctrl+T (Test Locally) to the served form painted, cold and warm
The load average of the machine is printed before and after: the figures say
little when other work keeps the cores busy.

One command, from the top of the work tree after a build:
    tests/bench/gui_waits.py build/bin/tarnquill
usage: tests/bench/gui_waits.py [--start-only] [--shots DIR] PROGRAM [RUNS]
  --start-only  measure the start alone
  --shots DIR   keep a PNG of the window after each measured wait
  RUNS          runs of each wait (3); the first preview and local test are cold
With TQ_TIMINGS=1 in the environment the program prints the steps of its waits
(milliseconds since the key) on standard error.
"""
import os
import random
import re
import select
import shutil
import subprocess
import sys
import tempfile
import struct
import time
import zlib

from Xlib import X, XK, display, error
from Xlib.ext import damage, xtest  # noqa: F401  (the extensions register themselves)

SETTLE = 0.35
# the pause of the live preview after the last key
LIVE_PAUSE = 0.150
# the Edit button of the fourth row (Cell Phone Number) of Page 1, in the
# window of 1280 x 800 that a first start makes
EDIT_BUTTON_OF_ROW_4 = (1218, 220)
# on its edit page: the end of the TITLE row, and the width of the preview pane
# at the right edge (what is painted there counts)
TITLE_ROW = (450, 73)
PANE_WIDTH = 260
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
        self.paints = []  # (time, window id, (x, y, width, height))
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
                self.tracked[e.window.id] = e.window.damage_create(damage.DamageReportRawRectangles)
        elif e.type == X.UnmapNotify:
            self.unmaps.append((now, e.window.id))
        elif e.type == X.DestroyNotify:
            self.tracked.pop(e.window.id, None)
        elif e.type == self.damage.first_event + damage.DamageNotifyCode:
            a = e.area
            self.paints.append((now, e.drawable.id, (a.x, a.y, a.width, a.height)))

    def main_window(self, since):
        for t, wid in self.maps:
            if t >= since and self.title(wid).endswith("Tarnquill"):
                return wid
        return None

    def settled(self, since, windows=None, region=None):
        """Waits until nothing painted for SETTLE s; the time of the last paint after `since`.
        With `region` (x, y, width, height) only paints that reach into it count."""
        deadline = since + TIMEOUT
        while time.monotonic() < deadline:
            self.pump(0.02)
            mine = [t for t, w, area in self.paints
                    if t >= since and (windows is None or w in windows) and (region is None or meets(area, region))]
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

    def click(self, wid, x, y):
        """A click of the left button at (x, y) of the window `wid`."""
        at = self.root.translate_coords(self.d.create_resource_object("window", wid), x, y)
        xtest.fake_input(self.d, X.MotionNotify, x=at.x, y=at.y)
        xtest.fake_input(self.d, X.ButtonPress, 1)
        xtest.fake_input(self.d, X.ButtonRelease, 1)
        self.d.sync()

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


def save_png(w, wid, path):
    """The window `wid` as it shows now, written as a PNG (for looking at what was measured)."""
    win = w.d.create_resource_object("window", wid)
    g = win.get_geometry()
    data = win.get_image(0, 0, g.width, g.height, X.ZPixmap, 0xFFFFFFFF).data
    rows = b"".join(b"\0" + bytes(c for i in range(0, g.width * 4, 4) for c in
                                  (data[y * g.width * 4 + i + 2], data[y * g.width * 4 + i + 1],
                                   data[y * g.width * 4 + i])) for y in range(g.height))

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", g.width, g.height, 8, 2, 0, 0, 0))
                + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def meets(a, b):
    """Whether the rectangles (x, y, width, height) a and b overlap."""
    return a[0] < b[0] + b[2] and b[0] < a[0] + a[2] and a[1] < b[1] + b[3] and b[1] < a[1] + a[3]


def ms(seconds):
    return "%d ms" % round(seconds * 1000)


def main():
    sys.stdout.reconfigure(line_buffering=True)
    args = sys.argv[1:]
    start_only = "--start-only" in args
    args = [a for a in args if a != "--start-only"]
    shots = None
    if "--shots" in args:
        at = args.index("--shots")
        shots = os.path.realpath(args[at + 1])
        os.makedirs(shots, exist_ok=True)
        del args[at:at + 2]
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

    print("load average before: %.2f %.2f %.2f" % os.getloadavg())
    name = ":%d" % random.randint(150, 250)
    xvfb = subprocess.Popen(["Xvfb", name, "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    env = dict(os.environ, DISPLAY=name, HOME=home, QT_QPA_PLATFORM="xcb",
               QTWEBENGINE_CHROMIUM_FLAGS="--disable-gpu")
    # with TQ_TIMINGS set the program tells where its waits go, on standard error
    said = None if "TQ_TIMINGS" in os.environ else subprocess.DEVNULL
    running = []
    try:
        time.sleep(1.0)
        w = Watch(name)

        # start to the start page painted, and no second showing of the window
        for i in range(runs):
            t0 = time.monotonic()
            p = subprocess.Popen([program], env=env, stdout=subprocess.DEVNULL, stderr=said)
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
        p = subprocess.Popen([program, project], env=env, stdout=subprocess.DEVNULL, stderr=said)
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
            if shots:
                save_png(w, main_id, os.path.join(shots, "preview-%d.png" % (i + 1)))
            w.settled(w.key(main_id, "x", "Alt_L"), {main_id})  # Exit: back to Page 1

        # the live preview of the edit page: a key typed into a row to the pane painted
        w.click(main_id, *EDIT_BUTTON_OF_ROW_4)
        w.pump(2.0)  # the edit page and the first showing of its pane
        w.click(main_id, *TITLE_ROW)
        w.pump(0.5)
        geometry = w.d.create_resource_object("window", main_id).get_geometry()
        pane = (geometry.width - PANE_WIDTH, 60, PANE_WIDTH, geometry.height - 60)
        if shots:
            save_png(w, main_id, os.path.join(shots, "edit-page.png"))
        for i in range(runs):
            t = w.key(main_id, "x")
            done = w.settled(t, {main_id}, pane)
            print("live preview, run %d: %s from a key to the pane painted (%s after the %d ms pause)"
                  % (i + 1, ms(done - t), ms(done - t - LIVE_PAUSE), round(LIVE_PAUSE * 1000)))
        if shots:
            save_png(w, main_id, os.path.join(shots, "edit-page-typed.png"))
        w.settled(w.key(main_id, "a", "Alt_L"), {main_id})  # Abort: nothing kept
        for i in range(runs):
            t = w.key(main_id, "t", "Control_L")
            done = None
            while done is None:
                w.pump(0.002)
                test_window = next((wid for wid in w.tracked if "Test Locally" in w.title(wid)), None)
                if time.monotonic() - t > TIMEOUT:
                    raise SystemExit("no local test window")
                if test_window is not None:
                    try:
                        done = w.page_shown(test_window, t)
                    except error.XError:
                        pass  # the window was made again: the new one is looked for
            print("localtest, run %d (%s): %s from Ctrl+T to the form painted"
                  % (i + 1, "cold" if i == 0 else "warm", ms(done - t)))
        print("load average after: %.2f %.2f %.2f" % os.getloadavg())
    finally:
        for p in running:
            p.terminate()
            try:
                p.wait(5)
            except subprocess.TimeoutExpired:
                p.kill()
                p.wait()
        xvfb.terminate()
        xvfb.wait()
        shutil.rmtree(scratch, ignore_errors=True)


if __name__ == "__main__":
    main()
