# SPDX-License-Identifier: MIT
"""Shows the output of ctest and counts the tests: CountTests.py <output of ctest --verbose>

Each test of a GoogleTest program counts; any other program counts as one test. A test that did not pass has failed. One
more failure counts for a GoogleTest program that ends with an error although its tests passed, that has no tests, or
whose tests are partly disabled or skipped, which nobody would notice. Programs that ran side by side are shown one after
the other.
"""

import re
import sys

NOISE = re.compile(r'Test command|Working Directory|Test timeout|Environment variables|Running main')


class Program:
    """The output of one program of ctest."""

    def __init__(self, name):
        self.name = name
        self.is_googletest = self.has_disabled = False
        self.ran = self.passed = 0
        self.lines = []

    def read(self, line):
        """Takes a line of the program's output."""
        ran = re.match(r'\[==========\] (\d+) tests? from .* ran\.', line)
        passed = re.match(r'\[  PASSED  \] (\d+) tests?\.$', line)
        if ran:
            self.is_googletest, self.ran = True, int(ran[1])
        elif passed:
            self.passed = int(passed[1])
        elif 'DISABLED TEST' in line:
            self.has_disabled = True
        if not NOISE.match(line):
            self.lines.append(line)

    def show(self, end):
        """Prints the program's output and ctest's line about its end."""
        print('\n'.join([*self.lines, end]))

    def count(self, ended_well):
        """Returns how many tests passed and how many failed."""
        if not self.is_googletest:
            return int(ended_well), int(not ended_well)
        failed = self.ran - self.passed + self.has_disabled
        if failed == 0 and (self.ran == 0 or not ended_well):
            failed = 1
        return self.passed, failed


def main(path):
    """Prints the output of all programs, and the numbers as the last line; returns the exit status."""
    passed = failed = 0
    programs = {}
    with open(path, encoding='utf-8', errors='replace') as log:
        for line in log.read().splitlines():
            start = re.match(r' *Start +(\d+): (\S+)', line)
            output = re.match(r'(\d+): (.*)', line)
            end = re.match(r' *\d+/\d+ Test +#(\d+): ', line)
            if start:
                programs[start[1]] = Program(start[2])
            elif output:
                programs[output[1]].read(output[2])
            elif end:
                program = programs[end[1]]
                program.show(line)
                good, bad = program.count(re.search(r' Passed +[0-9.]+ sec$', line) is not None)
                passed += good
                failed += bad
                if program.is_googletest:
                    print(f'{program.name}: {bad} failed, skipped or disabled\n' if bad else '')
    if passed + failed == 0:
        failed = 1
    print(f'\n{passed} passed, {failed} failed')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1]))
