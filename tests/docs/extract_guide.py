"""Takes the programs out of the guide: extract_guide.py GUIDE FOLDER

A fence "```c NAME" is a file of that name. In controls.c a comment stands for the calls of the
table of field types; each goes into an element with the name of its picture.
"""
import pathlib
import re
import sys

guide = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
folder = pathlib.Path(sys.argv[2])
calls = re.findall(r"^\|[^|]*\(pictures/fields/(\w+)\.png\) \| `(.*?)` \|", guide, re.MULTILINE)
table = "".join(f'  print_str("<p id=\\"{name}\\">");\n  {call}\n  print_str("</p>\\n");\n'
                for name, call in calls)

files = dict(re.findall(r"^```c(?:pp)? (\S+)\n(.*?)^```$", guide, re.MULTILINE | re.DOTALL))
files["controls.c"] = files["controls.c"].replace("  /* The calls of the table. */\n", table)
folder.mkdir(parents=True, exist_ok=True)
for path in folder.glob("*.*"):
    if path.name not in files:
        path.unlink()
for name, text in files.items():
    path = folder / name
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")
