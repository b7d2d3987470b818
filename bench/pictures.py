"""Pictures along the slider: how soon they come, and what they cost the film that plays."""

import os
import random
import subprocess
import sys
import time

from player import Engine

LONG = 7200  # seconds
ROOM = (512, 288)  # pixels, as the slider asks for on a screen of twice the detail
FIRST = 20  # how many first pictures
MORE = 60
HOVERS = 10  # a second


def long_film(home):
    """Two hours in 1080p, with five seconds between key frames: a minute again and again."""
    minute, film = (os.path.join(home, name) for name in ("minute.mp4", "long.mp4"))
    ffmpeg = ["ffmpeg", "-nostdin", "-loglevel", "error"]
    source = ["-f", "lavfi", "-i", "testsrc2=size=1920x1080:rate=24:duration=60"]
    coded = "-c:v libx264 -preset veryfast -g 120 -keyint_min 120 -sc_threshold 0 -b:v 2M -pix_fmt yuv420p"
    subprocess.run([*ffmpeg, *source, *coded.split(), minute], check=True)
    again = ["-stream_loop", str(LONG // 60 - 1), "-i", minute, "-c", "copy", film]
    subprocess.run([*ffmpeg, *again], check=True)
    os.unlink(minute)
    return film


class Maker:
    """The process that makes pictures, asked as the player asks it."""

    def __init__(self, program):
        self.started = time.monotonic()
        self.process = subprocess.Popen(
            [program, "--pictures"], stdin=subprocess.PIPE, stdout=subprocess.PIPE
        )

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait()

    def picture(self, film, moment):
        """Waits for it."""
        width, height = ROOM
        self.process.stdin.write(f"1 {moment:.3f} {width} {height} {film}\n".encode())
        self.process.stdin.flush()
        head = self.process.stdout.readline().split()
        size = 4 * int(head[2]) * int(head[3]) if head else 0
        if not size or len(self.process.stdout.read(size)) != size:
            raise SystemExit(f"bench: there is no picture of {film} at {moment}")


def percentile(times, part):
    return sorted(times)[min(len(times) - 1, int(part * len(times)))]


def measure_times(bench, what, film, duration):
    """From just before the process is made, and of a process that has the film open."""
    firsts, others = [], []
    for _ in range(FIRST):
        with Maker(bench.program) as maker:
            maker.picture(film, random.uniform(0, duration))
            firsts.append(time.monotonic() - maker.started)
    with Maker(bench.program) as maker:
        maker.picture(film, 0)
        for _ in range(MORE):
            before = time.monotonic()
            maker.picture(film, random.uniform(0, duration))
            others.append(time.monotonic() - before)
    for name, times in (("first", firsts), ("other", others)):
        for part in (0.5, 0.95):
            row = f"{what}: {name} picture, {100 * part:.0f} % within ms"
            bench.table.add("Tromelo", row, 1000 * percentile(times, part))


def processor_of_children(player):
    """Of the processes that it has started and that run."""
    pid, seconds = player.process.pid, 0
    with open(f"/proc/{pid}/task/{pid}/children", encoding="ascii") as children:
        for child in children.read().split():
            with open(f"/proc/{child}/stat", encoding="ascii") as stat:
                times = stat.read().rsplit(")", 1)[1].split()[11:13]
            seconds += sum(map(int, times)) / os.sysconf("SC_CLK_TCK")
    return seconds


def measure_playing(bench, film, span):
    """The pointer at rest on the slider, and then somewhere else on it ten times a second."""
    with bench.start("Tromelo", film) as player:
        engine = Engine(bench.ipc)
        player.wait_until_age(5)
        for hovers in (0, HOVERS):
            bench.point_at(0.5)
            time.sleep(2)
            drops, children = engine.drops(), processor_of_children(player)
            before, start = player.processor_seconds(), time.monotonic()
            for step in range(hovers * span):
                bench.point_at(random.random())
                time.sleep(max(0, start + (step + 1) / hovers - time.monotonic()))
            time.sleep(max(0, start + span - time.monotonic()))
            player.check()
            what = f"{span} s of playing, {hovers} hovers a second"
            processor = player.processor_seconds() - before
            made = processor_of_children(player) - children
            add = bench.table.add
            add("Tromelo", f"{what}: processor of the player, s", processor, 2)
            add("Tromelo", "  of the pictures, s, " + what, made, 2)
            add("Tromelo", "  frames dropped, " + what, engine.drops() - drops)
        if not made:
            raise SystemExit("bench: the pointer on the slider reached nobody")


def measure(bench, span):
    film = long_film(bench.home)
    print("bench: pictures", file=sys.stderr)
    measure_times(bench, "sample", bench.options.sample, 10)
    measure_times(bench, "two hours", film, LONG)
    measure_playing(bench, bench.clip, span)
