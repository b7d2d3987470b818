"""The picture on a Wayland host: Tromelo through the host and through the scene, beside mpv."""

import os
import sys
import time

from player import Engine

SETTLED = 8  # seconds after the start: the controls are hidden, caches are full
SPAN = 10
# Who is compared, with what the environment says more.
WAYS = {
    "mpv": {},
    "Tromelo": {},
    "through the scene": {"TROMELO_PICTURE": "scene"},
}


def main_thread_wakes(player):
    """How often the main thread has gone to sleep, which is how often it was woken."""
    pid = player.process.pid
    with open(f"/proc/{pid}/task/{pid}/status", encoding="ascii") as status:
        lines = dict(line.split(":", 1) for line in status)
    return int(lines["voluntary_ctxt_switches"])


def measure(bench, way, what, fullscreen, extra):
    """Without a keyboard no window is active, and the controls hide in full screen only."""
    name = "mpv" if way == "mpv" else "Tromelo"
    with bench.start(name, bench.clip, extra=WAYS[way] | extra) as player:
        engine = Engine(bench.ipc)
        if fullscreen:
            engine.command("set_property", "fullscreen", True)
        player.wait_until_age(SETTLED)
        drops, wakes = engine.drops(), main_thread_wakes(player)
        processor = player.processor_seconds()
        time.sleep(SPAN)
        player.check()
        processor = player.processor_seconds() - processor
        wakes = main_thread_wakes(player) - wakes
        drops = engine.drops() - drops
        add = bench.table.add
        add(way, f"{SPAN} s of playing, {what}: processor, s", processor, 2)
        add(way, "  frames dropped, " + what, drops)
        add(way, "  wakes of the main thread a second, " + what, wakes / SPAN, 1)
        add(way, f"  resident memory after {SETTLED + SPAN} s, MB, " + what, player.memory()[0])


def compare(bench):
    for run in range(bench.options.runs):
        for way in WAYS:
            print(f"bench: host {run + 1}/{bench.options.runs} {way}", file=sys.stderr)
            measure(bench, way, "full screen, controls hidden", True, {})
            measure(bench, way, "under glass", False, {"TROMELO_GLASS": "glass"})


def is_here():
    return "WAYLAND_DISPLAY" in os.environ
