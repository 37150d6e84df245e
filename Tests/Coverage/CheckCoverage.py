# SPDX-License-Identifier: MIT
"""Reads what llvm-cov exports and names the lines and branches that no test runs.

Usage: CheckCoverage.py <export.json>

A line is covered if every piece of code on it was run. For code of a template, any instantiation counts.
Code that cannot be covered says why in the source, at the end of the line or in a comment above it:

    // Not covered: <reason>
"""

import json
import re
import sys

EXEMPTION = 'Not covered: '


class File:
    def __init__(self, exported):
        self.name = exported['filename']
        with open(self.name, encoding='utf-8') as file:
            self.lines = file.read().split('\n')
        self.code, self.missed = set(), {}
        self._read_pieces(exported['segments'])
        self.branches = self._read_branches(exported['branches'])
        self.exempt = self._read_exemptions()

    def _read_pieces(self, segments):
        """A segment says how often the code between its position and the next one's was run."""
        for (line, column, count, has_count, _, is_gap), following in zip(segments, segments[1:]):
            if not has_count or is_gap:
                continue
            for number in range(line, following[0] + 1):
                text = self.lines[number - 1]
                end = following[1] - 1 if number == following[0] else len(text)
                piece = text[column - 1 if number == line else 0:end].split('//')[0]
                # The end of a macro's body after a throw is never reached, but it is not code.
                if '} while (false)' not in text and re.search(r'[^\s{}();]', piece):
                    self.code.add(number)
                    if count == 0:
                        self.missed.setdefault(number, []).append('not run')

    def _read_branches(self, branches):
        """Each condition has two branches: the outcomes seen in any instantiation."""
        conditions = {}
        for branch in branches:
            place = tuple(branch[:4])
            seen = conditions.get(place, (False, False))
            conditions[place] = (seen[0] or branch[4] > 0, seen[1] or branch[5] > 0)
        for (line, column, last_line, last_column), seen in conditions.items():
            text = self.lines[line - 1][column - 1:last_column - 1 if line == last_line else None].strip()
            for way, name in zip(seen, ('true', 'false')):
                if not way:
                    self.missed.setdefault(line, []).append(f'never {name}: {text}')
        return conditions

    def _read_exemptions(self):
        """The lines that an exemption applies to."""
        exempt = set()
        for number, text in enumerate(self.lines, 1):
            if EXEMPTION not in text:
                continue
            while self.lines[number - 1].lstrip().startswith('//'):
                number += 1
            exempt.add(number)
        return exempt


def main(path):
    with open(path, encoding='utf-8') as file:
        files = [File(exported) for exported in json.load(file)['data'][0]['files']]
    problems = 0
    for file in files:
        for line in sorted(file.missed):
            for trouble in file.missed[line] if line not in file.exempt else []:
                print(f'{file.name}:{line}: {trouble}')
                problems += 1
        for line in sorted(file.exempt - set(file.missed)):
            print(f'{file.name}:{line}: is exempt, but covered')
            problems += 1
    lines = sum(len(file.code) for file in files)
    missed = [trouble for file in files for troubles in file.missed.values() for trouble in troubles]
    missed_lines = sum('not run' in troubles for file in files for troubles in file.missed.values())
    branches = sum(2 * len(file.branches) for file in files)
    missed_branches = sum(trouble != 'not run' for trouble in missed)
    exempt = sum(len(file.exempt) for file in files)
    if lines == 0 or branches == 0:
        sys.exit('there is nothing to cover')
    print(f'coverage of the core and the companions: {lines - missed_lines} of {lines} lines, '
          f'{branches - missed_branches} of {branches} branches; {exempt} lines exempt, with their reasons')
    return problems == 0


if __name__ == '__main__':
    sys.exit(0 if main(sys.argv[1]) else 1)
