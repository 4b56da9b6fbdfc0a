#!/usr/bin/env python3
"""Draws the three memory layouts: layout-s.svg, layout-p.svg, layout-l.svg, three 2x2 matrices a, b, c in each."""
from pathlib import Path

CELL, HEIGHT, TINT = 46, 34, {"a": "#cfe3f7", "b": "#d9efcf", "c": "#fbe3c4", "": "#f1f1f1"}


class Picture:
    def __init__(self, name, width, height):
        self.name, self.parts = name, [
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}" '
            'font-family="DejaVu Sans, Verdana, sans-serif" font-size="14" fill="#222">',
            '<marker id="head" viewBox="0 0 8 8" refX="7" refY="4" markerWidth="7" markerHeight="7" orient="auto">'
            '<path d="M0,0.5 L7.5,4 L0,7.5 z" fill="#555"/></marker>',
            f'<rect width="{width}" height="{height}" rx="8" fill="#fff"/>']

    def text(self, x, y, what, anchor="middle", style=""):
        self.parts.append(f'<text x="{x}" y="{y}" text-anchor="{anchor}" {style}>{what}</text>')

    def cells(self, x, y, names):
        """Neighbouring bytes of memory, an element each; an empty name is memory between objects."""
        for k, name in enumerate(names):
            self.parts.append(f'<rect x="{x + k * CELL}" y="{y}" width="{CELL}" height="{HEIGHT}" fill="{TINT.get(name[:1], TINT[""])}" '
                              'stroke="#888"/>')
            self.text(x + (k + 0.5) * CELL, y + 22, name)

    def arrow(self, x1, y1, x2, y2):
        self.parts.append(f'<line x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}" stroke="#555" stroke-width="1.5" '
                          'marker-end="url(#head)"/>')

    def span(self, x, y, k, to, label, row):
        """From the start of cell k to the start of another, under the cells that begin at (x, y)."""
        left, right, at = x + k * CELL, x + to * CELL, y + HEIGHT + 10 + 26 * row
        for end in (left, right):
            self.parts.append(f'<line x1="{end}" y1="{y + HEIGHT + 3}" x2="{end}" y2="{at + 5}" stroke="#bbb"/>')
        self.arrow(left, at, right - 1, at)
        self.text((left + right) / 2, at + 15, label, style='font-size="12" fill="#444"')

    def save(self):
        Path(__file__).with_name(self.name + ".svg").write_text("\n".join(self.parts + ["</svg>", ""]))


def strides():
    p = Picture("layout-s", 840, 170)
    p.cells(80, 30, ["a00", "a01", "", "a10", "a11", "", "", "b00", "b01", "", "b10", "b11", "", "", "c00", "…"])
    p.text(14, 52, "src", "start")
    p.arrow(44, 47, 78, 47)
    p.span(80, 30, 0, 1, "stride2", 0)
    p.span(80, 30, 0, 3, "stride1", 1)
    p.span(80, 30, 0, 7, "stride0", 2)
    p.save()


def pointers():
    p = Picture("layout-p", 560, 290)
    p.text(14, 24, "src: a pointer for each position", "start")
    for k, position in enumerate(["00", "01", "10", "11"]):
        y = 40 + 50 * k
        p.cells(20, y, [f"[{k}]"])
        p.text(100, y + 22, "+ objShift", "start", 'font-size="12" fill="#444"')
        p.arrow(172, y + HEIGHT / 2, 248 + 30 * (k % 2), y + HEIGHT / 2)
        p.cells(250 + 30 * (k % 2), y, [x + position for x in "abc"] + ["…"])
    p.span(280, 190, 0, 1, "stride0", 0)
    p.save()


def lists():
    p = Picture("layout-l", 640, 260)
    p.text(14, 24, "src: a pointer for each object", "start")
    for k, x in enumerate("abc"):
        y = 40 + 50 * k
        p.cells(20, y, [f"[{k}]"])
        p.text(100, y + 22, "+ objShift", "start", 'font-size="12" fill="#444"')
        left = 260 + (2 - k) % 3 * 30
        p.arrow(172, y + HEIGHT / 2, left - 2, y + HEIGHT / 2)
        p.cells(left, y, [x + "00", x + "01", "", x + "10", x + "11", ""])
    p.span(260, 140, 0, 1, "stride2", 0)
    p.span(260, 140, 0, 3, "stride1", 1)
    p.save()


strides()
pointers()
lists()
