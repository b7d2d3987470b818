"""A player that runs: its processor time, memory and what its engine answers."""

import json
import os
import signal
import socket
import subprocess
import time

LIMIT = 60  # seconds; software rendering on a busy machine is slow


class Engine:
    """The JSON requests of the engine of either player."""

    def __init__(self, path):
        end = time.monotonic() + LIMIT
        while True:
            try:
                self.socket = socket.socket(socket.AF_UNIX)
                self.socket.connect(path)
                break
            except OSError:
                self.socket.close()
                if time.monotonic() > end:
                    raise SystemExit(f"bench: no engine answers at {path}")
                time.sleep(0.05)
        self.socket.settimeout(LIMIT)
        self.lines = self.socket.makefile("r", encoding="utf-8", errors="replace")
        self.request = 0
        self.seeks = 0  # events seen while it waited for answers

    def command(self, *words):
        self.request += 1
        request = {"command": words, "request_id": self.request}
        self.socket.sendall(json.dumps(request).encode() + b"\n")
        for line in self.lines:
            reply = json.loads(line)
            self.seeks += reply.get("event") == "seek"
            if reply.get("request_id") == self.request and "error" in reply:
                return reply.get("data")
        raise SystemExit("bench: the engine is gone")

    def wait_for(self, event):
        for line in self.lines:
            if json.loads(line).get("event") == event:
                return
        raise SystemExit("bench: the engine is gone")

    def get(self, name):
        return self.command("get_property", name)

    def drops(self):
        return (self.get("frame-drop-count") or 0) + (self.get("decoder-frame-drop-count") or 0)


class Player:
    """Runs from construction to the end of the `with` block."""

    def __init__(self, command, environment, log):
        self.started = time.monotonic()
        self.process = subprocess.Popen(
            command,
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=log,
        )

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.send_signal(signal.SIGTERM)
        try:
            self.process.wait(LIMIT)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()

    @property
    def age(self):
        """Seconds since just before it was started."""
        return time.monotonic() - self.started

    def wait_until_age(self, seconds):
        time.sleep(max(0, seconds - self.age))

    def check(self):
        if self.process.poll() is not None:
            raise SystemExit(f"bench: {self.process.args[0]} ended with {self.process.returncode}")

    def processor_seconds(self):
        """User and system time of all its threads, those that ended too."""
        clock = (~self.process.pid << 3) | 2  # as clock_getcpuclockid() makes it
        return time.clock_gettime(clock)

    def memory(self):
        """Resident and proportional megabytes."""
        with open(f"/proc/{self.process.pid}/smaps_rollup", encoding="ascii") as rollup:
            sizes = dict(line.split()[:2] for line in rollup if line.count(":") == 1)
        return int(sizes["Rss:"]) / 1024, int(sizes["Pss:"]) / 1024


def clean_environment(home):
    """Nothing of the person's settings, and no session bus."""
    environment = dict(os.environ)
    for name in ("CONFIG", "STATE", "DATA", "CACHE"):
        environment[f"XDG_{name}_HOME"] = os.path.join(home, name.lower())
    environment["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"
    return environment
