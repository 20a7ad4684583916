#!/usr/bin/env python3
"""binary_rules.py FILE [--max-size BYTES]: checks a Windows binary as it ships.

It may import from the platform's own libraries only, is loaded at random addresses of the whole 64-bit space, runs nothing
from data, and carries no time of its making, so that the same sources give the same file.
"""

import argparse
import pathlib
import struct
import sys

SYSTEM_LIBRARIES = {
    "advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "gdiplus.dll", "kernel32.dll", "mpr.dll", "msimg32.dll",
    "msvcrt.dll", "ole32.dll", "oleacc.dll", "oleaut32.dll", "rpcrt4.dll", "shell32.dll", "shlwapi.dll", "urlmon.dll",
    "user32.dll", "uxtheme.dll", "version.dll", "wininet.dll", "winhttp.dll", "windowscodecs.dll", "ws2_32.dll",
}  # fmt: skip

MACHINE_AMD64 = 0x8664
HIGH_ENTROPY_VA = 0x0020
DYNAMIC_BASE = 0x0040
NX_COMPAT = 0x0100


class Binary:
    """The few fields of a 64-bit portable executable that the rules speak of."""

    def __init__(self, data):
        self.data = data
        header = struct.unpack_from("<I", data, 0x3C)[0]
        assert data[header : header + 4] == b"PE\0\0", "not a Windows binary"
        self.machine, section_count, self.time = struct.unpack_from("<HHI", data, header + 4)
        optional_size = struct.unpack_from("<H", data, header + 20)[0]
        optional = header + 24
        self.characteristics = struct.unpack_from("<H", data, optional + 70)[0]
        self.import_address = struct.unpack_from("<I", data, optional + 112 + 8)[0]
        first_section = optional + optional_size
        self.sections = [
            struct.unpack_from("<IIII", data, first_section + 40 * index + 8) for index in range(section_count)
        ]

    def offset_of(self, address):
        for size, start, raw_size, raw in self.sections:
            if start <= address < start + max(size, raw_size):
                return address - start + raw
        raise ValueError(f"address {address:#x} lies in no section")

    def imports(self):
        """The names of the libraries that are loaded with the binary, in lower case."""
        entry = self.offset_of(self.import_address)
        while name := struct.unpack_from("<I", self.data, entry + 12)[0]:
            start = self.offset_of(name)
            yield self.data[start : self.data.index(b"\0", start)].decode("ascii").lower()
            entry += 20


def broken_rules(binary, max_size):
    if binary.machine != MACHINE_AMD64:
        yield f"is built for machine {binary.machine:#x}"
    for flag, name in ((HIGH_ENTROPY_VA, "high-entropy addresses"), (DYNAMIC_BASE, "dynamic base"), (NX_COMPAT, "NX")):
        if not binary.characteristics & flag:
            yield f"lacks the flag for {name}"
    if binary.time:
        yield "carries the time of its making"
    for library in sorted(set(binary.imports()) - SYSTEM_LIBRARIES):
        yield f"imports from {library}, no library of the platform"
    if max_size and len(binary.data) > max_size:
        yield f"has {len(binary.data)} bytes, more than {max_size}"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("file", type=pathlib.Path)
    parser.add_argument("--max-size", type=int, default=0)
    arguments = parser.parse_args()
    broken = list(broken_rules(Binary(arguments.file.read_bytes()), arguments.max_size))
    for rule in broken:
        print(f"{arguments.file.name} {rule}")
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
