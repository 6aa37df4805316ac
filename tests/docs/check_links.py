"""Checks that what the documents link to is there, files and headings: check_links.py DOCUMENT..."""
import pathlib
import re
import sys


def anchors(path):
    titles = re.findall(r"^#+ (.*)", path.read_text(encoding="utf-8"), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", title.lower()).replace(" ", "-") for title in titles}


def is_there(document, link):
    name, _, anchor = link.partition("#")
    path = document.parent / name if name else document
    return path.exists() and (not anchor or anchor in anchors(path))


dead = [f"{name}: {link}" for name in sys.argv[1:]
        for link in re.findall(r"\]\(([^):]+)\)", pathlib.Path(name).read_text(encoding="utf-8"))
        if not is_there(pathlib.Path(name), link)]
print("\n".join(dead))
sys.exit(1 if dead else 0)
