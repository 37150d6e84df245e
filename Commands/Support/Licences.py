# SPDX-License-Identifier: MIT
"""Checks that every source file names its licence at its beginning, or adds the line: Licences.py [--fix]

The rest of the files is in .reuse/dep5. What `./run new` writes belongs to who has it written, and samples are data.
"""

import re
import shutil
import subprocess
import sys
from pathlib import Path

IDENTIFIER = 'SPDX-License-Identifier: MIT'
MARKS = {'.h': '//', '.cpp': '//', '.py': '#', '.sh': '#', '.bash': '#', '.cmake': '#', '.yml': '#', '.js': '//',
         '.mjs': '//'}
NAMES = {'CMakeLists.txt': '#', 'meson.build': '#', 'meson_options.txt': '#', 'run': '#', 'Kconfig': '#'}
WITHOUT = re.compile(r'Commands/Template/|.*/Sample/|Tests/Fuzz/Corpus/')


def mark_of(name):
    path = Path(name)
    if WITHOUT.match(name) or path.is_symlink() or not path.is_file():
        return None
    return NAMES.get(path.name) or MARKS.get(path.suffix)


def has_line(text, mark):
    first = text.split('\n')[:2]
    return f'{mark} {IDENTIFIER}' in first[:1] or (first[0].startswith('#!') and f'{mark} {IDENTIFIER}' in first)


def add_line(text, mark):
    if text.startswith('#!'):
        first, rest = text.split('\n', 1)
        return f'{first}\n{mark} {IDENTIFIER}\n{rest}'
    return f'{mark} {IDENTIFIER}\n{text}'


def replace(path, text):
    """Puts a new file in the place of the old one, which a shell may be reading."""
    new = path.with_name(path.name + '.new')
    new.write_text(text, encoding='utf-8')
    shutil.copymode(path, new)
    new.replace(path)


def main(options):
    listed = subprocess.run(['git', 'ls-files', '-z', '--cached', '--others', '--exclude-standard'], check=True,
                            stdout=subprocess.PIPE).stdout.decode().split('\0')
    number, faults = 0, []
    for name in sorted(set(filter(None, listed))):
        mark = mark_of(name)
        if not mark:
            continue
        number += 1
        text = Path(name).read_text(encoding='utf-8')
        if has_line(text, mark):
            continue
        if '--fix' in options:
            replace(Path(name), add_line(text, mark))
        else:
            faults.append(f'{name} does not begin with {mark} {IDENTIFIER}')
    if Path('LICENSES/MIT.txt').read_bytes() != Path('LICENSE').read_bytes():
        faults.append('LICENSES/MIT.txt is not LICENSE')
    if not re.search(r'^Files: \*\n.*\nLicense: MIT$', Path('.reuse/dep5').read_text(encoding='utf-8'), re.MULTILINE):
        faults.append('.reuse/dep5 does not cover all files')
    print('\n'.join(faults) if faults else f'{number} source files name their licence')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
