"""Tromelo next to other players, on the display that this runs on. See bench/run."""

import argparse
import os
import subprocess
import sys
import tempfile
import time

import host
import pictures
import recents
from player import LIMIT, Engine, Player, clean_environment
from screen import Screen
from table import Table

CLIP_SIZE = (640, 360)
SETTLED = 8  # seconds after the start: the controls are hidden, caches are full
SPAN = 10  # seconds that processor time and repaints are counted in
POLL = 0.002
SCRUB = 5  # seconds of dragging the position
POINTER_RATE = 200  # moves a second, a quick mouse
BAR_MIDDLE = 60  # points above the window's bottom edge
SLIDER_MIDDLE = 41
ROW = (50, 200, 500)  # films
PAUSE = 0.5  # seconds, in which a window goes
QUIET = 1  # seconds in which a window that is complete draws nothing
# Who is compared where mpv has nothing of the kind.
OTHERS = {"library": ("celluloid", "smplayer"), "pointer": (), "scrub": (), "pictures": ()}
# Parts that are programs of their own, each started with the sample.
PROGRAMS = {
    "events": "bench_drain_events",
    "queue": "bench_queue",
    "settings": "bench_drag_settings",
    "films": "bench_remembered_films",
}
MPV = (
    "mpv --no-config --osc=no --vo=gpu-next --gpu-api=vulkan --gpu-sw=yes --really-quiet"
).split()


def is_green(pixel):
    """As a bar of the clip is, and neither the desktop nor the library."""
    return pixel[1] - max(pixel[0], pixel[2]) > 12


class Bench:
    def __init__(self, options, home):
        self.options = options
        self.home = home
        self.program = os.path.join(options.build, "src/app/tromelo")
        self.screen = None if host.is_here() else Screen()
        self.table = Table()
        self.log = open(os.path.join(home, "log"), "wb")
        self.clip = self._long_clip()

    def _long_clip(self):
        """Long enough for a span without an end in it, and silent: sound is not compared."""
        clip = os.path.join(self.home, "clip.mp4")
        subprocess.run(
            ["ffmpeg", "-loglevel", "error", "-stream_loop", "5", "-i", self.options.sample]
            + ["-map", "0:v", "-c", "copy", clip],
            check=True,
            stdin=subprocess.DEVNULL,
        )
        return clip

    def start(self, name, *files, home=None, extra=None):
        environment = clean_environment(home or self.home) | (extra or {})
        self.ipc = os.path.join(self.home, "ipc")
        if os.path.exists(self.ipc):
            os.unlink(self.ipc)
        if name == "mpv":
            command = MPV + [f"--input-ipc-server={self.ipc}"]
        elif name == "Tromelo":
            command = [self.program]
            environment["TROMELO_IPC"] = self.ipc
        else:
            command = [name]
        return Player([*command, *files], environment, self.log)

    def milliseconds_until(self, player, matches):
        """Looks at the clip's green bar, which is in the same place in either player."""
        x = (self.screen.width - CLIP_SIZE[0]) // 2 + 140
        y = (self.screen.height - CLIP_SIZE[1]) // 2 + 100
        while not all(map(matches, self.screen.row(x, y, 60))):
            player.check()
            if player.age > LIMIT:
                raise SystemExit(f"bench: {player.process.args[0]} shows nothing")
            time.sleep(POLL)
        return player.age * 1000

    def wait_until_quiet(self):
        """Until nothing was drawn for a second, or for as long as that may take."""
        for _ in range(SPAN):
            self.screen.updates()
            time.sleep(1)
            if not self.screen.updates():
                return

    def measure_start(self, name):
        with self.start(name, self.clip) as player:
            shown = self.milliseconds_until(player, is_green)
            processor = player.processor_seconds()
        self.table.add(name, "start to first video pixel, ms", shown)
        self.table.add(name, "  processor time until then, ms", processor * 1000)

    def measure_play(self, name):
        with self.start(name, self.clip) as player:
            self.milliseconds_until(player, is_green)
            engine = Engine(self.ipc)
            player.wait_until_age(SETTLED)
            resident, proportional = player.memory()
            drops, position = engine.drops(), engine.get("time-pos")
            self.screen.updates()
            processor = self.processor_over_span(player)
            updates = self.screen.updates()
            drops, position = engine.drops() - drops, engine.get("time-pos") - position
            add = self.table.add
            add(name, f"{SPAN} s of {CLIP_SIZE[0]}x{CLIP_SIZE[1]}: processor, s", processor, 2)
            add(name, "  frames dropped", drops)
            add(name, "  seconds played", position, 2)
            add(name, "  screen updates", updates)
            add(name, f"resident memory after {SETTLED} s, MB", resident)
            add(name, "  proportional, MB", proportional)
            engine.command("set_property", "pause", True)
            self.measure_idle(name, player, "paused")

    def measure_pointer(self, name):
        """What the controls cost over a playing video, and what a quick pointer costs beyond."""
        with self.start(name, self.clip) as player:
            self.milliseconds_until(player, is_green)
            engine = Engine(self.ipc)
            player.wait_until_age(SETTLED)
            hidden = self.processor_over_span(player)
            self.pointer_over_bar()
            shown = self.processor_over_span(player)
            drops = engine.drops()
            moving = self.processor_over_span(player, self.keep_pointer_moving)
            drops = engine.drops() - drops
        self.screen.move_pointer(self.screen.width - 1, self.screen.height - 1)
        share = 100 / SPAN
        self.table.add(name, "playing, controls hidden: processor, s", hidden, 2)
        self.table.add(name, "  controls shown, s", shown, 2)
        self.table.add(name, f"  pointer moving {POINTER_RATE} times a second, s", moving, 2)
        self.table.add(name, "  for the moves alone, % of a core", (moving - shown) * share, 1)
        self.table.add(name, "  frames dropped meanwhile", drops)

    def pointer_over_bar(self):
        """Where the controls stay for as long as the pointer does."""
        self.screen.move_pointer(
            self.screen.width // 2, (self.screen.height + CLIP_SIZE[1]) // 2 - BAR_MIDDLE
        )

    def keep_pointer_moving(self):
        """To and fro over the video and the controls."""
        start = time.monotonic()
        left, top = ((self.screen.width, self.screen.height)[i] // 2 for i in (0, 1))
        for step in range(SPAN * POINTER_RATE):
            across, down = abs(step % 400 - 200), abs(step % 140 - 70)
            self.screen.move_pointer(left - 100 + across, top + 100 + down)
            time.sleep(max(0, start + (step + 1) / POINTER_RATE - time.monotonic()))

    def measure_scrub(self, name):
        """A drag of the position's knob, until the engine stands where it was let go."""
        with self.start(name, self.clip) as player:
            self.milliseconds_until(player, is_green)
            engine = Engine(self.ipc)
            player.wait_until_age(SETTLED)
            duration = engine.get("duration")
            engine.command("set_property", "pause", True)
            self.point_at(0.2)
            time.sleep(1)
            engine.get("time-pos")
            seeks = engine.seeks
            self.screen.hold_button(True)
            start = time.monotonic()
            for step in range(SCRUB * POINTER_RATE):
                self.point_at(0.2 + 0.6 * step / (SCRUB * POINTER_RATE))
                time.sleep(max(0, start + (step + 1) / POINTER_RATE - time.monotonic()))
            engine.get("time-pos")
            sought = engine.seeks - seeks
            if not sought:
                raise SystemExit("bench: the drag of the position reached nobody")
            self.screen.hold_button(False)
            released = time.monotonic()
            while abs(engine.get("time-pos") - 0.8 * duration) > 0.02 * duration or engine.get("seeking"):
                player.check()
                if time.monotonic() - released > LIMIT:
                    raise SystemExit("bench: the position doesn't follow the drag")
            settled = time.monotonic() - released
        self.screen.move_pointer(self.screen.width - 1, self.screen.height - 1)
        self.table.add(name, f"{SCRUB} s of dragging the position: seeks a second", sought / SCRUB, 1)
        self.table.add(name, "  from letting go to the last picture, ms", settled * 1000)

    def point_at(self, part):
        """Along the slider of the control bar, which is as wide as the window lets it."""
        reach = (CLIP_SIZE[0] - 40) // 2 - 18 - 66 - 8
        x = self.screen.width // 2 + round((2 * part - 1) * reach)
        self.screen.move_pointer(x, (self.screen.height + CLIP_SIZE[1]) // 2 - SLIDER_MIDDLE)

    def measure_pictures(self, _):
        pictures.measure(self, SPAN)

    def measure_row(self, name):
        """Films one after the other, each until its first picture: what stays in memory."""
        alone = ["--idle=yes"] if name == "mpv" else []
        with self.start(name, *alone) as player:
            engine = Engine(self.ipc)
            resident = {}
            for film in range(1, ROW[-1] + 1):
                engine.command("loadfile", self.options.sample)
                engine.wait_for("playback-restart")
                engine.command("stop")
                engine.wait_for("idle")
                time.sleep(PAUSE)
                if film in ROW:
                    resident[film] = player.memory()[0]
                    self.table.add(name, f"resident memory after {film} films, MB", resident[film])
        grown = 100 * (resident[ROW[-1]] / resident[ROW[0]] - 1)
        self.table.add(name, f"  from {ROW[0]} to {ROW[-1]} films, %", grown, 1)

    def measure_library(self, name):
        with self.start(name) as player:
            complete = self.milliseconds_until_complete(player)
            self.table.add(name, "start to complete window, ms", complete)
            if name == "Tromelo":
                player.wait_until_age(SETTLED)
                self.table.add(name, "library: resident memory, MB", player.memory()[0])
                self.measure_idle(name, player, "library")
        self.measure_slow_library(name)

    def measure_slow_library(self, name):
        """With recent files on a share that takes its time."""
        home, slow = (os.path.join(self.home, part) for part in ("recents", "slow/"))
        recents.fill(home, slow)
        library = os.path.join(self.options.build, "bench/libslow_directory.so")
        extra = {"LD_PRELOAD": library, "SLOW_DIRECTORY": slow}
        with self.start(name, home=home, extra=extra) as player:
            complete = self.milliseconds_until_complete(player)
            self.table.add(name, "  with 12 slow recent files, ms", complete)

    def milliseconds_until_complete(self, player):
        """Until the last thing that a window draws before it is quiet."""
        last = 0
        self.screen.updates()
        while not last or player.age - last < QUIET:
            player.check()
            if self.screen.updates() and self.shows_a_window():
                last = player.age
            if player.age > LIMIT:
                raise SystemExit(f"bench: {player.process.args[0]} is never complete")
            time.sleep(POLL)
        return last * 1000

    def shows_a_window(self):
        grey = (Screen.GREY & 0xFF,) * 3
        row = self.screen.row(0, self.screen.height // 3, self.screen.width)
        return any(pixel != grey for pixel in row)

    def measure_idle(self, name, player, what):
        self.wait_until_quiet()
        processor = self.processor_over_span(player)
        share = 100 * processor / SPAN
        self.table.add(name, f"{what}: processor, % of a core", share, 2)
        self.table.add(name, f"{what}: screen updates in {SPAN} s", self.screen.updates())

    def processor_over_span(self, player, meanwhile=lambda: time.sleep(SPAN)):
        before = player.processor_seconds()
        meanwhile()
        player.check()
        return player.processor_seconds() - before

    def compare(self, part):
        measure = getattr(self, f"measure_{part}")
        names = (*OTHERS.get(part, ("mpv",)), "Tromelo")
        for run in range(self.options.runs):
            for name in names:
                print(f"bench: {part} {run + 1}/{self.options.runs} {name}", file=sys.stderr)
                measure(name)

    def warm_up(self):
        """Programs, shaders and fonts come from the caches in each run that counts."""
        for name in ("mpv", "Tromelo"):
            with self.start(name, self.clip) as player:
                self.milliseconds_until(player, is_green)

    def run(self):
        if host.is_here():
            host.compare(self)
            self.table.print()
            return
        comparisons = [part for part in self.options.parts if part not in PROGRAMS]
        if comparisons:
            self.warm_up()
        for part in comparisons:
            self.compare(part)
        if comparisons:
            self.table.print()
        for part in self.options.parts:
            if program := PROGRAMS.get(part):
                path = os.path.join(self.options.build, "bench", program)
                subprocess.run([path, self.options.sample], check=True)


def main():
    parts = ("start", "play", "pointer", "scrub", "pictures", "library", *PROGRAMS)
    lengthy = ("row",)
    parser = argparse.ArgumentParser(prog="bench/run")
    parser.add_argument("--build", required=True, help=argparse.SUPPRESS)
    parser.add_argument("--sample", required=True, help=argparse.SUPPRESS)
    parser.add_argument("--runs", type=int, default=3, help="how many of each; the best counts")
    parser.add_argument("parts", nargs="*", metavar="PART", help=", ".join(parts + lengthy))
    options = parser.parse_args()
    unknown = set(options.parts) - set(parts + lengthy)
    if unknown or options.runs < 1:
        parser.error(f"there is no part {unknown.pop()}" if unknown else "--runs wants 1 or more")
    options.parts = options.parts or parts
    with tempfile.TemporaryDirectory(prefix="tromelo-bench.") as home:
        Bench(options, home).run()


if __name__ == "__main__":
    main()
