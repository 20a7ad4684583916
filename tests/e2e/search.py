"""The tools that search and zoom, used by keys and mouse on real pages and checked by what the pages say of themselves."""

import unittest

from bench import BenchTest
from windows import read_png

# The places of the tools on the toolbar.
ZOOM = 13
HIGHLIGHT = 21

FRAMES = "[window, frames[0], frames[1], frames[1].frames[0], frames[2]]"
MARKS = "each.document.querySelectorAll('font')"


def words(text):
    """An expression as a single word of a step."""
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def highlight(word):
    return f"""
            press {HIGHLIGHT}
            key Ctrl+A
            type {word}
            key Enter
            """


def zoom(percent):
    return f"""
            press {ZOOM}
            key Ctrl+A
            type {percent}
            key Enter
            """


def is_yellow(red, green, blue):
    """Nearly, since the engine's pictures are compressed."""
    return red > 230 and green > 230 and blue < 60


def count_yellow(path):
    """The yellow pixels of a picture."""
    _, rows, channels = read_png(path)
    return sum(is_yellow(*row[i:i + 3]) for row in rows for i in range(0, len(row), channels))


def load(page):
    return f"""
            wait-for-load
            navigate {page}
            wait-for-load
            """


class Search(BenchTest):
    def test_highlight_in_all_frames(self):
        every_frame = f"{FRAMES}.every(each => {MARKS}.length === 1 && {MARKS}[0].textContent === 'harvest')"
        yellow = f"{FRAMES}.every(each => getComputedStyle({MARKS}[0]).backgroundColor === 'rgb(255, 255, 0)')"
        run = self.run_script(
            load("frames.html") + "picture before" + highlight("HARVEST") + f"""
            expect-in-page {words(every_frame)}
            expect-in-page {words(yellow)}
            move-pointer 640 700
            picture after
            expect-in-page {words(every_frame)}
            """)
        self.assertEqual(count_yellow(run.folder / "before.png"), 0)
        self.assertGreater(count_yellow(run.folder / "after.png"), 1000)

    def test_highlight_of_a_long_page(self):
        """Each hit is marked once, and the text stays as it was."""
        self.run_script(
            load("text.html") + "expect-in-page " + words(
                "(window.kept = document.body.textContent).includes('harvest')") + highlight("harvest") +
            "expect-in-page " + words(
                "document.querySelectorAll('font').length === kept.match(/harvest/gi).length && "
                "document.body.textContent === kept"))

    def test_highlight_of_nothing(self):
        """A word that isn't there changes nothing, and the box is ready for another."""
        self.run_script(
            load("text.html") + "expect-in-page " + words("(window.kept = document.body.innerHTML) !== ''") +
            highlight("nowhere") + "expect-in-page " + words("document.body.innerHTML === kept") +
            highlight("mill") + "expect-in-page " + words("document.querySelector('font').textContent === 'mill'"))

    def test_marks_go_with_the_page(self):
        self.run_script(
            load("text.html") + highlight("harvest") + "expect-in-page " +
            words("document.querySelectorAll('font').length > 0") + """
            reload
            wait-for-load
            """ + "expect-in-page " + words("document.querySelectorAll('font').length === 0"))

    def test_zoom_and_back(self):
        """The page and the text in its frames are as large as they should be, and no frame is loaded anew."""
        frame = "document.querySelector('iframe').getBoundingClientRect().width"
        # The engine counts a frame's inside in units of its own, which grow with the frame.
        text = f"frames[0].document.querySelector('h2').getBoundingClientRect().height * {frame} / frames[0].innerWidth"
        run = self.run_script(
            load("frames.html") + f"""
            expect-in-page {words(f"(window.kept = {frame}) > 0 && (window.keptText = {text}) > 0")}
            """ + zoom("150%") + f"""
            expect-in-page {words(f"Math.abs({frame} / kept - 1.5) < 0.01")}
            expect-in-page {words(f"Math.abs({text} / keptText - 1.5) < 0.03")}
            expect-box {ZOOM} 150%
            """ + zoom(100) + f"""
            expect-in-page {words(f"Math.abs({frame} / kept - 1) < 0.01")}
            expect-in-page {words(f"Math.abs({text} / keptText - 1) < 0.03")}
            expect-in-page {words("document.querySelectorAll('#__hw__trelvix__zoom__').length === 1")}
            expect-box {ZOOM} 100
            """)
        self.assertEqual(sum("DocumentComplete" in event and "/frame-a.html" in event for event in run.events), 1)

    def test_zoom_out_of_bounds(self):
        """The box is put right first; the page changes when the user agrees."""
        no_wrapper = words("document.getElementById('__hw__trelvix__zoom__') === null")
        self.run_script(
            load("text.html") + zoom(5) + f"""
            expect-box {ZOOM} 10%
            expect-in-page {no_wrapper}
            """ + zoom(1000) + f"""
            expect-box {ZOOM} 999%
            expect-in-page {no_wrapper}
            key Enter
            expect-in-page {words("document.body.firstElementChild.style.zoom === '999%'")}
            """)

    def test_zoom_from_the_list(self):
        self.run_script(
            load("text.html") + f"""
            press {ZOOM}
            key Down
            expect-box {ZOOM} 120%
            expect-in-page {words("document.body.firstElementChild.style.zoom === '120%'")}
            key Down
            expect-box {ZOOM} 150%
            expect-in-page {words("document.body.firstElementChild.style.zoom === '150%'")}
            """)

    def test_zoom_ends_with_a_refresh(self):
        """The box is ready again afterwards."""
        self.run_script(
            load("text.html") + zoom(150) + f"""
            expect-in-page {words("document.body.firstElementChild.style.zoom === '150%'")}
            reload
            wait-for-load
            expect-box {ZOOM} 100%
            expect-in-page {words("document.getElementById('__hw__trelvix__zoom__') === null")}
            """ + zoom(80) + f"""
            expect-in-page {words("document.body.firstElementChild.style.zoom === '80%'")}
            """)

    def test_zoom_ends_with_the_page(self):
        self.run_script(
            load("text.html") + zoom(150) + f"""
            expect-in-page {words("document.body.firstElementChild.style.zoom === '150%'")}
            navigate forms.html
            wait-for-load
            expect-box {ZOOM} 100%
            expect-in-page {words("document.getElementById('__hw__trelvix__zoom__') === null")}
            """)

    def test_zoom_of_a_frameset(self):
        self.run_script(
            load("frameset.html") + zoom(150) + f"""
            expect-in-page {words("document.body.style.zoom === '150%' && !document.querySelector('div')")}
            expect-in-page {words("!!frames[0].document.getElementById('__hw__trelvix__zoom__')")}
            """)


if __name__ == "__main__":
    unittest.main()
