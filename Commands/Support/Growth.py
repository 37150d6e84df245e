# SPDX-License-Identifier: MIT
"""Compares figures with those recorded: Growth.py <recorded> <counted>

A line is a name followed by one or several numbers; a line that begins with # is a comment. Fails if a number has grown
by more than 2 % (25 % where addresses matter), or if only one of the files has a name.
"""

import re
import sys

ALLOWED_GROWTH = 1.02
# A widget is found in a tree whose shape depends on the addresses of the objects.
ALLOWED_BY_ADDRESSES = {'mirror/switch-and-back': 1.25}


def read(path):
    """Returns the numbers of a file by name."""
    figures = {}
    with open(path, encoding='utf-8') as file:
        for line in file:
            if line.strip() and not line.startswith('#'):
                name, numbers = re.fullmatch(r'(.*?)((?:\s+[0-9.]+)+)\s*', line).groups()
                figures[name] = [float(number) for number in numbers.split()]
    return figures


def allowed_growth(name):
    """Returns by which factor a figure may grow."""
    return max([ALLOWED_GROWTH, *(growth for part, growth in ALLOWED_BY_ADDRESSES.items() if part in name)])


def compare(recorded, counted):
    """Returns lines about what is wrong, and about what has changed within the limit."""
    wrong = [f'{name} is not recorded' for name in counted if name not in recorded]
    wrong += [f'{name} is recorded and was not counted' for name in recorded if name not in counted]
    changed = []
    for name in recorded:
        for before, now in zip(recorded[name], counted.get(name, ())):
            if now != before:
                growth = f' ({now / before - 1:+.1%})' if before else ''
                line = f'{name}: {now:.10g}, {before:.10g} recorded{growth}'
                (wrong if now > before * allowed_growth(name) else changed).append(line)
    return wrong, changed


def main(recorded_path, counted_path):
    """Prints all differences; returns the exit status."""
    wrong, changed = compare(read(recorded_path), read(counted_path))
    for line in changed:
        print(line)
    for line in wrong:
        print(f'not allowed: {line}')
    return 1 if wrong else 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:]))
