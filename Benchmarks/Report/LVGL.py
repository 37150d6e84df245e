# SPDX-License-Identifier: MIT
"""Compares screens by hand in LVGL with those of the adapter and with fragments.

    LVGL.py <counts> <counts of the library> [<document>]    prints the bars; writes them and all counts into the
                                                             document
"""

import sys

import Counts
import Report

WORKS = (
    ("switch-and-back/kept", "switch and back, screens kept"),
    ("switch-and-back/rebuilt", "switch and back, screens rebuilt"),
    ("popup/shown-and-closed", "popup shown and closed"),
    ("switch-and-back/kept/1000", "switch and back, kept, 1,000 screens behind them"),
    ("switch-and-back/rebuilt/1000", "switch and back, rebuilt, 1,000 screens behind them"),
)
EXTENTS = (("drawn", "until it is drawn"), ("not-drawn", "without drawing"))
# The most that the adapter may add to what LVGL needs itself.
RATIO_BARS = (
    ("switch-and-back/kept", "drawn", 1.10),
    ("switch-and-back/rebuilt", "drawn", 1.05),
    ("switch-and-back/kept", "not-drawn", 1.10),
    ("switch-and-back/rebuilt", "not-drawn", 1.05),
)
# A popup of the dialog manager that writes all messages into a ring, against LVGL's bare flag.
POPUP_INTO_RING = "ring/popup/shown-and-closed/0"
FLAG = "by-hand/popup/flag/not-drawn"
POPUP_BAR = 1.5
ALLOCATION_BARS = (("switch-and-back/kept", "drawn"), ("switch-and-back/rebuilt", "drawn"))


def ratio(counts, side, work, extent):
    """Returns the instructions of a side against those by hand."""
    return counts[f"{side}/{work}/{extent}"][0] / counts[f"by-hand/{work}/{extent}"][0]


def check_bars(counts, library):
    """Returns for each bar its text, limit, figure, and whether it is met."""
    works, extents = dict(WORKS), dict(EXTENTS)
    checked = []
    for work, extent, limit in RATIO_BARS:
        figure = ratio(counts, "adapter", work, extent)
        checked.append((f"instructions against by hand: {works[work]}, {extents[extent]}", f"{limit:.2f}",
                        f"{figure:.2f}", figure <= limit))
    for work, extent in ALLOCATION_BARS:
        more = counts[f"adapter/{work}/{extent}"][1] - counts[f"by-hand/{work}/{extent}"][1]
        checked.append((f"heap allocations more than by hand: {works[work]}", "0", f"{more:.0f}", more <= 0))
    figure = library[POPUP_INTO_RING][0] / counts[FLAG][0]
    checked.append(("instructions of the manager for a popup shown and closed, all messages into the ring, against "
                    "clearing and setting LVGL's flag", f"{POPUP_BAR:.2f}", f"{figure:.2f}", figure <= POPUP_BAR))
    return checked


def count_cell(counts, side, work, extent):
    """Returns instructions with their ratio to those by hand, and allocations."""
    found = counts.get(f"{side}/{work}/{extent}")
    if found is None:
        return "–"
    compared = "" if side == "by-hand" else f" ({ratio(counts, side, work, extent):.2f})"
    return f"{found[0]:,.0f}{compared} / {found[1]:.0f}"


def document_lines(counts, library):
    """Returns both tables."""
    bars = Report.table(["bar", "limit", "figure", "met"],
                        [[text, f"≤ {limit}", figure, "yes" if met else "no"]
                         for text, limit, figure, met in check_bars(counts, library)])
    rows = [[f"{text}, {extent_text}"] +
            [count_cell(counts, side, work, extent) for side in ("by-hand", "adapter", "fragment")]
            for extent, extent_text in EXTENTS for work, text in WORKS]
    return bars + [""] + Report.table(["instructions (ratio) / heap allocations", "by hand", "adapter", "`lv_fragment`"],
                                      rows)


def main():
    """Does what the arguments say."""
    counts, library = (Counts.read(path) for path in sys.argv[1:3])
    for path in sys.argv[3:]:
        with open(path, encoding="utf-8") as document:
            text = document.read()
        text = Report.replace_between_marks(text, "side by side", document_lines(counts, library),
                                            "./run bench --lvgl --update")
        if text is None:
            sys.exit(f"{path} has no place for the tables")
        with open(path, "w", encoding="utf-8") as document:
            document.write(text)
    for text, limit, figure, met in check_bars(counts, library):
        print(f"{'met    ' if met else 'NOT MET'}  {text}: {figure} (at most {limit})")
    return 0


if __name__ == "__main__":
    sys.exit(main())
