"""Compares figures with those recorded: Growth.py <recorded> <counted>

A line is a name with one number or several at its end; what begins with # says what the file is. Fails when a number
has grown by more than 2 %, and when a name is in one of the files only.
"""

import re
import sys

ALLOWED_GROWTH = 1.02


def read(path):
    """Returns the numbers of a file by name."""
    figures = {}
    with open(path, encoding='utf-8') as file:
        for line in file:
            if line.strip() and not line.startswith('#'):
                name, numbers = re.fullmatch(r'(.*?)((?:\s+[0-9.]+)+)\s*', line).groups()
                figures[name] = [float(number) for number in numbers.split()]
    return figures


def compare(recorded, counted):
    """Returns what is wrong, and what has changed within the bounds, as lines."""
    wrong = [f'{name} is not recorded' for name in counted if name not in recorded]
    wrong += [f'{name} is recorded and was not counted' for name in recorded if name not in counted]
    changed = []
    for name in recorded:
        for before, now in zip(recorded[name], counted.get(name, ())):
            if now != before:
                growth = f' ({now / before - 1:+.1%})' if before else ''
                line = f'{name}: {now:.10g}, {before:.10g} recorded{growth}'
                (wrong if now > before * ALLOWED_GROWTH else changed).append(line)
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
