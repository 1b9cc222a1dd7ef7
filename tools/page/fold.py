# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
"""fold.py KIND TITLE PROGRAM OUTPUT FOLDER...: page.html as the page of a program, for a demo or a project.

Keeps what is between {KIND} and {end}, and folds the files that the page names, from the first folder that has them, into
the page. Style and scripts become their text, WebAssembly its gzip in base 64, pictures data. A picture NAME.png may stand there
as NAME.pam.
"""
import base64
import gzip
import html
import pathlib
import re
import struct
import sys
import zlib


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png_of_pam(data):
    """P7 with four channels of a byte."""
    head, pixels = data.split(b"ENDHDR\n", 1)
    width, height = (int(re.search(rb"%s (\d+)" % name, head)[1]) for name in (b"WIDTH", b"HEIGHT"))
    start = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    rows = b"".join(b"\0" + pixels[4 * width * y:4 * width * (y + 1)] for y in range(height))
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", start) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")


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
        converters = {".png": bytes, ".pam": png_of_pam}
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


def variant(text, kind, title, program):
    """The page of a kind, with the names that stand in it."""
    text = re.sub(r"\{(demo|project)\}(.*?)\{end\}", lambda m: m[2] if m[1] == kind else "", text, flags=re.DOTALL)
    return text.replace("@TITLE@", html.escape(title)).replace("@PROGRAM@", program).replace("@KIND@", kind)


def main():
    kind, title, program, output, *folders = sys.argv[1:]
    fold = Fold(folders)
    page = fold.page(variant(fold.find("page.html").read_text(encoding="utf-8"), kind, title, program))
    pathlib.Path(output).write_text(page, encoding="utf-8")


main()
