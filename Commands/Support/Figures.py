# SPDX-License-Identifier: MIT
"""The figures of the commands that have been run: Figures.py [--update]

Prints them as a table, or writes them to Docs/Testing.md, where figures that were not measured again stay. The heads of
the commands say which figures exist.
"""

import pathlib
import re
import sys

DOCUMENT = pathlib.Path('Docs/Testing.md')


def head(path, key):
    """Returns the values of a key in the head of a command."""
    return re.findall(rf'^# {key}: *(.*)$', path.read_text(encoding='utf-8'), re.MULTILINE)


def place(path):
    """Returns the sort key of a command: gates as CI runs them, then the others by name."""
    return (min(head(path, 'Gate'), default='~'), path.name)


def figures():
    """Yields the name of each figure and the command that prints it."""
    for path in sorted(pathlib.Path('Commands').glob('*.sh'), key=place):
        for line in head(path, 'Figure'):
            name, _, arguments = line.partition(' ')
            yield name, f'./run {path.stem} {arguments}'.rstrip()


def table(old_rows):
    """Yields the table's rows; a figure that was not measured here is taken from the old rows."""
    for name, command in figures():
        measured = pathlib.Path('build/figures', name)
        figure = measured.read_text(encoding='utf-8').strip() if measured.exists() else old_rows.get(command)
        if figure is not None:
            yield f'| `{command}` | {figure} |'


def main(arguments):
    """Does what the arguments say."""
    heading = ['| command | figure of its last run |', '|---|---|']
    if not arguments:
        print('\n'.join(heading + list(table({}))))
        return
    text = DOCUMENT.read_text(encoding='utf-8')
    before, old, after = re.fullmatch(r'(.*<!-- figures: .*? -->\n)(.*)(<!-- end of figures.*)', text,
                                      re.DOTALL).groups()
    old_rows = dict(re.findall(r'^\| `(.*?)` \| (.*) \|$', old, re.MULTILINE))
    DOCUMENT.write_text(before + '\n'.join(heading + list(table(old_rows))) + '\n' + after, encoding='utf-8')


if __name__ == '__main__':
    main(sys.argv[1:])
