# SPDX-License-Identifier: MIT
"""The line work of CAD drawings as ezdxf reads and takes it apart: complex numbers, mm."""

import io
import math

import numpy
from ezdxf import disassemble, recover, units
from ezdxf.math import Matrix44
from line_work import STEP, LineWork
from scipy.interpolate import BSpline

ROUND = {"ARC", "CIRCLE", "ELLIPSE"}  # whose paths would be curves near them
POLYLINES = {"LWPOLYLINE", "POLYLINE"}
LINES = {"LINE", "SPLINE", "POINT"} | ROUND | POLYLINES
FILLED = {"SOLID", "TRACE"}
FLAT = 1e-6
VERSION = b"0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n"


def points_of_cad(file):
    """Of what is flat and seen; texts, dimensions and hatches are left out."""
    drawing = file.read_bytes()
    hasUnit = b"$INSUNITS" in drawing  # ezdxf would take metres
    if b"$ACADVER" not in drawing:  # and the oldest version, which has no splines
        drawing = VERSION + drawing
    document, _ = recover.read(io.BytesIO(drawing))
    given = document.header.get("$INSUNITS", 0) if hasUnit else 0
    unit = units.conversion_factor(given, units.MM) if given else 1
    hidden = {
        layer.dxf.name.lower() for layer in document.layers if layer.is_off() or layer.is_frozen()
    }
    work = LineWork()
    for entity, to_drawing in seen(document.modelspace(), hidden, Matrix44.scale(unit)):
        add(work, entity, to_drawing)
    return work.points()


def seen(entities, hidden, outwards, layer_of_use="0"):
    """The entities, those of blocks for each use, with the way into the drawing."""
    for entity in entities:
        layer = entity.dxf.get("layer", "0")
        layer = layer_of_use if layer == "0" else layer
        if layer.lower() in hidden or entity.dxf.get("invisible", 0):
            continue
        kind = entity.dxftype()
        if kind == "INSERT":
            entity.dxf.zscale = entity.dxf.zscale or 1  # a block may well be pressed flat
            for use in entity.multi_insert():
                yield from seen(use.block(), hidden, use.matrix44() * outwards, layer)
        elif kind in LINES or kind in FILLED:
            yield entity, outwards


def add(work, entity, to_drawing):
    def lines(corners):
        corners = list(to_drawing.transform_vertices(corners))
        heights = [corner.z for corner in corners]
        if corners and max(heights) - min(heights) <= FLAT:
            places = [complex(corner.x, corner.y) for corner in corners]
            for start, end in zip(places, places[1:]):
                work.line(start, end)

    kind = entity.dxftype()
    if kind in FILLED:
        corners = list(dict.fromkeys(entity.wcs_vertices()))
        lines(corners + corners[:1])
    elif kind == "POINT":
        lines([entity.dxf.location] * 2)
    elif kind == "SPLINE" and len(entity.control_points):
        add_spline(work, entity, to_drawing)
    elif kind in ROUND:
        lines(entity.flattening(STEP / 10 / largest(to_drawing)))
    elif kind in POLYLINES and may_bulge(entity):
        for part in entity.virtual_entities():
            add(work, part, to_drawing)
    elif path := disassemble.make_primitive(entity).path:
        lines(path.flattening(STEP / 10 / largest(to_drawing), segments=64))


def may_bulge(polyline):
    return polyline.dxftype() == "LWPOLYLINE" or polyline.is_2d_polyline


def largest(to_drawing):
    return max(axis.magnitude for axis in (to_drawing.ux, to_drawing.uy))


def add_spline(work, spline, to_drawing):
    """By scipy: ezdxf takes curves that do not begin in their first control point wrongly."""
    controls = [complex(p.x, p.y) for p in to_drawing.transform_vertices(spline.control_points)]
    weights = numpy.array(spline.weights) if spline.weights else numpy.ones(len(controls))
    degree, knots = spline.dxf.degree, numpy.array(spline.knots)
    count = math.ceil(numpy.abs(numpy.diff(controls)).sum() / STEP) + 2
    at = numpy.linspace(knots[degree], knots[len(controls)], count)
    sums = BSpline(knots, numpy.column_stack([controls * weights, weights]), degree)(at)
    places = sums[:, 0] / sums[:, 1]
    for start, end in zip(places, places[1:]):  # weights put some of them far apart
        work.line(start, end)
