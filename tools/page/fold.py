#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
"""fold.py PAGE OUTPUT FOLDER...: folds the files that a page names, from the first folder that has them, into the page.

Style and scripts become their text, WebAssembly its gzip in base 64, pictures data. A picture NAME.png may stand there
as NAME.pbm, which becomes white on nothing, or as NAME.pam.
"""
import base64
import gzip
import pathlib
import re
import struct
import sys
import zlib


def png(width, height, colour_type, depth, rows, extra=b""):
    """The bytes of a PNG of such rows; `extra` are chunks before the picture's."""
    raw = b"".join(b"\0" + row for row in rows)
    head = struct.pack(">IIBBBBB", width, height, depth, colour_type, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + extra + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b"")


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def rows_of(data, length):
    return [data[i:i + length] for i in range(0, len(data), length)]


def png_of_pbm(data):
    """P4 with one line of comment: what is no ink, 0, is white, as in the demo; 1 is nothing."""
    match = re.match(rb"P4\n(?:#[^\n]*\n)?(\d+) (\d+)\n", data)
    width, height = int(match[1]), int(match[2])
    colours = chunk(b"PLTE", b"\xff\xff\xff\0\0\0") + chunk(b"tRNS", b"\xff\0")
    return png(width, height, 3, 1, rows_of(data[match.end():], (width + 7) // 8), colours)


def png_of_pam(data):
    """P7 with four channels of a byte."""
    head, pixels = data.split(b"ENDHDR\n", 1)
    width, height = (int(re.search(rb"%s (\d+)" % name, head)[1]) for name in (b"WIDTH", b"HEIGHT"))
    return png(width, height, 6, 8, rows_of(pixels, 4 * width))


class Fold:
    def __init__(self, folders):
        self.folders = [pathlib.Path(folder) for folder in folders]

    def find(self, name):
        for folder in self.folders:
            if (folder / name).is_file():
                return folder / name
        return None

    def text(self, name):
        return self.find(name).read_text(encoding="utf-8").replace("</script", "<\\/script")

    def picture(self, name):
        converters = {".png": bytes, ".pbm": png_of_pbm, ".pam": png_of_pam}
        for suffix, convert in converters.items():
            path = self.find(pathlib.Path(name).with_suffix(suffix))
            if path:
                return "data:image/png;base64," + base64.b64encode(convert(path.read_bytes())).decode()
        sys.exit(f"fold.py: no {name}")

    def program(self, name):
        packed = gzip.compress(self.find(name).read_bytes(), 9, mtime=0)
        return base64.b64encode(packed).decode()

    def script(self, match):
        attributes, name = match[1], match[2]
        content = self.program(name) if name.endswith(".wasm") else "\n" + self.text(name)
        return f"<script{attributes}>{content}</script>"

    def page(self, text):
        text = re.sub(r'<link rel="stylesheet" href="([^"]+)">', lambda m: f"<style>\n{self.text(m[1])}</style>", text)
        text = re.sub(r'(?<=(?:href|.src)=")([^"]+\.png)(?=")', lambda m: self.picture(m[1]), text)
        return re.sub(r'<script([^>]*) src="([^"]+)"></script>', self.script, text)


def main():
    page, output, *folders = sys.argv[1:]
    fold = Fold(folders)
    pathlib.Path(output).write_text(fold.page(pathlib.Path(page).read_text(encoding="utf-8")), encoding="utf-8")


main()
