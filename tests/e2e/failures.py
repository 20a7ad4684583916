"""The command line; what goes wrong is told in one clear line, and nothing hangs or stays behind."""

import os
import signal
import time

import unittest

from bench import BenchTest, engine_process

WRONG_OPTION = 2
WAIT_SECONDS = 60


class Failures(BenchTest):
    def expect_failure(self, run, code, text):
        self.assertEqual(run.code, code, run.errors)
        self.assertEqual(run.errors.count("\n"), 1, run.errors)
        self.assertIn(text, run.errors)

    def test_unknown_option(self):
        self.expect_failure(self.finish(self.start("--colour", "red")), WRONG_OPTION, "--colour")

    def test_option_without_value(self):
        self.expect_failure(self.finish(self.start("--url")), WRONG_OPTION, "--url needs a value")

    def test_unknown_version(self):
        self.expect_failure(self.finish(self.start("--ie-version", "6.0")), WRONG_OPTION, "6.0")

    def test_help(self):
        run = self.finish(self.start("--help"))
        self.assertEqual((run.code, run.errors), (0, ""))
        self.assertIn("--log-events", run.output)

    def test_screenshot(self):
        run = self.finish(self.start("--screenshot", self.folder / "page.png"))
        self.assertEqual((run.code, run.errors), (0, ""))
        self.assertTrue((self.folder / "page.png").read_bytes().startswith(b"\x89PNG"))

    def test_missing_script(self):
        self.expect_failure(self.finish(self.start("--script", self.folder / "none")), WRONG_OPTION, "none")

    def test_unknown_step(self):
        self.expect_failure(self.finish(self.start_script("reload\n\nfly away")), WRONG_OPTION, "line 3: unknown step fly")

    def test_step_with_a_wrong_argument(self):
        for step, form in (("press zoom", "press INDEX"), ("press", "press INDEX"), ("expect-focus pgae", "expect-focus address|toolbar|page"),
                           ("resize 400", "resize WIDTH HEIGHT"), ("reload page", "reload")):
            with self.subTest(step):
                run = self.finish(self.start_script(f"wait-for-load\n{step}"))
                self.expect_failure(run, WRONG_OPTION, f"line 2: the step is {form}")

    def test_failed_step(self):
        self.expect_failure(self.finish(self.start_script("wait-for-load\nselect-tab 5")), 1, "line 2: select-tab: there is no tab 5")

    def test_missing_engine(self):
        run = self.finish(self.start("--engine", "no-such-engine", "--script", self.steps("wait-for-load")))
        self.expect_failure(run, 1, "no-such-engine")

    def test_engine_that_ends_at_once(self):
        run = self.finish(self.start("--engine", "/bin/false", "--script", self.steps("wait-for-load")))
        self.expect_failure(run, 1, "/bin/false")

    def test_unreachable_page(self):
        self.run_script("""
            wait-for-load
            navigate http://127.0.0.1:9/
            expect-status "http://127.0.0.1:9/"
            navigate text.html
            wait-for-load
            expect-title "Long Text"
            """)

    def test_engine_killed(self):
        """The browser says so, stays usable and ends when it is closed."""
        browser = self.start_script("""
            wait-for-load
            expect-status "engine"
            reload
            key Alt+D
            expect-focus address
            close-window
            """)
        self.kill_engine()
        run = self.finish(browser)
        self.assertEqual((run.code, run.errors), (0, ""))

    def test_browser_killed(self):
        """The engine goes with its browser."""
        browser = self.start_script("wait-for-load\nwait-for-event OnNothing")
        self.wait_for_page()
        browser.kill()
        self.finish(browser)

    def steps(self, text):
        path = self.folder / "only.steps"
        path.write_text(text, encoding="utf-8")
        return path

    def wait_for_page(self):
        end = time.monotonic() + WAIT_SECONDS
        while "DocumentComplete" not in self.events_so_far():
            self.assertLess(time.monotonic(), end, "no page is loaded")
            time.sleep(0.05)

    def events_so_far(self):
        path = self.folder / "events.txt"
        return path.read_text(encoding="utf-8") if path.exists() else ""

    def kill_engine(self):
        self.wait_for_page()
        os.kill(engine_process(), signal.SIGKILL)


if __name__ == "__main__":
    unittest.main()
