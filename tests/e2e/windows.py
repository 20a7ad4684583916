"""Windows and tabs each have a toolbar of their own, and the keyboard goes through address, toolbar and page."""

import struct
import zlib

import unittest

from bench import BenchTest

BUTTONS = 22  # of the default layout, with its separators


def read_png(path):
    """Width and rows of a PNG file of 8 bits a channel; each row its bytes."""
    data, place, packed = path.read_bytes(), 8, b""
    while place < len(data):
        length, kind = struct.unpack(">I4s", data[place:place + 8])
        body = data[place + 8:place + 8 + length]
        if kind == b"IHDR":
            width, _, _, colour = struct.unpack(">IIBB", body[:10])
        elif kind == b"IDAT":
            packed += body
        place += length + 12
    channels = {2: 3, 6: 4}[colour]
    return width, unfilter(zlib.decompress(packed), width * channels, channels), channels


def unfilter(raw, stride, step):
    rows, above = [], bytes(stride)
    for start in range(0, len(raw), stride + 1):
        kind, row = raw[start], bytearray(raw[start + 1:start + 1 + stride])
        for i in range(stride):
            left = row[i - step] if i >= step else 0
            corner = above[i - step] if i >= step else 0
            row[i] = (row[i] + predict(kind, left, above[i], corner)) & 255
        rows.append(bytes(row))
        above = row
    return rows


def predict(kind, left, above, corner):
    if kind == 4:
        estimate = left + above - corner
        return min((left, above, corner), key=lambda each: abs(estimate - each))
    return (0, left, above, (left + above) // 2)[kind]


class Windows(BenchTest):
    def test_each_tab_has_a_toolbar(self):
        run = self.run_script(f"""
            wait-for-load
            expect-toolbar {BUTTONS}
            key Ctrl+T
            expect-tabs 2
            wait-for-load
            expect-toolbar {BUTTONS}
            navigate text.html
            wait-for-load
            select-tab 1
            expect-address start.html
            select-tab 2
            expect-address text.html
            key Ctrl+W
            expect-tabs 1
            expect-address start.html
            """)
        self.assertIn("2 DocumentComplete page /text.html", run.events)
        self.assertLess(run.events.index("2 OnQuit"), run.events.index("1 OnQuit"))

    def test_each_window_has_a_toolbar(self):
        run = self.run_script(f"""
            wait-for-load
            open-window frames.html
            wait-for-load
            expect-windows 2
            expect-toolbar {BUTTONS}
            close-window
            expect-windows 1
            expect-toolbar {BUTTONS}
            """)
        self.assertIn("2 DocumentComplete page /frames.html", run.events)
        self.assertLess(run.events.index("2 OnQuit"), run.events.index("1 OnQuit"))

    def test_link_opens_a_new_window(self):
        self.run_script("""
            wait-for-load
            navigate links.html
            wait-for-load
            click-link "Into a window of its own"
            expect-windows 2
            select-window 2
            expect-address text.html
            """)

    def test_tab_key_goes_through_address_toolbar_and_page(self):
        """Tab goes through address, the toolbar's three boxes and the page, and back again."""
        self.run_script("""
            wait-for-load
            navigate forms.html
            wait-for-load
            key Alt+D
            expect-focus address
            key Tab
            expect-focus toolbar
            key Shift+Tab
            expect-focus address
            key F6
            expect-focus toolbar
            key Tab
            expect-focus toolbar
            key Tab
            expect-focus toolbar
            key Tab
            expect-focus page
            key Shift+F6
            expect-focus toolbar
            key Shift+Tab
            expect-focus toolbar
            key Shift+Tab
            expect-focus toolbar
            key Shift+Tab
            expect-focus address
            """)

    def test_focus_passes_through_the_page(self):
        """Tab visits what the page has and then leaves it."""
        self.run_script("""
            wait-for-load
            navigate search
            wait-for-load
            key Alt+D
            expect-focus address
            key Shift+Tab
            expect-focus page
            key Tab
            expect-focus address
            """)

    def test_each_version_has_its_toolbar(self):
        """The build of each version starts and has its toolbar."""
        for version in ("7.5", "8.0", "11.0"):
            self.run_script(f"wait-for-load\nexpect-toolbar {BUTTONS}", "--ie-version", version)

    def test_keys_reach_the_page(self):
        self.run_script("""
            wait-for-load
            navigate forms.html
            wait-for-load
            click "#name"
            expect-focus page
            type "Grüße, 世界"
            expect-in-page "document.getElementById('name').value === 'Grüße, 世界'"
            key Tab
            expect-in-page "document.activeElement.id === 'secret'"
            click "#count"
            click "#count"
            expect-in-page "document.getElementById('count').textContent === 'Clicked 2 times'"
            """)

    def test_toolbar_is_drawn(self):
        """The row of the toolbar has the colours of its pictures, with a visual style and without."""
        run = self.run_script(f"""
            move-pointer 640 700
            wait-for-load
            picture themed
            visual-style off
            expect-toolbar {BUTTONS}
            picture plain
            visual-style on
            """)
        for name in ("themed", "plain"):
            width, rows, channels = read_png(run.folder / f"{name}.png")
            toolbar = {row[i:i + 3] for row in rows[74:94] for i in range(0, width * channels, channels)}
            self.assertGreater(len(toolbar), 40, name)


if __name__ == "__main__":
    unittest.main()
