#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Merges the texts that Qt's lupdate found, and those of rooms without Qt, into a file of
translations with one context, sorted by the English text."""

import re
import sys
import xml.etree.ElementTree as tree
from pathlib import Path
from xml.sax.saxutils import escape

# Files of rooms without Qt whose texts are shown, and what a text looks like there.
PLAIN = {
    "job/pens.cpp": r'\{"([A-Z][a-z ]+)", 0x',
    "check/kinds.cpp": r'Level::\w+,\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\}',
    "gcode/dialects.cpp": r'\.save(?:Title|Kind) = ("(?:[^"\\]|\\.)*")',
    "languages/plain_patterns.h": r'^    (R"\(.*\)"|"(?:[^"\\]|\\.)*"),$',
}


def key_of(message):
    """The text, and the note that tells it from the same text with another meaning."""
    return message.findtext("source"), message.findtext("comment") or ""


def plain_texts():
    for name, pattern in PLAIN.items():
        for found in re.findall(pattern, Path(name).read_text(), re.M):
            if raw := re.fullmatch(r'R"\((.*)\)"', found):
                yield raw[1], ""
                continue
            parts = re.findall(r'"((?:[^"\\]|\\.)*)"', found) or [found]
            yield "".join(parts).replace('\\"', '"').replace("\\n", "\n"), ""


def known(path):
    if not path.exists():
        return {}
    return {key_of(message): message.findtext("translation")
            for message in tree.parse(path).iter("message")}


def main():
    found, kept = Path(sys.argv[1]), Path(sys.argv[2])
    texts = {key_of(message) for message in tree.parse(found).iter("message")} | set(plain_texts())
    translations = known(kept)
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
             '<TS version="2.1" language="de" sourcelanguage="en">', "<context>",
             "    <name>Torvik</name>"]
    for text in sorted(texts):
        german = translations.get(text)
        value = (f"<translation>{escape(german)}</translation>" if german
                 else '<translation type="unfinished"></translation>')
        lines += ["    <message>", f"        <source>{escape(text[0])}</source>"]
        if text[1]:
            lines.append(f"        <comment>{escape(text[1])}</comment>")
        lines += [f"        {value}", "    </message>"]
    kept.write_text("\n".join(lines + ["</context>", "</TS>", ""]))
    missing = sum(not translations.get(text) for text in texts)
    print(f"{len(texts)} texts, {missing} without a translation")


main()
