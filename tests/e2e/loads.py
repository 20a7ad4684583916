"""Pages are loaded by link, by address and by reload, and the events of each come in the browser's order."""

import unittest

from bench import BenchTest

# What has no place of its own in the order of a load.
SIDE_EVENTS = ("CommandStateChange", "StatusTextChange", "TitleChange", "ProgressChange", "PropertyChange")

PAGE_LOAD = [
    "BeforeNavigate2 page {0} 0",
    "DownloadBegin",
    "NavigateComplete2 page {0}",
    "DownloadComplete",
    "DocumentComplete page {0}",
]
PAGE_RELOAD = ["DownloadBegin", "DownloadComplete"]
START_LOAD = [line.format("/start.html") for line in PAGE_LOAD]


def load_events(run, tab=1):
    """The events of a tab that tell the order of its loads."""
    lines = [line.split(" ", 1) for line in run.events]
    return [event for number, event in lines if number == str(tab) and not event.startswith(SIDE_EVENTS)]


class Loads(BenchTest):
    def test_link(self):
        run = self.run_script("""
            wait-for-load
            click .card[href='text.html']
            wait-for-load
            expect-address text.html
            expect-title "Long Text"
            """)
        self.assertEqual(
            load_events(run), START_LOAD + [line.format("/text.html") for line in PAGE_LOAD] + ["OnQuit"])

    def test_address(self):
        run = self.run_script("""
            wait-for-load
            enter-address forms.html
            wait-for-load
            expect-address forms.html
            expect-back yes
            """)
        self.assertEqual(
            load_events(run), START_LOAD + [line.format("/forms.html") for line in PAGE_LOAD] + ["OnQuit"])

    def test_reload(self):
        run = self.run_script("""
            wait-for-load
            reload
            wait-for-load
            expect-address start.html
            key F5
            wait-for-load
            """)
        self.assertEqual(load_events(run), START_LOAD + PAGE_RELOAD + PAGE_RELOAD + ["OnQuit"])

    def test_history(self):
        run = self.run_script("""
            wait-for-load
            navigate text.html
            wait-for-load
            back
            wait-for-load
            expect-address start.html
            expect-back no
            forward
            wait-for-load
            expect-address text.html
            """)
        self.assertEqual(load_events(run).count("DocumentComplete page /text.html"), 2)

    def test_frames(self):
        """The page begins before its frames and is complete after all of them; a frame's events keep their order."""
        run = self.run_script("""
            wait-for-load
            navigate frames.html
            wait-for-load
            """)
        events = load_events(run)[len(START_LOAD):]
        self.assertEqual(events[0], "BeforeNavigate2 page /frames.html 0")
        self.assertEqual(events[-2:], ["DocumentComplete page /frames.html", "OnQuit"])
        self.assertEqual(events.count("DownloadBegin"), 5)
        self.assertEqual(events.count("DownloadComplete"), 5)
        for name in ("frame-a", "frame-b", "frame-c", "frame-inner"):
            begin, done, complete = (
                next(i for i, event in enumerate(events) if event.startswith(f"{kind} frame /{name}.html"))
                for kind in ("BeforeNavigate2", "NavigateComplete2", "DocumentComplete"))
            self.assertLess(begin, done)
            self.assertLess(done, complete)
        inner, outer = (events.index(f"DocumentComplete frame /{name}.html") for name in ("frame-inner", "frame-b"))
        self.assertLess(inner, outer)

    def test_redirection(self):
        run = self.run_script("""
            wait-for-load
            navigate redirect?to=/text.html
            wait-for-load
            expect-address text.html
            """)
        self.assertEqual(load_events(run)[-2:], ["DocumentComplete page /text.html", "OnQuit"])

    def test_slow_page(self):
        """The bench is usable while a page takes its time, and its load can be stopped."""
        self.run_script("""
            wait-for-load
            navigate slow?ms=20000&to=/text.html
            wait-for-event DownloadBegin
            key Alt+D
            expect-focus address
            key Escape
            wait-for-load
            navigate text.html
            wait-for-load
            expect-title "Long Text"
            """)


if __name__ == "__main__":
    unittest.main()
