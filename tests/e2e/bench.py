"""Runs the bench browser with a script of steps and tells what came of it."""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCRIPTS = ROOT / "scripts"
BROWSER = pathlib.Path(os.environ["BENCH_BROWSER"])

RUN_SECONDS = 300
GONE_SECONDS = 60
ENGINE_PROFILE = "/bench-engine."
PROGRAMS = (BROWSER.name, "launch-engine.sh")


def read(path):
    try:
        return pathlib.Path(path).read_bytes()
    except OSError:
        return b""


def processes():
    """The numbers and command lines of this Wine prefix's processes that are a browser or belong to its engine."""
    found = {}
    for entry in pathlib.Path("/proc").iterdir():
        if entry.name.isdigit():
            words = read(entry / "cmdline").decode(errors="replace").rstrip("\0").split("\0")
            if belongs_to_a_browser(words) and is_ours(entry.name):
                found[int(entry.name)] = " ".join(words)
    return found


def belongs_to_a_browser(words):
    """Whether the words of a command line start a browser, or name an engine's profile or the script that starts one."""
    starts = any(word.endswith(PROGRAMS) for word in words[:2])
    return starts or any(ENGINE_PROFILE in word for word in words)


def is_ours(pid):
    """Whether the process runs for this Wine prefix; its engine and helpers inherit the setting."""
    return f"WINEPREFIX={os.environ['WINEPREFIX']}".encode() in read(f"/proc/{pid}/environ").split(b"\0")


def engine_process():
    """The engine's first process, which has started the others; None while there is none."""
    for pid, command in processes().items():
        if "--user-data-dir" in command and "--type=" not in command and "launch-engine" not in command:
            return pid
    return None


class Run:
    """What a run of the browser left behind."""

    def __init__(self, code, output, errors, events, folder):
        self.code, self.output, self.errors, self.events, self.folder = code, output, errors, events, folder


class BenchTest(unittest.TestCase):
    """A test that runs the browser. Whatever it did, no process of it may be left."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="bench-test."))
        self.addCleanup(shutil.rmtree, self.folder)
        self.addCleanup(self.expect_nothing_left)

    def expect_nothing_left(self):
        end = time.monotonic() + GONE_SECONDS
        while left := processes():
            if time.monotonic() > end:
                for pid in left:
                    os.kill(pid, signal.SIGKILL)
                self.fail(f"processes are left: {left}")
            time.sleep(0.1)

    def start(self, *options):
        """Starts the browser with the options; the caller waits for its end."""
        command = [SCRIPTS / "wine", os.environ["WINEPREFIX"], BROWSER, *options]
        # Files, since the settings broker inherits them and outlives the browser: the end of a pipe would not come.
        with open(self.folder / "output", "wb") as output, open(self.folder / "errors", "wb") as errors:
            return subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output, stderr=errors)

    def start_script(self, steps, *options):
        script = self.folder / "test.steps"
        script.write_text(steps, encoding="utf-8")
        return self.start(*options, "--script", script, "--output", self.folder, "--log-events", self.folder / "events.txt")

    def finish(self, process):
        try:
            process.wait(RUN_SECONDS)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
            self.fail("the browser doesn't end")
        # Behind a bar the log tells how the frames stood at the event.
        events = [line.split(" | ")[0] for line in read(self.folder / "events.txt").decode().splitlines()]
        output, errors = (read(self.folder / name).decode() for name in ("output", "errors"))
        return Run(process.returncode, output, errors, events, self.folder)

    def run_script(self, steps, *options):
        """Runs the steps and expects them to succeed without a word."""
        run = self.finish(self.start_script(steps, *options))
        self.assertEqual((run.code, run.errors), (0, ""), "\n".join(run.events))
        return run
