"""Prints what the library takes on the target: sizes, relocations, and stack by function.

sizes.py BUILD_FOLDER TOOL_PREFIX
"""
import pathlib
import re
import subprocess
import sys

LARGE_FRAME = 100


def tool(name, *words):
    return subprocess.run([name, *map(str, words)], check=True, capture_output=True,
                          text=True).stdout


def size(prefix, path):
    """Text with read-only data, data, bss."""
    return [int(word) for word in tool(prefix + "size", path).splitlines()[1].split()[:3]]


def print_table(titles, rows):
    rows = [titles, ["---"] + ["---:"] * (len(titles) - 1), *rows]
    print("\n".join("| " + " | ".join(map(str, row)) + " |" for row in rows), end="\n\n")


def print_library(build, prefix):
    library = build / "lib/libtavik.so"
    relocations = tool(prefix + "readelf", "-r", library)
    at_start = len(re.findall("R_ARM_(?:RELATIVE|GLOB_DAT|ABS32)", relocations))
    lazy = relocations.count("R_ARM_JUMP_SLOT")
    titles = ["libtavik.so", "text and constants", "data", "bss", "relocations at the start",
              "at a first call"]
    print_table(titles, [["bytes", *size(prefix, library), at_start, lazy]])


def print_subsystems(build, prefix):
    objects = build / "src/CMakeFiles/tavik.dir"
    rows = []
    for folder in sorted(path for path in objects.iterdir() if path.is_dir()):
        sizes = [size(prefix, path) for path in folder.glob("*.o")]
        rows.append([folder.name, *map(sum, zip(*sizes))])
    print_table(["subsystem", "text and constants", "data", "bss"], rows)


def frames(build):
    """Function, file, bytes, and whether an argument adds to them."""
    for usage in (build / "src").rglob("*.su"):
        for line in usage.read_text().splitlines():
            place, count, kind = line.split("\t")
            source, number = place.split(":")[:2]
            text = pathlib.Path(source).read_text().splitlines()[int(number) - 1]
            name = re.search(r"(\w+)\(", text).group(1)
            yield name, "/".join(source.split("/")[-2:]), int(count), kind != "static"


def print_stack(build):
    found = sorted(frames(build), key=lambda frame: (-frame[2], frame[0]))
    fixed = [frame[:3] for frame in found if not frame[3]]
    large = [frame for frame in fixed if frame[2] >= LARGE_FRAME]
    print_table(["function with a large stack frame", "file", "bytes"], large)
    print(f"The other {len(fixed) - len(large)} functions take less than {LARGE_FRAME} bytes each;"
          " these take as many more as their arguments ask for:")
    print(", ".join(sorted(frame[0] for frame in found if frame[3])))


if __name__ == "__main__":
    folder, tools = pathlib.Path(sys.argv[1]), sys.argv[2]
    print_library(folder, tools)
    print_subsystems(folder, tools)
    print_stack(folder)
