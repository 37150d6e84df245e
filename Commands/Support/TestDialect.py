# SPDX-License-Identifier: MIT
"""Checks that tests are written in one dialect: TestDialect.py <source> ...

- A test suite is named CXxxTest.
- An expectation has the expected value first: what is a literal or a constant does not come second.
- A comparison has nullptr on the right, unless it is the text of an assert, which the interface fixes.

Prints each line that differs, and ends with 1 if there is any.
"""

import pathlib
import re
import sys

CONSTANT = re.compile(r'(nullptr|true|false|-?[0-9][0-9a-zA-Z.\'+]*|[A-Z][A-Z0-9]*_[A-Z0-9_]+|(R?"|\'|std::string\(["\)]).*)$', re.DOTALL)
SUITE = re.compile(r'^TEST(?:_F|_P)?\(\s*(\w+)', re.MULTILINE)
EXPECTATION = re.compile(r'\b(?:EXPECT|ASSERT)_(?:EQ|NE|STREQ|STRNE|FLOAT_EQ|DOUBLE_EQ|TEXT)\(')
COMPARISON = re.compile(r'\b(?:nullptr|NULL) *[!=]=')
TOKEN = re.compile(r'R"(\w*)\(.*?\)\1"|"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)+\'|//[^\n]*|/\*.*?\*/|[()\[\]{},]|.', re.DOTALL)


def arguments(text, begin):
    """Returns the arguments of a call whose first one begins there."""
    found, depth = [''], 0
    for token in TOKEN.finditer(text, begin):
        part = token.group()
        if depth == 0 and part in ',)':
            if part == ')':
                return [argument.strip() for argument in found]
            found.append('')
            continue
        depth += (part in '([{') - (part in ')]}') if len(part) == 1 else 0
        found[-1] += part
    return []


def findings(text):
    """Yields (offset, what to do) for all that differs."""
    for match in SUITE.finditer(text):
        if not re.fullmatch(r'C[A-Z0-9]\w*Test', match[1]):
            yield match.start(), f'{match[1]}: name the suite C{match[1]}Test'
    for match in EXPECTATION.finditer(text):
        both = arguments(text, match.end())
        if len(both) == 2 and CONSTANT.match(both[1]) and not CONSTANT.match(both[0]):
            yield match.start(), f'{both[1]}: put the expected value first'
    for match in COMPARISON.finditer(text):
        line = text[text.rfind('\n', 0, match.start()) + 1:match.start()]
        if not re.search(r'\bassert\(|//|\*|"', line):
            yield match.start(), f'{match.group()}: put it on the right'


def main(paths):
    """Prints the findings; returns whether there are none."""
    count = 0
    for path in paths:
        text = pathlib.Path(path).read_text(encoding='utf-8')
        for offset, advice in sorted(findings(text)):
            count += 1
            print(f'{path}:{text.count(chr(10), 0, offset) + 1}: {advice}')
    return count == 0


if __name__ == '__main__':
    sys.exit(0 if main(sys.argv[1:]) else 1)
