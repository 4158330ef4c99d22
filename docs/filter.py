#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT
"""What Doxygen reads in place of a file.

filter.py PAGES FILE

In a header, the picture of each class (see makepages.py) follows the first paragraph of its
description. Markdown is written for git hosts: Doxygen takes no title from a page that begins with a
comment, takes a link to a page for one to the file, looks for pictures in other places, and gives
them no alternative text.
"""

import html
import pathlib
import re
import sys

CLASS_COMMENT = re.compile(
    r"(/\*!\n \* \\brief (?:(?! \*\n| \*/).*\n)*)((?:(?!\*/).*\n)*? ?\*/\n"
    r"class UTILITYWIDGETS_EXPORT (\w+))")
LEADING_COMMENT = re.compile(r"\A<!--.*?-->\s*", re.DOTALL)
TITLE = re.compile(r"^# (.*)$", re.MULTILINE)
PAGE_LINK = re.compile(r"\]\((?:[\w./-]*/)?([\w-]+)\.md\)")
PICTURE = re.compile(r"^!\[([^]]*)\]\([^)]*?([^/)]+)\)$", re.MULTILINE)


def with_pictures(header, pages):
    def insert(match):
        picture = pages / "top" / match[3]
        if not picture.exists():
            return match[0]
        lines = picture.read_text(encoding="utf-8").splitlines()
        return match[1] + " *\n" + "".join(f" * {line}\n" for line in lines) + match[2]

    return CLASS_COMMENT.sub(insert, header)


def page_name(stem):
    return "page_" + stem.lower().replace("-", "_")


def for_doxygen(text, stem):
    text = LEADING_COMMENT.sub("", text)
    if stem != "index":  # which is the main page
        text = TITLE.sub(rf"# \1 {{#{page_name(stem)}}}", text, count=1)
    text = PAGE_LINK.sub(lambda match: f"](@ref {page_name(match[1])})", text)
    return PICTURE.sub(
        lambda match: '\\htmlonly\n<div class="image">'
        f'<img src="{match[2]}" alt="{html.escape(match[1])}"/></div>\n\\endhtmlonly', text)


def main():
    pages, file = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    text = file.read_text(encoding="utf-8")
    sys.stdout.write(for_doxygen(text, file.stem) if file.suffix == ".md"
                     else with_pictures(text, pages))


main()
