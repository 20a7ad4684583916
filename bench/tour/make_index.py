#!/usr/bin/env python3
"""make_index.py FOLDER: writes an index.html of the tour's pictures in the folder, as captions.txt lists them."""

import html
import pathlib
import sys

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>A tour of Trelvix</title>
<style>
  body {{ max-width: 1240px; margin: 24px auto; padding: 0 20px; color: #1d2b3a; font: 16px/1.5 "Segoe UI", "Liberation Sans", sans-serif; }}
  h1 {{ color: #1c5aa8; }}
  figure {{ margin: 0 0 40px; }}
  figcaption {{ margin-bottom: 8px; }}
  img {{ max-width: 100%; border: 1px solid #cfdcea; box-shadow: 0 2px 10px #0003; }}
</style>
</head>
<body>
<h1>A tour of Trelvix</h1>
<p>Each picture shows the bench browser with the toolbar at work on a real page.</p>
{figures}
</body>
</html>
"""

FIGURE = """<figure id="{name}">
<figcaption><b>{number}.</b> {caption}</figcaption>
<a href="{file}"><img src="{file}" alt="{caption}"></a>
</figure>"""


def figure(number, line):
    file, caption = line.split("\t", 1)
    return FIGURE.format(name=file.removesuffix(".png"), number=number, file=file, caption=html.escape(caption))


def main():
    folder = pathlib.Path(sys.argv[1])
    lines = (folder / "captions.txt").read_text(encoding="utf-8").splitlines()
    figures = "\n".join(figure(number, line) for number, line in enumerate(lines, 1))
    (folder / "index.html").write_text(PAGE.format(figures=figures), encoding="utf-8")


if __name__ == "__main__":
    main()
