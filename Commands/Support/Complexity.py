# SPDX-License-Identifier: MIT
"""Counts the ways through each function: Complexity.py <compile_commands.json>

One, and one more for each if, for, while, case, catch, ?, && and || in its text. Prints the functions of the core and the
loader that have more than MOST, each as a line of a table.
"""

import json
import os
import sys

from clang import cindex

MOST = 10
WORDS = {'if', 'for', 'while', 'case', 'catch', '?', '&&', '||'}
KINDS = (cindex.CursorKind.FUNCTION_DECL, cindex.CursorKind.CXX_METHOD, cindex.CursorKind.CONSTRUCTOR,
         cindex.CursorKind.DESTRUCTOR, cindex.CursorKind.FUNCTION_TEMPLATE, cindex.CursorKind.CONVERSION_FUNCTION)
ROOMS = ('Include/', 'Source/', 'Loader/')


def functions_of(cursor, root):
    """The functions with a body in the rooms, with their places."""
    for child in cursor.get_children():
        file = child.location.file
        if file is None:
            continue
        name = os.path.relpath(os.path.realpath(file.name), root)
        if not name.startswith(ROOMS):
            continue
        if child.kind in KINDS:
            if child.is_definition():
                yield name, child
        else:
            yield from functions_of(child, root)


def full_name(cursor):
    parent = cursor.semantic_parent
    around = parent.spelling if parent and parent.kind != cindex.CursorKind.TRANSLATION_UNIT else ''
    around = around if not around.startswith('(') else ''
    return f'{around}::{cursor.spelling}' if around else cursor.spelling


def main(database):
    root = os.getcwd()
    found = {}
    index = cindex.Index.create()
    for entry in json.load(open(database, encoding='utf-8')):
        name = os.path.relpath(entry['file'], root)
        if not name.startswith(ROOMS):
            continue
        unit = index.parse(entry['file'], ['-x', 'c++', '-std=c++17', f'-I{root}/Include', f'-I{root}'])
        errors = [error.spelling for error in unit.diagnostics if error.severity >= cindex.Diagnostic.Error]
        if errors:
            sys.exit(f'{name}: {errors[0]}')
        for place, cursor in functions_of(unit.cursor, root):
            ways = 1 + sum(token.spelling in WORDS for token in cursor.get_tokens())
            found[place, cursor.location.line] = (full_name(cursor), ways)
    above = sorted((place, name, ways) for (place, _), (name, ways) in found.items() if ways > MOST)
    print(f'All functions but these have at most {MOST} ways through:\n')
    print('| function | file | ways |\n|---|---|---|')
    for place, name, ways in above:
        print(f'| `{name}` | `{place}` | {ways} |')


if __name__ == '__main__':
    main(sys.argv[1])
