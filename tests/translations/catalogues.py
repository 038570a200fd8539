#!/usr/bin/env python3
# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

"""catalogues.py FOLDER LUPDATE ROOM...

The translations in the folder have the texts of the sources in the rooms, and all are done.
"""

import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree
from pathlib import Path

FOLDER = Path(sys.argv[1])
LUPDATE, *ROOMS = sys.argv[2:]

# All that the English file is there for.
MISSPELT = ["Close All(Except Current)", "Infomation", "The director entered ", "The Target folder ",
            "already exist."]

mistakes = []


def messages(file):
    """From context, text and remark of each message to its translation element."""
    found = {}
    for context in xml.etree.ElementTree.parse(file).iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment"))
            found[key] = message.find("translation")
    return found


def is_misspelt(text):
    return any(part in text for part in MISSPELT)


with tempfile.TemporaryDirectory() as folder:
    fresh = Path(folder) / "fresh.ts"
    subprocess.run([LUPDATE, "-silent", *ROOMS, "-ts", str(fresh)], check=True)
    texts = messages(fresh)

files = sorted(FOLDER.glob("norvane_*.ts"))
for file in files:
    translations = messages(file)
    for context, source, _ in texts.keys() - translations.keys():
        mistakes.append(f"{file.name}: lacks {context}: {source}")
    for context, source, _ in translations.keys() - texts.keys():
        mistakes.append(f"{file.name}: has what no source has, {context}: {source}")
    for (context, source, _), translation in translations.items():
        text = translation.text or ""
        if translation.get("type") or not text:
            mistakes.append(f"{file.name}: is not done with {context}: {source}")
        elif sorted(re.findall("%[0-9]", text)) != sorted(re.findall("%[0-9]", source)):
            mistakes.append(f"{file.name}: has other place marks in {context}: {source}")
        if file.stem == "norvane_en" and (text != source) != is_misspelt(source):
            mistakes.append(f"{file.name}: mends what is right, or leaves what is wrong: {source}")

if len(files) < 6 or len(texts) < 40:
    mistakes.append(f"only {len(files)} files and {len(texts)} texts were found")
for mistake in mistakes:
    print(mistake)
if mistakes:
    print("CONTRIBUTING.md says how to bring the translations up to date.")
sys.exit(1 if mistakes else 0)
