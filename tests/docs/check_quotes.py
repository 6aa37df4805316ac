"""Checks that the files which a document quotes whole are quoted as they are.

check_quotes.py DOCUMENT SOURCE...
"""
import sys


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


document = read(sys.argv[1])
stale = [path for path in sys.argv[2:] if f"```c\n{read(path)}```\n" not in document]
for path in stale:
    print(f"{sys.argv[1]} does not quote {path} as it is")
sys.exit(1 if stale else 0)
