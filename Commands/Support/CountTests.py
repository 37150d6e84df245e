"""Shows what ctest wrote and counts its tests: CountTests.py <output of ctest --verbose>

The tests inside a GoogleTest program count one by one, any other program counts as one test. Whatever did not pass
has failed. A GoogleTest program fails once more when it ends badly although its tests passed, when it has no tests,
and when some are disabled or skipped: nobody would notice. Programs that run side by side are shown one by one.
"""

import re
import sys

NOISE = re.compile(r'Test command|Working Directory|Test timeout|Environment variables|Running main')


class Program:
    """What one program of ctest has printed."""

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
        """Prints what the program has printed, and ctest's line of its end."""
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
    """Prints what is to be seen, and the numbers as the last line; returns the exit status."""
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
