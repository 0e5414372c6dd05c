"""Reads four columns over time from a node's file and draws them: road.py FILE PICTURE"""

import sys

import matplotlib

matplotlib.use("Agg")

import matplotlib.pyplot as plt
import pandas

CURVES = {
    "P [mm]": {"hN": (1, "blue"), "heff": (3, "red")},
    "Q [m3/s]": {"Qb": (8, "blue"), "Qges": (9, "lime")},
}

columns = [0, 1, 3, 8, 9]
table = pandas.read_csv(
    sys.argv[1], sep=r"\s+", header=None, skiprows=3, usecols=columns, engine="c"
)
figure, plots = plt.subplots(2, 1, figsize=(6.81, 5.81), dpi=100)
for plot, (unit, curves) in zip(plots, CURVES.items()):
    for name, (column, colour) in curves.items():
        plot.plot(table[0], table[column], color=colour, linewidth=2 * 72 / 100, label=name)
    plot.set_ylabel(unit)
    plot.grid(True)
    plot.legend(loc="upper right")
plots[1].set_xlabel("Zeit [h]")
figure.savefig(sys.argv[2])
