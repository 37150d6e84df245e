# SPDX-License-Identifier: MIT
"""Keeps Docs/Messages.md in step with what the sources log.

    Messages.py            prints what is wrong in the document, with status 1
    Messages.py --update   writes the table again; the column 'when' stays

Operation, level and text of every row come from the log statements; only the last column is written by hand.
"""

import pathlib
import sys

from LogStatements import logged

DOCUMENT = pathlib.Path('Docs/Messages.md')
BEGIN = '<!-- messages: written by ./run messages --update -->'
END = '<!-- end of messages -->'
HEAD = '| operation | level | text | when |\n|---|---|---|---|\n'


def row_key(operation, level, text):
    """The columns of a row that come from the sources."""
    escaped = text.replace('|', '\\|')
    return f'| `{operation}` | {level} | `{escaped}`'


def table(written):
    """The rows that the document should have; 'when' comes from the existing rows."""
    whens = dict(row.rsplit(' | ', 1) for row in written)
    return [f'{key} | {whens.get(key, "|")}' for key in (row_key(*message) for message in sorted(set(logged())))]


def faults(rows, written):
    """What is wrong with the rows that are written."""
    yield from (f'missing or changed: {row}' for row in rows if row not in written)
    yield from (f'not logged any more: {row}' for row in written if row not in rows)
    yield from (f'does not say when: {row}' for row in written if row.endswith('| |'))


def main(arguments):
    """Does what the arguments say."""
    before, _, rest = DOCUMENT.read_text(encoding='utf-8').partition(BEGIN + '\n')
    shown, _, after = rest.partition(END)
    written = [row for row in shown.splitlines() if row.startswith('| `')]
    rows = table(written)
    if arguments:
        DOCUMENT.write_text(before + BEGIN + '\n' + HEAD + '\n'.join(rows) + '\n' + END + after, encoding='utf-8')
        return 0
    wrong = list(faults(rows, written))
    print('\n'.join(wrong) if wrong else f'{DOCUMENT} shows the {len(rows)} messages that the sources log')
    return 1 if wrong else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
