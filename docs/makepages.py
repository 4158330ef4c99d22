#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT
"""Writes what of the reference is made from the gallery.

makepages.py LIST TOUR PICTURES CLASSES MAIN_PAGE OUTPUT

LIST is what "utilitywidgets-gallery --list" prints, TOUR and PICTURES are the folders of its options
of these names, CLASSES the public classes, separated by commas. Written into the folder OUTPUT:

  top/CLASS    the picture of each class, which filter.py puts above its description
  bottom.dox   its dialogs and its page in the gallery, to stand below
  index.md     the main page: MAIN_PAGE, then the classes by family, with a picture each
  pictures.doxyfile  what copies the pictures

A class without a page or a picture is an error.
"""

import html
import pathlib
import sys

# Where a page's stage is not what shows the class best: the dialog that does.
BEST = {"NavigationBar": "whole", "SymbolDatabaseWidget": "insert"}

# Pictures on the main page are cut to this height, in pixels; style.css has it as well.
CARD_HEIGHT = 130


class Page:
    """A page of the gallery: the line of its own in the list, and those of its dialogs."""

    def __init__(self, family, name, summary):
        self.family = family
        self.name = name
        self.summary = summary
        self.dialogs = []  # (file name, caption)
        self.best = None  # (file name, alternative text)


def read_list(text):
    pages = {}
    for line in text.splitlines():
        family, name, summary = line.split("\t")
        page, _, state = name.partition("-")
        if state:
            pages[page].dialogs.append((f"{name}.png", summary))
        else:
            pages[name] = Page(family, name, summary)
    return pages


def choose_picture(page, pictures):
    stage = f"{page.name}.png"
    wanted = f"{page.name}-{BEST.get(page.name, '')}.png"
    dialogs = [file for file, _ in page.dialogs if (pictures / file).exists()]
    if wanted in dialogs:
        page.best = (wanted, f"{page.name}: {dict(page.dialogs)[wanted]}")
    elif (pictures / stage).exists():
        page.best = (stage, f"{page.name}: {page.summary}")
    elif dialogs:
        page.best = (dialogs[0], f"{page.name}: {dict(page.dialogs)[dialogs[0]]}")


def figure(source, alternative, caption="", width=""):
    attributes = f' width="{width}"' if width else ""
    below = f'<div class="caption">{html.escape(caption)}</div>' if caption else ""
    return (f'\\htmlonly\n<div class="image"><img src="{source}" alt="{html.escape(alternative)}"'
            f"{attributes}/>{below}</div>\n\\endhtmlonly\n")


def bottom(page):
    text = ""
    for file, caption in page.dialogs:
        if file != page.best[0]:
            text += figure(file, f"{page.name}: {caption}", caption)
    return text + figure(f"page-{page.name}.png", f"The gallery's page of {page.name}",
                         "Its page in the gallery, with the code that makes it.", "768")


def height(png):
    return int.from_bytes(png.read_bytes()[20:24], "big")


def classes_by_family(pages, pictures):
    text = "\n## Classes by family\n\n"
    families = dict.fromkeys(page.family for page in pages)
    for family in families:
        text += f"### {family}\n\n\\htmlonly\n<div class=\"cards\">\n"
        for page in pages:
            if page.family == family:
                file, alternative = page.best
                low = ' class="low"' if height(pictures / file) < CARD_HEIGHT else ""
                text += (f'<a class="card" href="class{page.name}.html">'
                         f'<span class="picture"><img{low} src="{file}"'
                         f' alt="{html.escape(alternative)}"/></span>'
                         f"<b>{page.name}</b><span>{html.escape(page.summary)}</span></a>\n")
        text += "</div>\n\\endhtmlonly\n\n"
    return text


def main():
    list_file, tour, pictures, classes, main_page, output = sys.argv[1:]
    pictures, output = pathlib.Path(pictures), pathlib.Path(output)
    pages = read_list(pathlib.Path(list_file).read_text(encoding="utf-8"))
    classes = classes.split(",")
    mistakes = [f"{name} has no page in the gallery" for name in classes if name not in pages]
    shown = [page for page in pages.values() if page.name in classes]
    for page in shown:
        choose_picture(page, pictures)
        if page.best is None:
            mistakes.append(f"{page.name}: the gallery took no picture")
        whole = pathlib.Path(tour) / f"{page.name}.png"
        if whole.exists():
            (pictures / f"page-{page.name}.png").write_bytes(whole.read_bytes())
        else:
            mistakes.append(f"{page.name}: the tour took no picture")
    if mistakes:
        sys.exit("\n".join(mistakes))
    (output / "top").mkdir(parents=True, exist_ok=True)
    for page in shown:
        (output / "top" / page.name).write_text(figure(*page.best), encoding="utf-8")
    below = "".join(f"/*! \\class {page.name}\n\n{bottom(page)}*/\n" for page in shown)
    (output / "bottom.dox").write_text(below, encoding="utf-8")
    index = pathlib.Path(main_page).read_text(encoding="utf-8")
    (output / "index.md").write_text(index + classes_by_family(shown, pictures),
                                     encoding="utf-8")
    # What the guides show, and the gallery did not take just now under the same name.
    taken = {file.name: file for file in pathlib.Path(main_page).parent.glob("images/*.png")}
    taken.update((file.name, file) for file in pictures.glob("*.png"))
    files = " \\\n    ".join(f'"{taken[name]}"' for name in sorted(taken))
    (output / "pictures.doxyfile").write_text(f"HTML_EXTRA_FILES = {files}\n", encoding="utf-8")


main()
