"""Reads the public header: its sections, and in each the functions, types and comments.

A chunk is what stands between two blank lines. A comment directly ahead of a prototype is that
function's contract; one that stands alone belongs to its section. A contract begins with its
summary, and its paragraph "Result:" tells the result of whatever is not void.
"""
import re
from dataclasses import dataclass, field


@dataclass
class Function:
    name: str
    result_type: str
    arguments: list
    nonnull: list
    description: list  # paragraphs; one that is indented stands as it is
    result: str

    @property
    def summary(self):
        return re.split(r"[.:;](?: |$)", self.description[0])[0]

    def text(self):
        return " ".join([self.result_type, *self.arguments, *self.description, self.result])


@dataclass
class Type:
    source: str  # as the header has it, with its comment
    code: str

    @property
    def names(self):
        patterns = (r"typedef [^;{(]*?(\w+);", r"\(\*(\w+)\)\(", r"^(?:struct|union) (\w+);",
                    r"^ +([A-Z]\w+) = ", r"^#define (\w+)")
        return {name for pattern in patterns for name in re.findall(pattern, self.code, re.M)}


@dataclass
class Section:
    title: str
    parent: "Section | None" = None
    text: list = field(default_factory=list)  # paragraphs
    types: list = field(default_factory=list)
    functions: list = field(default_factory=list)


def fail(message, source):
    raise SystemExit(f"tavik.h: {message}:\n{source}")


def paragraphs(comment):
    lines = [re.sub(r"^ ?\* ?", "", line).rstrip() for line in comment.strip("/").split("\n")]
    text = "\n".join(lines).strip("* \n")
    return [paragraph if paragraph.startswith("  ") else " ".join(paragraph.split())
            for paragraph in text.split("\n\n") if paragraph.strip()]


def split_arguments(text):
    """At the commas outside of parentheses."""
    arguments, depth, start = [], 0, 0
    for place, character in enumerate(text):
        depth += (character == "(") - (character == ")")
        if character == "," and depth == 0:
            arguments.append(text[start:place])
            start = place + 1
    return [" ".join(argument.split()) for argument in [*arguments, text[start:]]]


def argument_name(argument):
    in_pointer = re.search(r"\(\*(\w+)\)", argument)
    return in_pointer.group(1) if in_pointer else re.findall(r"\w+", argument)[-1]


def function(comment, code):
    words = re.search(r"TAVIK_NONNULL\(([^)]*)\)", code)
    plain = re.sub(r"TAVIK_\w+(\([^)]*\))?", "", code)
    match = re.fullmatch(r"\s*([\w\s*]+?)\b(\w+)\((.*)\)\s*;", plain, re.S)
    if not match or not comment:
        fail("no documented prototype", code)
    result_type, name, arguments = match.groups()
    arguments = split_arguments(arguments)
    nonnull = [arguments[int(place) - 1] for place in words.group(1).split(",")] if words else []
    told = paragraphs(comment)
    results = [paragraph for paragraph in told if paragraph.startswith("Result: ")]
    description = [paragraph for paragraph in told if paragraph not in results]
    if len(results) > 1 or not description:
        fail("no description, or more than one result", comment)
    return Function(name, " ".join(result_type.split()), arguments,
                    [argument_name(argument) for argument in nonnull], description,
                    results[0].removeprefix("Result: ") if results else "")


def section(comment, section_above):
    """The section that a banner begins, or None for any other comment."""
    minor = re.fullmatch(r"/\* -{4} (.*?) -+ \*/", comment)
    if minor:
        return Section(minor.group(1), section_above.parent or section_above)
    if comment.startswith("/* ===="):
        title, *text = paragraphs(comment.replace("=", ""))
        return Section(title, text=text)
    return None


def results_of_families(sections):
    """A function without a paragraph "Result:" shares the one of its section's text."""
    for one in sections:
        shared = re.search(r"Result: (.*?\.) ?", " ".join(one.text))
        one.text = [re.sub(r"Result: .*?\. ?", "", paragraph) for paragraph in one.text]
        for member in one.functions:
            if not member.result and member.result_type != "void":
                if not shared:
                    fail("no result told", member.name)
                member.result = shared.group(1)


def read(text):
    """The paragraphs of the head comment, as they are, and the sections."""
    start = text.index("/* ====")
    sections = []
    body = text[start : text.index("#ifdef __cplusplus", start)].strip()
    for chunk in re.split(r"\n\s*\n", body):
        comment, code = re.fullmatch(r"(/\*.*?\*/)?\s*(.*)", chunk, re.S).groups()
        begun = section(comment or "", sections[-1] if sections else None)
        if begun:
            sections.append(begun)
        elif "TAVIK_API" in code:
            sections[-1].functions.append(function(comment, code))
        elif code.strip():
            sections[-1].types.append(Type(chunk.strip("\n"), code))
        else:
            sections[-1].text += paragraphs(comment)
    results_of_families(sections)
    head = re.match(r"/\*(.*?)\*/", text, re.S).group(1)
    return re.sub(r"^ \* ?", "", head.strip("\n"), flags=re.M).strip(), sections
