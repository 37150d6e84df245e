# SPDX-License-Identifier: MIT
"""Holds the includes of each room to the order of the house: House.py [--check-script]

A room may include itself and what is above it. Each room has a README.md of at most 15 lines. An adapter stays below
800 lines of code; Adapters/README.md says which lines count.
"""

import re
import sys
from pathlib import Path

# From the top down; rooms of one floor may include each other.
FLOORS = (('Include', 'Source'), ('Loader',), ('Scenario',), ('Widgets',), ('Inspection',), ('Simulator',), ('Flow',),
          ('Adapters',), ('Companions',), ('Examples', 'Device'), ('TestSupport',), ('Tests',), ('Benchmarks',))
# What a room may include instead, if not all that stands above it.
ONLY = {'Adapters': ('Include', 'Source', 'Loader', 'Widgets'), 'Companions': ('Include', 'Source')}
CORE = ('Core', 'GUIConfig')
# A room inside another one that belongs to a lower floor: its path, and whose order it follows.
INNER = ((re.compile(r'Examples/[^/]+/Tests/'), 'Tests'), (re.compile(r'Device/Tests/'), 'Tests'))
# The sizes of private members are known to the tests' access alone.
EXEMPT = {('Device/Footprint/Sizes.cpp', 'TestSupport/TestAccess.h')}
LONGEST_README = 15
MOST_LINES_OF_AN_ADAPTER = 799
# What all adapters share, and the interface in C beside that in C++.
NO_ADAPTER = ('Mirror',)
BESIDE_AN_ADAPTER = re.compile(r'dialogmanager_\w+\.(h|cpp)$')
COMMENT = re.compile(r'/\*.*?\*/|//[^\n]*', re.DOTALL)
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]+"([^"]+)"', re.MULTILINE)


def floor_of(room):
    return next(number for number, rooms in enumerate(FLOORS) if room in rooms)


def room_of_include(name):
    """The room of a header, or None if it is one of the file's own folder."""
    first = name.split('/')[0]
    if first in CORE and '/' in name:
        return 'Include'
    return first if '/' in name and any(first in rooms for rooms in FLOORS) else None


def room_of_file(name):
    """The room of a file by its path in the project."""
    return next((room for path, room in INNER if path.match(name)), name.split('/')[0])


def is_own(path, name):
    """Whether a header is found beside the file, or in a folder around it inside the room."""
    folders = [path.parent, *path.parent.parents]
    return any((folder / name).is_file() for folder in folders[:len(path.parts) - 1])


def may_include(room, other):
    if other == room:
        return True
    if room in ONLY:
        return other in ONLY[room]
    if room == 'Include':
        return False
    return floor_of(other) <= floor_of(room)


def count_code(text):
    """The lines with a word that is in no comment, apart from those of the preprocessor."""
    lines = (line.strip() for line in COMMENT.sub('', text).split('\n'))
    return sum(1 for line in lines if re.search(r'\w', line) and not line.startswith('#'))


def find_long_adapters(root):
    for adapter in sorted((root / 'Adapters').iterdir()):
        files = [path for path in sorted(adapter.glob('*')) if path.suffix in ('.h', '.cpp')]
        lines = sum(count_code(path.read_text(encoding='utf-8')) for path in files
                    if not BESIDE_AN_ADAPTER.search(path.name))
        if adapter.name not in NO_ADAPTER and lines > MOST_LINES_OF_AN_ADAPTER:
            yield f'{adapter.relative_to(root)} has {lines} lines of code; an adapter has at most ' \
                  f'{MOST_LINES_OF_AN_ADAPTER}'


def find_faults(root):
    faults = list(find_long_adapters(root))
    for room in (room for rooms in FLOORS for room in rooms):
        for path in sorted((root / room).rglob('*')):
            if path.suffix not in ('.h', '.cpp', '.in') or not path.is_file():
                continue
            text = path.read_text(encoding='utf-8', errors='replace')
            for match in INCLUDE.finditer(text):
                name, other = str(path.relative_to(root)), room_of_include(match[1])
                if other is None or is_own(path.relative_to(root), match[1]) or (name, match[1]) in EXEMPT:
                    continue
                if not may_include(room_of_file(name), other):
                    line = text.count('\n', 0, match.start()) + 1
                    faults.append(f'{name}:{line}: {room_of_file(name)} must not include {match[1]}')
        readme = root / room / 'README.md'
        if not (root / room).is_dir():
            continue
        if not readme.is_file():
            faults.append(f'{room} has no README.md')
        elif readme.read_text(encoding='utf-8').count('\n') > LONGEST_README:
            faults.append(f'{room}/README.md has more than {LONGEST_README} lines')
    return faults


def check_script():
    assert may_include('Loader', 'Include') and may_include('Tests', 'Widgets') and may_include('Source', 'Include')
    assert not may_include('Include', 'Loader') and not may_include('Include', 'Source')
    assert not may_include('Companions', 'Loader') and may_include('Companions', 'Include')
    assert may_include('Device', 'Examples') and room_of_file('Examples/Tea/Tests/Test.cpp') == 'Tests'
    assert not may_include('Examples', 'Tests') and not may_include('Scenario', 'TestSupport')
    assert room_of_include('Core/GUITrace.h') == 'Include' and room_of_include('Home.h') is None
    assert count_code('#include "a"\n\n/** A\n * b\n */\nint i;  // c\n{\n    // d\n    f();\n});\n') == 2
    assert INCLUDE.findall('#include "a/b.h"\n  #  include "c.h"\n// #include "d.h"\n') == ['a/b.h', 'c.h']


if __name__ == '__main__':
    check_script()
    found = find_faults(Path('.'))
    print('\n'.join(found), end='\n' if found else '')
    sys.exit(1 if found else 0)
