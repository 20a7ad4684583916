#!/usr/bin/env python3
"""build_pack.py SOURCE PACK: makes the language pack that the toolbar reads.

A source is UTF-8 with plain line feeds, for editors and version control. A pack is UTF-16 little-endian with its mark and
with CR LF, the one Unicode form that the toolbar knows.
"""

import codecs
import pathlib
import sys


def pack_bytes(source):
    lines = source.decode("utf-8").splitlines()
    return codecs.BOM_UTF16_LE + "".join(line + "\r\n" for line in lines).encode("utf-16-le")


def main():
    source, pack = map(pathlib.Path, sys.argv[1:])
    pack.parent.mkdir(parents=True, exist_ok=True)
    pack.write_bytes(pack_bytes(source.read_bytes()))


if __name__ == "__main__":
    main()
