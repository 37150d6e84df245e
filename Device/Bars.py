# SPDX-License-Identifier: MIT
"""How far the figures of the device are from what they should be.

    Bars.py <figures> <bars>                      prints a line for each bar, with "met" or "not met"
    Bars.py <figures> <bars> <document> <kind>    writes them into the table of that kind in a document

A line of the bars is "<what> | <at most> | <figure> + <figure> ...".
"""

import pathlib
import re
import sys


def lines_of(path):
    """The lines of a file that are neither empty nor comments."""
    return [line for line in pathlib.Path(path).read_text().splitlines() if line.strip() and not line.startswith('#')]


def read_figures(path):
    """Figures by name, with single blanks in the names."""
    figures = {}
    for line in lines_of(path):
        name, number = line.rsplit(None, 1)
        figures[re.sub(r'\s+', ' ', name)] = int(number)
    return figures


def read_bars(figures_path, bars_path):
    """Yields (what, at most, is)."""
    figures = read_figures(figures_path)
    for line in lines_of(bars_path):
        what, most, names = (field.strip() for field in line.split(' | '))
        unknown = [name for name in names.split(' + ') if name not in figures]
        if unknown:
            sys.exit(f"Bars.py: {bars_path} names '{unknown[0]}', which is no figure of {figures_path}")
        yield what, int(most), sum(figures[name] for name in names.split(' + '))


def document(bars, path, kind):
    """Writes the table between its two marks."""
    rows = ['| bar | at most | is | met |', '|---|---:|---:|---|']
    rows += [f"| {what} | {most} | {is_now} | {'yes' if is_now <= most else 'no'} |" for what, most, is_now in bars]
    text = pathlib.Path(path).read_text()
    place = re.compile(rf'(<!-- {kind}: [^>]*-->\n).*?(<!-- end of {kind} -->)', re.DOTALL)
    if not place.search(text):
        sys.exit(f'Bars.py: {path} has no place for the table of {kind}')
    pathlib.Path(path).write_text(place.sub(lambda found: found[1] + '\n'.join(rows) + '\n' + found[2], text))


def main(figures_path, bars_path, *target):
    """Prints the bars, or writes them."""
    bars = list(read_bars(figures_path, bars_path))
    if target:
        document(bars, *target)
        return
    for what, most, is_now in bars:
        print(f"{'met' if is_now <= most else 'not met'}: {what}: {is_now}, at most {most}")


if __name__ == '__main__':
    if len(sys.argv) not in (3, 5):
        sys.exit(__doc__)
    main(*sys.argv[1:])
