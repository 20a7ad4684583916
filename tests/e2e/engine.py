"""Speaks to the page of a running engine, for browsers that were started without a script."""

import base64
import json
import os
import pathlib
import re
import socket
import struct
import time
import urllib.request

from bench import engine_process, read

START_SECONDS = 60
TEXT_FRAME, FINAL, MASKED = 0x1, 0x80, 0x80


def wait_until(condition):
    """The first answer of the condition that isn't empty."""
    end = time.monotonic() + START_SECONDS
    while not (answer := condition()):
        if time.monotonic() > end:
            raise TimeoutError("this doesn't come true")
        time.sleep(0.2)
    return answer


def find_port():
    """The port that the engine listens on; None while there is none."""
    pid = engine_process()
    profile = re.search(rb"--user-data-dir=([^\0]+)", read(f"/proc/{pid}/cmdline")) if pid else None
    lines = read(pathlib.Path(os.fsdecode(profile[1])) / "DevToolsActivePort").split() if profile else []
    return int(lines[0]) if lines else None


def find_page(port, name):
    """Where the page with the name can be spoken to; None while the engine doesn't show it."""
    with urllib.request.urlopen(f"http://127.0.0.1:{port}/json/list", timeout=START_SECONDS) as answer:
        pages = [each["webSocketDebuggerUrl"] for each in json.load(answer) if each["url"].endswith("/" + name)]
    return pages[0] if pages else None


class Page:
    """A page that the engine shows, by the engine's own protocol."""

    def __init__(self, name):
        port = wait_until(find_port)
        address = wait_until(lambda: find_page(port, name))
        self.socket = socket.create_connection(("127.0.0.1", port), START_SECONDS)
        self.stream = self.socket.makefile("rb")
        self.count = 0
        self.shake_hands(address.split(str(port), 1)[1], port)

    def shake_hands(self, path, port):
        key = base64.b64encode(os.urandom(16)).decode()
        self.socket.sendall(
            f"GET {path} HTTP/1.1\r\nHost: 127.0.0.1:{port}\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
            f"Sec-WebSocket-Key: {key}\r\nSec-WebSocket-Version: 13\r\n\r\n".encode())
        while self.stream.readline().strip():
            pass

    def close(self):
        self.stream.close()
        self.socket.close()

    def evaluate(self, expression):
        self.count += 1
        call = {"id": self.count, "method": "Runtime.evaluate",
                "params": {"expression": expression, "returnByValue": True}}
        self.send(json.dumps(call).encode())
        while (answer := json.loads(self.receive())).get("id") != self.count:
            pass
        return answer["result"]["result"].get("value")

    def send(self, data):
        mask = os.urandom(4)
        masked = bytes(each ^ mask[i % 4] for i, each in enumerate(data))
        self.socket.sendall(struct.pack(">BBH", FINAL | TEXT_FRAME, MASKED | 126, len(data)) + mask + masked)

    def receive(self):
        length = self.stream.read(2)[1]
        if length >= 126:
            length = int.from_bytes(self.stream.read(2 if length == 126 else 8), "big")
        return self.stream.read(length)
