#!/usr/bin/python3
"""Writes samples/demo-points.xls: four sets of surveyed points around the holes of
samples/demo-holes.xls, the plane data of the production tour.

Run with the system python, which has xlwt:  /usr/bin/python3 samples/make_points.py
The seed is fixed, so the workbook comes out the same every time.

Layout (first sheet, one pair of columns per set, no header): x in the odd column and y in the
even column beside it, one point a row from row 1; a set ends at its first empty x cell.
Each set is the surveyed outline of a planned stope: points on a ring around a group of holes,
listed round the ring.
"""

import math
import os
import random

import xlwt

import make_demo

SEED = 20240927
# (centre x, centre y, half width, half height, points) of each set's ring.
RINGS = [
    (1305.0, 2190.0, 85.0, 65.0, 10),  # central stope: holes DH-12, DH-13, DH-18, DH-19
    (1175.0, 2350.0, 70.0, 50.0, 8),   # north-west stope: DH-23, DH-24, DH-30, DH-31
    (1470.0, 2260.0, 65.0, 55.0, 9),   # east stope: DH-20, DH-21, DH-27
    (1180.0, 2100.0, 75.0, 45.0, 7),   # south stope: DH-04, DH-05, DH-10, DH-11
]
# A click hits a point within 5 m on each axis: points are kept farther apart than twice that,
# and clear of the holes.
APART = 12.0
OUTPUT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "demo-points.xls")


def ring(rng, cx, cy, half_width, half_height, count):
    points = []
    for k in range(count):
        angle = 2.0 * math.pi * (k + rng.uniform(-0.15, 0.15)) / count
        stretch = rng.uniform(0.92, 1.08)
        points.append((round(cx + half_width * stretch * math.cos(angle), 1),
                       round(cy + half_height * stretch * math.sin(angle), 1)))
    return points


def far_apart(a, b):
    return abs(a[0] - b[0]) > APART or abs(a[1] - b[1]) > APART


def main():
    holes = make_demo.collar_sites(random.Random(make_demo.SEED))
    rng = random.Random(SEED)
    sets = []
    for cx, cy, half_width, half_height, count in RINGS:
        while True:
            points = ring(rng, cx, cy, half_width, half_height, count)
            others = [q for s in sets for q in s] + holes
            if all(far_apart(a, b) for i, a in enumerate(points) for b in points[i + 1:] + others):
                break
        sets.append(points)
    book = xlwt.Workbook()
    sheet = book.add_sheet("plane")
    for number, points in enumerate(sets):
        for row, (x, y) in enumerate(points):
            sheet.write(row, 2 * number, x)
            sheet.write(row, 2 * number + 1, y)
    book.save(OUTPUT)


if __name__ == "__main__":
    main()
