# SPDX-License-Identifier: MIT
"""The line work of drawings as points, STEP apart at most: complex numbers, mm."""

import math
import re
import xml.etree.ElementTree as xml

import numpy

STEP = 0.05
PLOTTER_UNIT = 1 / 40
PIXEL = 25.4 / 96
SVG = "{http://www.w3.org/2000/svg}"
LINK = "{http://www.w3.org/1999/xlink}href"


class LineWork:
    def __init__(self):
        self.pieces = []

    def line(self, start, end):
        count = max(2, math.ceil(abs(end - start) / STEP) + 1)
        self.pieces.append(start + (end - start) * numpy.linspace(0, 1, count))

    def arc(self, start, centre, degrees):
        length = abs(start - centre) * math.radians(abs(degrees))
        turn = numpy.linspace(0, math.radians(degrees), max(2, math.ceil(length / STEP) + 1))
        self.pieces.append(centre + (start - centre) * numpy.exp(1j * turn))

    def curve(self, a, b, c, d):
        length = abs(b - a) + abs(c - b) + abs(d - c)
        t = numpy.linspace(0, 1, max(2, math.ceil(length / STEP) + 1))
        s = 1 - t
        self.pieces.append(a * s**3 + 3 * b * s * s * t + 3 * c * s * t * t + d * t**3)

    def points(self):
        return numpy.concatenate(self.pieces) if self.pieces else numpy.zeros(0, complex)


def points_of_plot(text):
    """Of a drawing that holds SP, PU, PD, PA, AA and CI with absolute places only."""
    work, place, is_down = LineWork(), 0j, False
    for name, rest in re.findall(r"([A-Z]{2})([^A-Z;]*)", text):
        numbers = [float(n) for n in re.findall(r"-?[0-9.]+", rest)]
        points = [complex(*pair) * PLOTTER_UNIT for pair in zip(numbers[::2], numbers[1::2])]
        if name in ("PU", "PD"):
            is_down = name == "PD"
        if name in ("PU", "PD", "PA"):
            if is_down and not points:
                work.line(place, place)
            for point in points:
                if is_down:
                    work.line(place, point)
                place = point
        elif name == "AA":
            start = place
            turn = complex(math.cos(math.radians(numbers[2])), math.sin(math.radians(numbers[2])))
            place = points[0] + (start - points[0]) * turn
            if is_down:
                work.arc(start, points[0], numbers[2])
        elif name == "CI":
            work.arc(place + numbers[0] * PLOTTER_UNIT, place, 360)
    return work.points()


def affine(text):
    """Two complex numbers for the axes and one for the origin."""
    kind, inside = re.fullmatch(r"(\w+)\((.*)\)", text or "matrix(1,0,0,1,0,0)").groups()
    numbers = [float(n) for n in re.split(r"[ ,]+", inside.strip())]
    if kind == "translate":
        numbers = [1, 0, 0, 1, *numbers]
    return [complex(*numbers[i : i + 2]) for i in (0, 2, 4)]


def after(outer, inner):
    def turned(point):
        return outer[0] * point.real + outer[1] * point.imag

    return [turned(inner[0]), turned(inner[1]), turned(inner[2]) + outer[2]]


def add_path(work, data, axes, closes):
    def take(count):
        numbers = [float(tokens.pop()) for _ in range(2 * count)]
        return [
            axes[0] * x + axes[1] * y + axes[2] for x, y in zip(numbers[::2], numbers[1::2])
        ]

    tokens, place, start = data.split()[::-1], 0j, 0j
    while tokens:
        letter = tokens.pop()
        if letter == "Z":
            work.line(place, start)
            place = start
        elif letter == "M":
            if closes and place != start:
                work.line(place, start)
            place = start = take(1)[0]
        elif letter == "L":
            end = take(1)[0]
            work.line(place, end)
            place = end
        elif letter == "C":
            points = take(3)
            work.curve(place, *points)
            place = points[-1]
        else:
            raise ValueError(f"a path with {letter}")
    if closes and place != start:
        work.line(place, start)


def points_of_picture(text):
    """Of a picture as cairo writes it: paths of M, L, C and Z, groups and their uses. The lower left
    corner is 0, a pixel 1/96 inch."""
    root, work = xml.fromstring(text), LineWork()
    by_id = {node.get("id"): node for node in root.iter() if node.get("id")}

    def add(node, axes):
        name = node.tag.removeprefix(SVG)
        axes = after(axes, affine(node.get("transform")))
        if name == "path":
            add_path(work, node.get("d", ""), axes, "stroke:none" in node.get("style", ""))
        elif name == "use":
            move = complex(float(node.get("x", 0)), float(node.get("y", 0)))
            add(by_id[node.get(LINK)[1:]], after(axes, [1, 1j, move]))
        elif name in ("svg", "g"):
            for child in node:
                add(child, axes)

    height = float(root.get("viewBox").split()[3])
    add(root, [PIXEL, -1j * PIXEL, 1j * PIXEL * height])
    return work.points()
