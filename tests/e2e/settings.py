"""The toolbar keeps its settings by the broker, from one start of the browser to the next."""

import os
import subprocess
import unittest

from bench import BROWSER, SCRIPTS, BenchTest

PRODUCT = r"Software\Halmere Works\Trelvix"
GERMAN = "7"


def wine(*command):
    """Runs a program of the platform and gives what it prints."""
    run = subprocess.run(
        [SCRIPTS / "wine", os.environ["WINEPREFIX"], *command],
        stdin=subprocess.DEVNULL, capture_output=True, timeout=120, check=False)
    return run.stdout.decode(errors="replace")


def store(section, name, value):
    wine("reg", "add", rf"HKCU\{PRODUCT}\v5\{section}", "/v", name, "/d", value, "/f")


def stored(section, name):
    """The stored text, None when there is none."""
    for line in wine("reg", "query", rf"HKCU\{PRODUCT}\v5\{section}", "/v", name).splitlines():
        words = line.split(None, 2)
        if words[:2] == [name, "REG_SZ"]:
            return words[2] if len(words) > 2 else ""
    return None


class Settings(BenchTest):
    def setUp(self):
        super().setUp()
        self.forget()
        self.addCleanup(self.forget)

    def forget(self):
        wine("reg", "delete", rf"HKCU\{PRODUCT}", "/f")

    def test_only_the_first_start_has_a_row_of_its_own(self):
        self.run_script("wait-for-load\nexpect-own-row yes")
        self.assertEqual(stored("Options", "ToolbarFirstTime"), "1")
        self.run_script("wait-for-load\nexpect-own-row no")

    def test_stored_layout_shows(self):
        """A root menu, the highlight box, a separator and the zoom box."""
        store("Toolbar", "Layout", "000100070001000100010008")
        self.run_script("wait-for-load\nexpect-toolbar 4")

    def test_stored_language_shows(self):
        wine("reg", "add", rf"HKLM\{PRODUCT}", "/v", "Install_Dir", "/d",
             wine("winepath", "-w", BROWSER.parent).strip(), "/f")
        self.addCleanup(wine, "reg", "delete", rf"HKLM\{PRODUCT}", "/v", "Install_Dir", "/f")
        store("Options", "langID", GERMAN)
        self.run_script("""
            wait-for-load
            expect-box 21 "Auf der Seite hervorheben"
            """)

    def test_page_installs_a_search_engine(self):
        """A page installs its engine when the person agrees, and the box then searches by it."""
        self.run_script("""
            wait-for-load
            navigate commands.html
            wait-for-load
            click "#install"
            expect-dialog Bench
            answer OK
            press 19
            type harvest
            key Enter
            wait-for-load
            expect-address search?q=harvest
            """)
        self.assertEqual(stored("Button3", "WebSearchTitle"), "Bench")
        self.assertRegex(stored("Button3", "WebSearchURL"), r"^http://127\.0\.0\.1:\d+/search\?q=%%WORD%%$")

    def test_refused_search_engine_is_not_kept(self):
        self.run_script("""
            wait-for-load
            navigate commands.html
            wait-for-load
            click "#install"
            expect-dialog Bench
            answer Cancel
            """)
        self.assertIsNone(stored("Button3", "WebSearchTitle"))


if __name__ == "__main__":
    unittest.main()
