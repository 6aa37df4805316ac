"""Writes manual pages of section 3 from the public header: man_pages.py HEADER VERSION FOLDER

One page for each function, and tavik(3) with what holds for all. The date is that of
SOURCE_DATE_EPOCH, if set, else today's.
"""
import os
import pathlib
import re
import shutil
import sys
import time

import header

WIDTH = 72


def escape(text):
    """Text for a line of mdoc(7): nothing in it is a request, and ASCII stays ASCII."""
    for plain, escaped in (("\\", r"\e"), ("'", r"\(aq"), ("`", r"\(ga"), ("^", r"\(ha"),
                           ("~", r"\(ti")):
        text = text.replace(plain, escaped)
    text = re.sub(r"(?<!\w)-", r"\-", text)
    text = re.sub(r"\b\w+_\w+", r"\%\g<0>", text)  # a name is never hyphenated
    return re.sub(r"^\.", r"\&.", text)


class Page:
    def __init__(self, names):
        self.names = names  # of all functions: these have pages to refer to
        self.lines = []

    def macro(self, *words):
        self.lines.append("." + " ".join(words))

    def quoted(self, macro, text):
        self.macro(macro, '"' + escape(text).replace('"', '""') + '"')

    def reference(self, word):
        """The macro line for name(), which may have a page of its own; None for other words."""
        match = re.fullmatch(r"(\w+)\(\)([,.;:]?)", word)
        if not match:
            return None
        name, end = match.groups()
        return (f".Xr {name} 3 {end}" if name in self.names else f".Fn {name} {end}").rstrip()

    def text(self, text):
        """One line for each sentence, broken at WIDTH."""
        for sentence in re.split(r"(?<=[.?!]) (?=[^a-z])", text):
            line = ""
            for word in sentence.split():
                reference = self.reference(word)
                if line and (reference or len(line) + len(word) >= WIDTH):
                    self.lines.append(escape(line))
                    line = ""
                if reference:
                    self.lines.append(reference)
                else:
                    line += " " * bool(line) + word
            if line:
                self.lines.append(escape(line))

    def paragraphs(self, texts):
        for number, text in enumerate(texts):
            if text.startswith("  "):
                self.verbatim(text)
                continue
            if number > 0:
                self.macro("Pp")
            self.text(text)

    def verbatim(self, source):
        self.macro("Bd", "-literal")
        self.lines += [escape(line) for line in source.split("\n")]
        self.macro("Ed")

    def references(self, names):
        *most, last = sorted(names)
        for name in most:
            self.macro("Xr", name, "3", ",")
        self.macro("Xr", last, "3")


def begin(page, name, version):
    moment = time.gmtime(int(os.environ.get("SOURCE_DATE_EPOCH", time.time())))
    page.macro("Dd", time.strftime(f"%B {moment.tm_mday}, %Y", moment))
    page.macro("Dt", name.upper(), "3")
    page.macro("Os", f"libtavik {version}")
    page.macro("Sh", "NAME")
    page.macro("Nm", name)


def c_style(declaration):
    return re.sub(r"(\w)(\*+) ?", r"\1 \2", declaration)


def synopsis(page, function):
    page.macro("Sh", "SYNOPSIS")
    page.macro("In", "tavik.h")
    page.quoted("Ft", c_style(function.result_type).strip())
    page.macro("Fo", function.name)
    for argument in function.arguments:
        page.quoted("Fa", c_style(argument))
    page.macro("Fc")


def shown_types(function, sections):
    """The declarations that a function's prototype or text names, and those that these name."""
    types = [each for section in sections for each in section.types]
    words, shown = set(re.findall(r"\w+", function.text())), []
    for _ in types:
        for each in types:
            if each not in shown and each.names & words and "#define" not in each.code:
                shown.append(each)
                words |= set(re.findall(r"\w+", each.code))
    macros = [line for each in types for line in each.code.split("\n")
              if line.startswith("#define") and line.split()[1] in words]
    sources = [each.source for each in types if each in shown]
    return sources + (["\n".join(macros)] if macros else [])


def description(page, function, section, sections):
    page.macro("Sh", "DESCRIPTION")
    page.paragraphs(function.description)
    if function.nonnull:
        page.macro("Pp")
        page.text(f"Never null: {' and '.join(function.nonnull)}.")
    for above in (section, section.parent):
        if above and above.text:
            page.macro("Ss", above.title)
            page.paragraphs(above.text)
    types = shown_types(function, sections)
    if types:
        page.macro("Ss", "Declarations")
        page.verbatim("\n\n".join(types))


def function_page(function, section, sections, names, version):
    page = Page(names - {function.name})
    begin(page, function.name, version)
    summary = function.summary
    page.quoted("Nd", summary if summary[1].isupper() else summary[0].lower() + summary[1:])
    synopsis(page, function)
    description(page, function, section, sections)
    if function.result:
        page.macro("Sh", "RETURN VALUES")
        page.text(function.result[0].upper() + function.result[1:])
    page.macro("Sh", "SEE ALSO")
    mentioned = {name for name in re.findall(r"\b(\w+)\(\)", function.text()) if name in names}
    siblings = {each.name for each in section.functions}
    page.references((siblings | mentioned | {"tavik"}) - {function.name})
    return page


def rules(page, text):
    """The head comment: paragraphs, and rules of a word and its text, which is indented."""
    paragraphs, terms = [], []
    for line in text.split("\n"):
        term = re.match(r"(\w+) {3,}(.*)", line)
        if term:
            terms.append(list(term.groups()))
        elif terms:
            terms[-1][1] += " " + line.strip()
        else:
            paragraphs.append(line)
    page.paragraphs(header.paragraphs("\n".join(paragraphs)))
    page.macro("Bl", "-tag", "-width", "Process")
    for word, told in terms:
        page.macro("It", word)
        page.text(" ".join(told.split()))
    page.macro("El")


def overview_page(head, sections, names, version):
    page = Page(names)
    title, text = head.split("\n", 1)
    name, told = title.split(".h - ")
    begin(page, name, version)
    page.quoted("Nd", told)
    page.macro("Sh", "SYNOPSIS")
    page.macro("In", "tavik.h")
    page.macro("Sh", "DESCRIPTION")
    rules(page, text.strip())
    for section in sections:
        if section.text or section.functions:
            page.macro("Ss", section.title)
        page.paragraphs(section.text)
        for each in section.types:
            if "#define PF_" in each.code:
                page.verbatim(each.source)
        if section.functions:
            page.macro("Bl", "-tag", "-width", "Ds", "-compact")
        for each in section.functions:
            page.macro("It", "Xr", each.name, "3")
            page.text(each.summary + ".")
        if section.functions:
            page.macro("El")
    return page


def main(path, version, folder):
    head, sections = header.read(pathlib.Path(path).read_text(encoding="utf-8"))
    members = [(each, section) for section in sections for each in section.functions]
    names = {each.name for each, _ in members}
    shutil.rmtree(folder, ignore_errors=True)
    pages = {each.name: function_page(each, section, sections, names, version)
             for each, section in members}
    pages["tavik"] = overview_page(head, sections, names, version)
    target = pathlib.Path(folder)
    target.mkdir(parents=True)
    for name, page in pages.items():
        (target / f"{name}.3").write_text("\n".join(page.lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
