#!/usr/bin/env python3
"""layout_table.py TABLE...: the rows of layouts.md, out of what scripts/bench has printed."""
import sys

rows, at = {}, {}
for line in (line for name in sys.argv[1:] for line in open(name)):
    words = line.split()
    if words[:2] == ["function", "type"]:
        at = {column: words.index(column) for column in ("ours", "planesS", "planesP", "list")}
    elif len(words) > 14 and words[3] == "cache":
        others = [words[at[column]] for column in ("planesS", "planesP", "list")]
        if others.count("-") < 3:
            ratios = [f"{float(words[at['ours']]) / float(word):#.2g}" if word != "-" else "–" for word in others]
            rows.setdefault(words[0], {})[f"{words[1]} {words[2]}"] = "\u00a0/\u00a0".join(ratios)

columns = ["32f 3", "32f 4", "32f 6", "64f 3", "64f 4", "64f 6"]
print("| function |", " | ".join(columns), "|")
print("|---" * (len(columns) + 1) + "|")
for function, cells in rows.items():
    print(f"| `{function}` |", " | ".join(cells.get(column, "") for column in columns), "|")
