# SPDX-License-Identifier: MIT
"""The texts of the log statements, and whether libraries contain them.

    MessageTexts.py                        prints each text after its level
    MessageTexts.py <level> <library> ...  fails unless the libraries contain exactly the texts up to that level

A text is split at its escapes and values, and pieces that are too short are left out. A text of several statements has
the level that keeps it longest.
"""

import pathlib
import re
import sys

from LogStatements import logged

LEVELS = ['OFF', 'ERROR', 'WARNING', 'DEBUG']


def collect():
    """Returns the level of each text."""
    levels = {}
    for _, name, text in logged():
        level = LEVELS.index('DEBUG' if name == 'INFO' else name)
        for piece in re.split(r'\\.|<[^>]*>', text):
            if len(piece) >= 8 and re.search('[^ ] [^ ]', piece):
                levels[piece] = min(level, levels.get(piece, level))
    return {text: min(levels[other] for other in levels if text in other) for text in levels}


def compare(kept, libraries):
    """Returns what is wrong with the texts of libraries that keep them up to a level."""
    texts = collect()
    if not texts:
        return ['the sources log nothing']
    held = b''.join(pathlib.Path(library).read_bytes() for library in libraries)
    wrong = []
    for text, level in sorted(texts.items()):
        is_there = text.encode() in held
        if is_there and level > kept:
            wrong.append(f'this text should be gone: {text}')
        elif not is_there and level <= kept:
            wrong.append(f'this text is missing: {text}')
    return wrong


def main(arguments):
    """Does what the arguments say."""
    if not arguments:
        print('\n'.join(f'{LEVELS[level]}\t{text}' for text, level in sorted(collect().items())))
        return 0
    wrong = compare(LEVELS.index(arguments[0]), arguments[1:])
    print('\n'.join(wrong), end='\n' if wrong else '')
    return 1 if wrong else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
