#!/usr/bin/python3
"""Writes samples/demo-holes.xls: 40 synthetic drill holes of a copper-nickel deposit.

Run with the system python, which has xlwt:  /usr/bin/python3 samples/make_demo.py
The seed is fixed, so the workbook comes out the same every time.

Layout (first sheet, one hole per column): x, y, name, collar elevation, ore entry, ore exit,
bottom, then the lithologies, Cu % tenors, densities, lengths (m) and Ni % of the layers.
Ore entry, ore exit and bottom are elevations in metres: the top of the first ore layer, the
bottom of the last ore layer and the end of the last layer.
"""

import math
import os
import random

import xlwt

SEED = 20240611
HOLES = 40
X_RANGE = (1000.0, 1600.0)
Y_RANGE = (2000.0, 2500.0)
SPACING = (60.0, 100.0)
LATTICE = 92.0
JITTER = 12.0
OUTPUT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "demo-holes.xls")


def lattice_sites(rng):
    """(row, x, y) on a jittered triangular lattice over the area, the holes farthest from the
    centre left out, as a drilling pattern closes in on the ore body."""
    phase_x, phase_y = rng.uniform(0.0, LATTICE), rng.uniform(0.0, LATTICE)
    row_gap = LATTICE * math.sqrt(3.0) / 2.0
    sites = []
    for row in range(-1, int((Y_RANGE[1] - Y_RANGE[0]) / row_gap) + 2):
        shift = LATTICE / 2.0 if row % 2 else 0.0
        for column in range(-1, int((X_RANGE[1] - X_RANGE[0]) / LATTICE) + 2):
            x = X_RANGE[0] + phase_x + shift + column * LATTICE + rng.uniform(-JITTER, JITTER)
            y = Y_RANGE[0] + phase_y + row * row_gap + rng.uniform(-JITTER, JITTER)
            if X_RANGE[0] <= x <= X_RANGE[1] and Y_RANGE[0] <= y <= Y_RANGE[1]:
                sites.append((row, round(x, 1), round(y, 1)))
    centre = ((X_RANGE[0] + X_RANGE[1]) / 2.0, (Y_RANGE[0] + Y_RANGE[1]) / 2.0)
    sites.sort(key=lambda site: math.hypot(site[1] - centre[0], site[2] - centre[1]))
    return sites[:HOLES]


def nearest_distances(points):
    return [min(math.hypot(a[0] - b[0], a[1] - b[1]) for b in points if b is not a)
            for a in points]


def collar_sites(rng):
    """Redrawn until there are HOLES sites, each with its nearest neighbour 60-100 m away;
    numbered row by row from the south-west."""
    while True:
        sites = lattice_sites(rng)
        points = [(x, y) for _, x, y in sites]
        if len(points) == HOLES and all(SPACING[0] <= d <= SPACING[1]
                                        for d in nearest_distances(points)):
            return [(x, y) for _, x, y in sorted(sites)]


def check_pickable(sites):
    for i, (xa, ya) in enumerate(sites):
        for xb, yb in sites[i + 1:]:
            assert abs(xa - xb) > 10 or abs(ya - yb) > 10, "holes too close"


def collar_elevation(x, y, rng):
    """A gentle hill with some noise, kept within 350-420 m."""
    hill = 385.0 + 20.0 * math.sin((x - 1000.0) / 190.0) + 10.0 * math.cos((y - 2000.0) / 160.0)
    return round(min(max(hill + rng.uniform(-4.0, 4.0), 352.0), 418.0), 1)


def ore_richness(x, y):
    """1 at the centre of the ore body, falling off towards the edges."""
    distance = math.hypot((x - 1320.0) / 300.0, (y - 2260.0) / 260.0)
    return max(0.0, 1.0 - 0.8 * distance)


def layer(rng, lithology, richness):
    if lithology == "ore":
        tenor = rng.uniform(0.2, 1.0) + 2.4 * richness * rng.uniform(0.5, 1.0)
        return ["ore", round(min(tenor, 3.5), 2), round(rng.uniform(2.7, 3.1), 2),
                round(rng.uniform(4.0, 30.0), 1), round(rng.uniform(0.1, 0.5), 3)]
    if lithology == "cover":
        return ["cover", round(rng.uniform(0.01, 0.05), 3), round(rng.uniform(2.2, 2.4), 2),
                round(rng.uniform(2.0, 12.0), 1), round(rng.uniform(0.01, 0.03), 3)]
    return ["waste", round(rng.uniform(0.02, 0.2), 3), round(rng.uniform(2.5, 2.8), 2),
            round(rng.uniform(2.0, 25.0), 1), round(rng.uniform(0.01, 0.08), 3)]


def lithology_sequence(rng, first_hole):
    if first_hole:
        return ["cover", "ore", "waste", "ore"]
    sequence = ["cover"] if rng.random() < 0.7 else []
    sequence.append("ore")
    if rng.random() < 0.35:
        sequence += ["waste", "ore"]
    if sequence[0] != "cover" or rng.random() < 0.8:
        sequence.append("waste")
    return sequence


def hole_column(number, x, y, rng):
    collar = collar_elevation(x, y, rng)
    richness = ore_richness(x, y)
    layers = [layer(rng, name, richness) for name in lithology_sequence(rng, number == 1)]
    depth = 0.0
    ore_entry = ore_exit = None
    for name, _, _, length, _ in layers:
        if name == "ore" and ore_entry is None:
            ore_entry = round(collar - depth, 3)
        depth += length
        if name == "ore":
            ore_exit = round(collar - depth, 3)
    bottom = round(collar - depth, 3)
    column = [x, y, "DH-%02d" % number, collar, ore_entry, ore_exit, bottom]
    for field in range(5):
        column += [values[field] for values in layers]
    return column


def main():
    rng = random.Random(SEED)
    sites = collar_sites(rng)
    check_pickable(sites)
    book = xlwt.Workbook()
    sheet = book.add_sheet("holes")
    for number, (x, y) in enumerate(sites, 1):
        for row, value in enumerate(hole_column(number, x, y, rng)):
            sheet.write(row, number - 1, value)
    book.save(OUTPUT)


if __name__ == "__main__":
    main()
