"""Compares what the header declares with the export map, the built library and the plain C program.

Fails on a missing or extra name, a function that the plain C program does not call, an undocumented
prototype, a C++ runtime symbol, a needed library other than libc (on 32-bit ARM also the loader, for
the stack protector), and a call inside the library that a function of the same name in a page would
redirect.
"""
import glob
import re
import subprocess
import sys

FUNCTIONS = 219


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def declared(header):
    """The declared names, and those whose prototype has no comment directly ahead of it."""
    names, bare = [], []
    for match in re.finditer(r"^TAVIK_API\s[^;]*?\b(?!TAVIK_)(\w+)\(", header, re.MULTILINE):
        names.append(match.group(1))
        if not header[: match.start()].endswith("*/\n"):
            bare.append(match.group(1))
    return names, bare


def called(folder):
    """All names that a C program calls; only lines of function bodies are indented."""
    text = "".join(read(path) for path in glob.glob(f"{folder}/*.c"))
    return set(re.findall(r"\w+(?=\()", "".join(re.findall(r"^ .*", text, re.MULTILINE))))


def tool(*words):
    return subprocess.run(words, check=True, capture_output=True, text=True).stdout


def main(library, header_path, map_path, plain_folder, nm, readelf):
    names, bare = declared(read(header_path))
    listed = re.findall(r"^\s*(\w+);$", read(map_path), re.MULTILINE)
    dynamic = [line.split() for line in tool(nm, "-D", library).splitlines()]
    exported = [words[-1] for words in dynamic if words[-2] not in "Uw"]
    runtime = [words[-1] for words in dynamic
               if re.match(r"_Z|__gxx|_Unwind|__cxa_(?!finalize)", words[-1])]
    needed = re.findall(r"\(NEEDED\).*\[(.*)\]", tool(readelf, "-d", library))
    foreign = [name for name in needed if not re.match(r"libc\.so|ld-linux-armhf\.so", name)]
    relocated = re.findall(r"^\S+ +\S+ +R_\S+ +\S+ +(\w+)", tool(readelf, "-rW", library),
                           re.MULTILINE)

    problems = {
        "without a comment": bare,
        "declared twice": [name for name in set(names) if names.count(name) > 1],
        "declared, not in the map": sorted(set(names) - set(listed)),
        "in the map, not declared": sorted(set(listed) - set(names)),
        "declared, not exported": sorted(set(names) - set(exported)),
        "exported, not declared": sorted(set(exported) - set(names)),
        "not called by the plain C program": sorted(set(names) - called(plain_folder)),
        "C++ runtime symbols": runtime,
        "needed libraries": foreign,
        "open to redirection": sorted(set(relocated) & set(exported)),
    }
    for title, found in problems.items():
        if found:
            print(f"{title}: {', '.join(found)}")
    print(f"{len(names)} functions declared, {len(exported)} exported")
    return 1 if any(problems.values()) or len(names) != FUNCTIONS else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
