"""Looks for what makes a fault in the library harder to use, in the built file.

The arguments behind the tool's name are the checks that this C library and build type offer:
functions that the library must import, each as a pattern.
"""
import re
import subprocess
import sys


def main(library, readelf, *checks):
    def read(option):
        return subprocess.run((readelf, option, "-W", library), check=True, capture_output=True,
                              text=True).stdout

    segments = {words[0]: words[-2] for words in map(str.split, read("-l").splitlines())
                if len(words) >= 8 and words[1].startswith("0x")}
    dynamic = read("-d")
    imported = re.findall(r" UND (\w+)", read("--dyn-syms"))

    problems = [f"no import of {check}" for check in checks
                if not any(re.fullmatch(check, name) for name in imported)]
    if "GNU_RELRO" not in segments:
        problems.append("relocated data stay writable: no GNU_RELRO")
    if segments.get("GNU_STACK", "E") != "RW":
        problems.append("an executable stack")
    if "TEXTREL" in dynamic:
        problems.append("relocations in the code: TEXTREL")
    # A page that hashes no password starts without crypt().
    if re.search(r"BIND_NOW|FLAGS_1.*\bNOW\b", dynamic):
        problems.append("bound at start")
    print("\n".join(problems) or "hardened")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
