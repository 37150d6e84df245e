# SPDX-License-Identifier: MIT
"""Checks the generated parts of Docs/Safety.md, or writes them: Safety.py <compile_commands.json> [--update]

A function that is more complex than the page says is wrong, and so is a test that is named there and gone. More tests are
not: they come to the page with the next --update.
"""

import re
import subprocess
import sys
from pathlib import Path

PAGE = Path('Docs/Safety.md')


def generate(script, *arguments):
    run = subprocess.run([sys.executable, '-B', f'Commands/Support/{script}.py', *arguments], check=True,
                         stdout=subprocess.PIPE)
    return run.stdout.decode()


def rows(text):
    """The rows of a table by their first two cells: the rest, without backquotes."""
    cells = [line.strip('| ').replace('`', '').split(' | ') for line in text.splitlines() if line.startswith('| `')]
    return {(row[0], row[1]): row[2] for row in cells}


def find_faults(told, found):
    """What the page tells wrongly, given its two parts and what was found."""
    faults = []
    for (name, file), ways in rows(found['complexity']).items():
        listed = rows(told['complexity']).get((name, file))
        if listed is None or int(ways) > int(listed):
            faults.append(f'{file}: {name} has {ways} ways through; make it simpler')
    proven = rows(found['operations'])
    for operation, tests in rows(told['operations']).items():
        gone = set(tests.split(', ')) - set(proven.get(operation, '').split(', '))
        if gone:
            faults.append(f'{PAGE}: {operation[1]} has no tests in {", ".join(sorted(gone))}')
    return faults


def main(database, *options):
    page = PAGE.read_text(encoding='utf-8')
    found = {'complexity': generate('Complexity', database), 'operations': generate('ProvenOperations')}
    told = {}
    for name, text in found.items():
        part = re.compile(rf'(<!-- {name}: [^\n]*-->\n)(.*?)(<!-- end of {name} -->\n)', re.DOTALL)
        told[name] = part.search(page)[2]
        page = part.sub(lambda match, text=text: f'{match[1]}{text}{match[3]}', page)
    if '--update' in options:
        PAGE.write_text(page, encoding='utf-8')
        return 0
    faults = find_faults(told, found)
    print('\n'.join(faults), end='\n' if faults else '')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:]))
