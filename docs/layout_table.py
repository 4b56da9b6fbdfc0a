#!/usr/bin/env python3
"""layout_table.py TABLE...: the rows of layouts.md, out of what scripts/bench has printed."""
import sys

rows = {}
for line in (line for name in sys.argv[1:] for line in open(name)):
    words = line.split()
    if len(words) > 13 and words[3] == "cache" and words[10:13].count("-") < 3:
        function, type_, size, ours = words[0], words[1], words[2], float(words[4])
        ratios = [f"{ours / float(word):#.2g}" if word != "-" else "–" for word in (words[11], words[10], words[12])]
        rows.setdefault(function, {})[f"{type_} {size}"] = "\u00a0/\u00a0".join(ratios)

columns = ["32f 3", "32f 4", "32f 6", "64f 3", "64f 4", "64f 6"]
print("| function |", " | ".join(columns), "|")
print("|---" * (len(columns) + 1) + "|")
for function, cells in rows.items():
    print(f"| `{function}` |", " | ".join(cells.get(column, "") for column in columns), "|")
