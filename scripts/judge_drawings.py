# SPDX-License-Identifier: MIT
"""What scripts/judge-drawings does once all is there.
usage: judge_drawings.py PREPARER FOLDER"""

import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from pathlib import Path

import numpy
from cad_line_work import points_of_cad
from line_work import PLOTTER_UNIT, points_of_picture, points_of_plot
from scipy.spatial import cKDTree

NEAR = 0.1  # mm
ENOUGH = 0.999
FAR = 10_000  # mm; what lies beyond is brought near
PLAIN_STYLE = """text { display: none !important }
* { clip-path: none !important; mask: none !important; filter: none !important;
    marker: none !important; marker-start: none !important; marker-mid: none !important;
    marker-end: none !important }"""


class Refused(Exception):
    pass


def plain_plot(drawing):
    """Without texts, dashes and windows, with the edges of filled figures in place of fills, and
    with corners where the plotters' own would count."""
    given = re.search(rb"DT([^;\r\n])", drawing)
    end = given.group(1) if given else b"\x03"
    end = re.escape(end) if end in drawing else rb"\n"
    corners = b"" if re.search(rb"I[PR]", drawing) else b"IP0,0,10000,7200;"
    instead = {b"RA": b"EA", b"RR": b"ER", b"WG": b"EW", b"SC": corners + b"SC"}

    def plain(match):
        name = match[1] or b""
        return instead.get(name, name)

    # Encoded polylines may hold the letters of all the others.
    instructions = (
        rb"LB[^%b]*%b|(?:LT|UL|IW|UC)[-0-9., ]*;?|SM[^;]?;?|(PE[^;]*;|[A-Za-z]{2}|.)" % (end, end)
    )
    return re.sub(instructions, plain, drawing, flags=re.DOTALL)


def run(*command):
    done = subprocess.run(command, capture_output=True, text=True, errors="replace", check=False)
    said = (done.stdout + done.stderr).strip()
    if done.returncode not in (0, 2):  # 2: torvik-prepare left something out
        raise Refused(said.splitlines()[-1] if said else f"exit code {done.returncode}")
    return said


def from_corner(points):
    return points - complex(points.real.min(), points.imag.min()) if len(points) else points


def judge_picture(drawing, prepare, work):
    style, judged = work / "plain.css", work / "judge.svg"
    style.write_text(PLAIN_STYLE)
    run("rsvg-convert", "-f", "svg", "-s", style, "-o", judged, drawing)
    theirs, ours = points_of_picture(judged.read_text()), prepare(drawing)
    root = xml.parse(drawing).getroot()
    if not any(root.get(name) for name in ("width", "height", "viewBox")):
        return compare(from_corner(theirs), from_corner(ours))
    # Older programs counted other pixels to the inch, which the judge does not know.
    return max((compare(theirs * 96 / dpi, ours, f" at {dpi} dpi") for dpi in (96, 90, 72)), key=worse)


def judge_plot(drawing, prepare, work):
    plain, judged = work / "plain.plt", work / "judge.hpgl"
    plain.write_bytes(plain_plot(drawing.read_bytes()))
    said = run("hp2xx", "-n", "-t", "-m", "hpgl", "-f", judged, plain)
    corner = re.search(r"Coordinate range: \(([-0-9.e+]+), ([-0-9.e+]+)\)", said)
    if not corner:
        raise Refused("hp2xx draws nothing")
    theirs = points_of_plot(judged.read_text()) + complex(*map(float, corner.groups())) * PLOTTER_UNIT
    return compare(theirs, prepare(plain, "--no-arcs", "--dots", str(NEAR), "--pen", "0=1"))


def judge_cad(drawing, prepare, work):
    theirs, ours = points_of_cad(drawing), prepare(drawing, "--no-arcs", "--dots", str(NEAR))
    if len(theirs) and max(abs(theirs.real).max(), abs(theirs.imag).max()) > FAR:
        return compare(from_corner(theirs), from_corner(ours))
    return compare(theirs, ours)


def compare(theirs, ours, how=""):
    if len(ours) and not len(theirs):
        how = " (the other program draws nothing)"
    return share(theirs, ours), share(ours, theirs), how


JUDGES = {".svg": judge_picture, ".dxf": judge_cad, ".plt": judge_plot, ".hpgl": judge_plot}


def share(points, others):
    if not len(points):
        return 1.0
    far, _ = cKDTree(numpy.column_stack([others.real, others.imag])).query(
        numpy.column_stack([points.real, points.imag]), distance_upper_bound=2 * NEAR
    )
    return float(numpy.mean(far <= NEAR))


def worse(result):
    return min(result[:2])


def verdict_of(drawing, preparer, work):
    def prepare(source, *options):
        ours = work / "ours.plt"
        try:
            run(preparer, source, "--text", "none", *options, "--force", "-o", ours)
        except Refused as cause:
            if "nothing to draw" in str(cause):
                return points_of_plot("")
            raise
        return points_of_plot(ours.read_text())

    try:
        judge = JUDGES[drawing.suffix]
        theirs, ours, how = judge(drawing, prepare, work)
    except (IndexError, Refused, ValueError) as cause:
        return f"{'':17}  {drawing.name}: REFUSED ({cause})"
    verdict = "same" if min(theirs, ours) >= ENOUGH else "DIFFERS"
    return f"{theirs:8.2%} {ours:8.2%}  {drawing.name}: {verdict}{how}"


def main():
    preparer, folder = sys.argv[1:]
    drawings = sorted(d for d in Path(folder).iterdir() if d.suffix in JUDGES)
    same = 0
    for drawing in drawings:
        with tempfile.TemporaryDirectory() as work:
            verdict = verdict_of(drawing, preparer, Path(work))
        same += ": same" in verdict
        print(verdict, flush=True)
    print(f"{len(drawings)} drawings, {same} of them the same")
    sys.exit(0 if drawings and same == len(drawings) else 1)


main()
