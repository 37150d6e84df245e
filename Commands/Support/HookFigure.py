# SPDX-License-Identifier: MIT
"""Counts what the recorded outcomes of the hooks hold: HookFigure.py <file> ...

A file has paragraphs of one headline and one line for each thing done inside that hook, "<thing> | <outcome>".
"""

import pathlib
import sys


def main(paths):
    """Prints the numbers as one sentence."""
    places = cells = things = endless = 0
    for path in paths:
        text = pathlib.Path(path).read_text(encoding='utf-8')
        for paragraph in text.split('\n\n'):
            places += 1
            lines = [line for line in paragraph.splitlines()[1:] if not line.startswith('nothing | ')]
            cells += len(lines)
            things = max(things, len(lines))
            endless += sum(line.endswith(' | does not end') for line in lines)
    print(f'hooks: {cells} cells as recorded ({things} things done inside at {places} calls of hooks, '
          f'sinks and objects); {endless} of them do not end, as documented')


if __name__ == '__main__':
    main(sys.argv[1:])
