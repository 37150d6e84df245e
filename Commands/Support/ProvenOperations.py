# SPDX-License-Identifier: MIT
"""Prints which tests prove what each public operation does, as a table.

A test is named after the operation that it calls: <Operation>_<When>_<WhatHolds>. Operations after which no test is named
are listed below the table; tests with other names call them.
"""

import re
from pathlib import Path

DECLARATION = re.compile(r'^    (?:virtual |static |explicit |constexpr |inline )*[\w:<>&* ]*?[ &*](\w+)\((?!\))?', re.MULTILINE)
FREE = re.compile(r'^GUI_API [\w:&*<> ]+?[ &*](\w+)\(', re.MULTILINE)
TEST = re.compile(r'TEST(?:_F|_P)?\(\s*\w+,\s*([A-Za-z0-9]+)_')


def operations_of(header):
    """The operations that a header declares for everybody or for derived classes, in its order."""
    text = re.sub(r'//[^\n]*|/\*.*?\*/', '', header.read_text(encoding='utf-8'), flags=re.DOTALL)
    visible = re.sub(r'\nprivate:.*?(?=\n(?:public|protected):|\n};|\n$)', '', text, flags=re.DOTALL)
    names = DECLARATION.findall(visible) + FREE.findall(visible)
    words = ('if', 'for', 'while', 'return', 'switch', 'operator', 'assert', 'sizeof', 'delete', 'catch')
    return [name for name in dict.fromkeys(names) if name[0].isupper() and name not in words
            and not name.isupper() and not re.match(r'(C[A-Z]|E[A-Z]|eC_)', name)]


def main():
    tests = {}
    for path in sorted(Path('Tests').rglob('*.cpp')):
        for name in TEST.findall(path.read_text(encoding='utf-8')):
            tests.setdefault(name, set()).add(path.stem)
    print('| header | operation | tests in |\n|---|---|---|')
    missing = []
    headers = [path for path in Path('Include/Core').rglob('*.h') if path.name != 'eC_SpareBlocks.h']
    for header in sorted(headers):
        for name in operations_of(header):
            if name not in tests:
                missing.append(f'`{name}`')
                continue
            places = ', '.join(f'`{place}`' for place in sorted(tests[name]))
            print(f'| `{header.name}` | `{name}` | {places} |')
    print('\nNo test is named after these operations; tests with other names call them: ' + ', '.join(dict.fromkeys(missing)) + '.')


if __name__ == '__main__':
    main()
