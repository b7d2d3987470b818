"""The picture on a Wayland host: Tromelo through the host and through the scene, beside mpv."""

import json
import os
import subprocess
import sys
import time

from player import LIMIT, Engine

SETTLED = 8  # seconds after the start: the controls are hidden, caches are full
SPAN = 10
# Who is compared, with what the environment says more.
WAYS = {
    "mpv": {},
    "Tromelo": {},
    "through the scene": {"TROMELO_PICTURE": "scene"},
}


# On labwc, whose screen has one size.
GREEN_LINE = "0,280 1280x1"  # where the clip's green bar is in a window in the middle


def shows_green():
    """As faint as in a window that fades in."""
    grim = ["grim", "-t", "ppm", "-g", GREEN_LINE, "-"]
    shot = subprocess.run(grim, stdout=subprocess.PIPE, check=True).stdout
    pixels = shot.split(b"\n", 3)[3]
    return any(g - max(r, b) > 12 for r, g, b in zip(pixels[0::3], pixels[1::3], pixels[2::3]))


def start(bench, way, extra):
    name = "mpv" if way == "mpv" else "Tromelo"
    return bench.start(name, bench.clip, extra=WAYS[way] | extra)


def measure_start(bench, way):
    with start(bench, way, {}) as player:
        while not shows_green():
            player.check()
            if player.age > LIMIT:
                raise SystemExit(f"bench: {way} shows nothing")
        bench.table.add(way, "start to first video pixel, ms", player.age * 1000)


def main_thread_wakes(player):
    """How often the main thread has gone to sleep, which is how often it was woken."""
    pid = player.process.pid
    with open(f"/proc/{pid}/task/{pid}/status", encoding="ascii") as status:
        lines = dict(line.split(":", 1) for line in status)
    return int(lines["voluntary_ctxt_switches"])


def shown_frames(engine):
    return engine.get("estimated-frame-number") - engine.drops()


def always_shown(home):
    """A folder of settings with which the controls stay."""
    config = os.path.join(home, "shown")
    os.makedirs(os.path.join(config, "Tromelo"), exist_ok=True)
    with open(os.path.join(config, "Tromelo/defaults.json"), "w", encoding="utf-8") as file:
        json.dump({"playerSettings": {"autoHideDelay": 3600}}, file)
    return config


def measure(bench, way, what, fullscreen, extra):
    """In full screen the controls hide on any host, also where no window is active."""
    with start(bench, way, extra) as player:
        engine = Engine(bench.ipc)
        if fullscreen:
            engine.command("set_property", "fullscreen", True)
        player.wait_until_age(SETTLED)
        shown, drops = shown_frames(engine), engine.drops()
        wakes = main_thread_wakes(player)
        processor = player.processor_seconds()
        time.sleep(SPAN)
        player.check()
        processor = player.processor_seconds() - processor
        wakes = main_thread_wakes(player) - wakes
        shown, drops = shown_frames(engine) - shown, engine.drops() - drops
        add = bench.table.add
        add(way, f"{SPAN} s of playing, {what}: processor, s", processor, 2)
        add(way, "  for a frame that was shown, ms, " + what, processor * 1000 / max(shown, 1), 2)
        add(way, "  frames dropped, " + what, drops)
        add(way, "  wakes of the main thread a second, " + what, wakes / SPAN, 1)
        add(way, f"  resident memory after {SETTLED + SPAN} s, MB, " + what, player.memory()[0])


def compare(bench):
    parts = bench.options.parts
    starts = "start" in parts and os.environ.get("XDG_CURRENT_DESKTOP") == "labwc"
    if starts:
        for way in WAYS:
            measure_start(bench, way)  # fills the caches
        bench.table.rows.clear()
    for run in range(bench.options.runs):
        for way in WAYS:
            print(f"bench: host {run + 1}/{bench.options.runs} {way}", file=sys.stderr)
            if starts:
                measure_start(bench, way)
            if "play" in parts:
                measure(bench, way, "full screen, controls hidden", True, {})
                shown = {"TROMELO_GLASS": "glass", "XDG_CONFIG_HOME": always_shown(bench.home)}
                measure(bench, way, "under glass", False, shown)


def is_here():
    return "WAYLAND_DISPLAY" in os.environ
