#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT
"""Checks the pictures that the repository holds for its Markdown, or takes them anew.

docpictures.py [--update] IMAGES TOUR PICTURES

Every picture in the folder IMAGES is one that the gallery takes: of the folder PICTURES under its
own name, or of the folder TOUR under the name behind "screen-". None is made by hand. Fails when
the gallery takes no such picture, or one of another size: then run the target update-doc-pictures.
"""

import pathlib
import sys

# The picture on the first page of all.
ALIASES = {"gallery.png": "screen-SymbolDatabaseWidget-insert.png"}


def size(png):
    header = png.read_bytes()[:24]
    return int.from_bytes(header[16:20], "big"), int.from_bytes(header[20:24], "big")


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--update"]
    images, tour, pictures = map(pathlib.Path, arguments)
    mistakes = []
    for image in sorted(images.iterdir()):
        name = ALIASES.get(image.name, image.name)
        folder = tour if name.startswith("screen-") else pictures
        taken = folder / name.removeprefix("screen-")
        if not taken.exists():
            mistakes.append(f"{image}: the gallery takes no such picture")
        elif "--update" in sys.argv:
            image.write_bytes(taken.read_bytes())
        elif size(image) != size(taken):
            mistakes.append(f"{image}: {size(image)}, but the gallery's is {size(taken)}")
    if mistakes:
        sys.exit("\n".join(mistakes))


main()
