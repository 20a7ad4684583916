"""A page speaks to the toolbar by addresses of its own scheme, and its script errors go through the toolbar."""

import os
import signal
import subprocess
import unittest

from bench import SCRIPTS, BenchTest, processes
from engine import Page, wait_until

SETTINGS = r"HKCU\Software\Halmere Works\Trelvix\v5"
ENGINE_SECTION = SETTINGS + r"\Button3"

CONFIRMATION = "You requested to customize the Trelvix search"
REFUSAL = "Unable to get valid information from the URL"

LOAD = """
    wait-for-load
    navigate commands.html
    wait-for-load
    """


def registry(*arguments):
    """What the registry's own tool says."""
    command = [SCRIPTS / "wine", os.environ["WINEPREFIX"], "reg", *arguments]
    return subprocess.run(command, capture_output=True, check=False).stdout.decode(errors="replace")


def stored(name):
    """A stored setting of the search engine; None when there is none."""
    for line in registry("query", ENGINE_SECTION, "/v", name).splitlines():
        if line.split()[:2] == [name, "REG_SZ"]:
            return line.split("REG_SZ", 1)[1].strip()
    return None


class Commands(BenchTest):
    def setUp(self):
        super().setUp()
        self.forget_engine()
        self.addCleanup(self.forget_engine)

    def forget_engine(self):
        registry("delete", ENGINE_SECTION, "/f")

    def expect_cancelled(self, run, start):
        commands = [event for event in run.events if event.startswith(start)]
        self.assertEqual([event.endswith(" cancelled") for event in commands], [True], commands)

    def end_all(self, browser):
        """Ends the browser and those that it started; their engines go with them."""
        for pid, command in processes().items():
            if "iexplore.exe" in command:
                os.kill(pid, signal.SIGKILL)
        browser.wait()

    def test_link_installs_a_search_engine(self):
        run = self.run_script(LOAD + f"""
            click #install
            expect-dialog "{CONFIRMATION}"
            expect-dialog "* Name = Bench"
            answer OK
            expect-address commands.html
            """)
        self.expect_cancelled(run, "1 BeforeNavigate2 page trelvix:searchweb?")
        self.assertEqual(stored("WebSearchTitle"), "Bench")
        self.assertRegex(stored("WebSearchURL"), r"^http://127\.0\.0\.1:\d+/search\?q=%%WORD%%$")

    def test_user_says_no(self):
        run = self.run_script(LOAD + f"""
            click #install
            expect-dialog "{CONFIRMATION}"
            answer Cancel
            expect-address commands.html
            """)
        self.expect_cancelled(run, "1 BeforeNavigate2 page trelvix:searchweb?")
        self.assertIsNone(stored("WebSearchTitle"))
        self.assertIsNone(stored("WebSearchURL"))

    def test_link_to_no_search_engine(self):
        self.run_script(LOAD + f"""
            click-link "Install what is no search engine"
            expect-dialog "{REFUSAL}"
            answer OK
            expect-address commands.html
            """)
        self.assertIsNone(stored("WebSearchTitle"))

    def test_frame_installs_nothing(self):
        run = self.run_script(LOAD + """
            expect-in-page "(frames[0].document.getElementById('install').click(), true)"
            wait-for-event "BeforeNavigate2 frame trelvix:"
            navigate start.html
            wait-for-load
            """)
        commands = [event for event in run.events if "BeforeNavigate2 frame trelvix:" in event]
        self.assertEqual([event.endswith(" cancelled") for event in commands], [False], commands)
        self.assertIsNone(stored("WebSearchTitle"))

    def test_new_instance(self):
        """A browser that was started alone starts another with the address as its argument."""
        browser = self.start()
        self.addCleanup(self.end_all, browser)
        page = Page("start.html")
        self.addCleanup(page.close)
        wait_until(lambda: page.evaluate("document.readyState === 'complete'"))
        page.evaluate("document.querySelector('a[href=\"commands.html\"]').click()")
        wait_until(lambda: page.evaluate("document.readyState === 'complete' && !!document.getElementById('instance')"))
        page.evaluate("document.getElementById('instance').click()")
        command = wait_until(lambda: [each for each in processes().values() if "/text.html" in each])[0]
        self.assertRegex(command, r"iexplore\.exe http://127\.0\.0\.1:\d+/text\.html\s*$")
        self.assertTrue(page.evaluate("location.pathname === '/commands.html'"))

    def test_new_instance_of_a_browser_with_options(self):
        """Only a browser that was started alone starts another; the navigation is cancelled all the same."""
        process = self.start_script(LOAD + """
            click #instance
            wait-for-event "BeforeNavigate2 page trelvix:newieinstance?"
            expect-address commands.html
            """)
        run = self.finish(process)
        self.assertEqual((run.code, run.errors), (0, ""))
        self.expect_cancelled(run, "1 BeforeNavigate2 page trelvix:newieinstance?")
        self.assertEqual([command for command in processes().values() if "text.html" in command], [])

    def test_script_errors_that_no_item_takes_are_the_browsers_own(self):
        self.run_script("""
            wait-for-load
            navigate script-error.html
            expect-dialog "textContent"
            answer Yes
            expect-dialog "undefinedInFrame"
            answer Yes
            expect-in-page "document.readyState === 'complete'"
            click #call
            expect-dialog "missingFunction"
            answer No
            expect-address script-error.html
            """)


if __name__ == "__main__":
    unittest.main()
