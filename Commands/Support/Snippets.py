# SPDX-License-Identifier: MIT
"""Checks that every piece of C++ on a page of Docs/ is part of a source that is compiled and run.

Indentation and empty lines may differ. Pages whose commands and files ./run documents tries are left to it.
"""

import pathlib
import re
import sys

TRIED = ('GettingStarted.md', 'Adoption.md')
SOURCES = ('Tests', 'Examples', 'Benchmarks', 'Commands/Template', 'Include', 'Loader', 'Scenario', 'Widgets', 'Inspection',
           'Simulator', 'Flow', 'Adapters', 'Companions', 'TestSupport', 'Device')


def lines_of(text):
    """The lines of a text without indentation and empty lines."""
    return [line.strip() for line in text.splitlines() if line.strip()]


def main():
    """Prints what is nowhere; returns the exit status."""
    sources = ['\n' + '\n'.join(lines_of(path.read_text(encoding='utf-8'))) + '\n'
               for folder in SOURCES for path in pathlib.Path(folder).rglob('*') if path.suffix in ('.h', '.cpp', '.c')]
    pieces, wrong = 0, []
    for page in sorted(pathlib.Path('Docs').glob('*.md')):
        if page.name in TRIED:
            continue
        text = page.read_text(encoding='utf-8')
        for block in re.finditer(r'^```(?:cpp|c)\n(.*?)^```', text, re.MULTILINE | re.DOTALL):
            pieces += 1
            piece = '\n' + '\n'.join(lines_of(block[1])) + '\n'
            if not any(piece in source for source in sources):
                line = text.count('\n', 0, block.start()) + 1
                wrong.append(f'{page}:{line}: no source has these lines; a test should, so that they are compiled')
    print('\n'.join(wrong) or f'All {pieces} pieces of C++ on the pages are compiled')
    return 1 if wrong else 0


if __name__ == '__main__':
    sys.exit(main())
