# SPDX-License-Identifier: MIT
"""Writes the library as one header and one source file: Drop.py <folder>

The core and the reader of compiled dialogs become DialogManager.h and DialogManager.cpp, with the licence and a README.md
beside them. Every header appears once, after those that it includes.
"""

import re
import shutil
import sys
from pathlib import Path

# The table for programs without handles is compiled only on request: in one unit with its users, the compiler would use
# its weak constants instead of the application's.
EMPTY_TABLE = 'Source/GUIConfig/GUIObjectHandleResource.cpp'
LICENCE_LINE = '// SPDX-License-Identifier: MIT'
ROM_READER = re.compile(r'set\(ROMLoaderSources\s+([^)]*)\)')


def read(path):
    """Returns a source without the line of its licence, which stands at the beginning of the whole."""
    return Path(path).read_text(encoding='utf-8').removeprefix(f'{LICENCE_LINE}\n')


class Writer:
    """Joins files, each header once."""

    def __init__(self):
        self.headers = set()
        self.system_headers = set()

    def include(self, name):
        """Returns the text of a header by the name that includes use, or nothing the second time."""
        if name in self.headers:
            return ''
        self.headers.add(name)
        paths = [path for path in (Path('Include', name), Path(name)) if path.is_file()]
        if len(paths) != 1:
            raise SystemExit(f'Drop.py: {name} is included, and there are {len(paths)} such headers')
        text = read(paths[0])
        guard = re.fullmatch(r'#ifndef (\w+)\n#define \1\n(.*)\n#endif\n', text, re.DOTALL)
        if not guard:
            raise SystemExit(f'Drop.py: {paths[0]} has no guard around all of it')
        return self.expand(paths[0], guard[2])

    def expand(self, path, text):
        """Returns the text of a file with its includes replaced by the headers."""
        depth = 0
        lines = [f'\n// {path}']
        for line in text.split('\n'):
            own = re.fullmatch(r'#include "([^"]+)"', line)
            system = re.fullmatch(r'#include (<[^>]+>)', line)
            depth += bool(re.match(r' *# *if', line)) - bool(re.match(r' *# *endif', line))
            if own:
                included = self.include(own[1])
                lines += [included] if included else []
            # A conditional include does not count for other files.
            elif not system or depth > 0:
                lines.append(line)
            elif system[1] not in self.system_headers:
                self.system_headers.add(system[1])
                lines.append(line)
        return re.sub(r'\n{3,}', '\n\n', '\n'.join(lines))


def source_files():
    """Returns the paths of the sources in the order in which they are joined."""
    reader = ROM_READER.search(Path('CMakeLists.txt').read_text(encoding='utf-8'))
    sources = sorted(map(str, Path('Source').rglob('*.cpp')))
    sources.remove(EMPTY_TABLE)
    return [*sources, *reader[1].split()]


def headers_of_users():
    """Returns the headers that applications include, by the names that they use."""
    core = sorted(str(path.relative_to('Include')) for path in Path('Include').rglob('*.h'))
    return [*core, 'Loader/GUIDialogROMReader.h']


def main(folder):
    """Writes the files."""
    licence = f'{LICENCE_LINE}\n//\n' + ''.join(f'// {line}'.rstrip() + '\n' for line in Path('LICENSE').read_text(encoding='utf-8').splitlines())
    writer = Writer()
    header = ''.join(writer.include(name) for name in headers_of_users())
    sources = ''
    for source in source_files():
        sources += writer.expand(source, read(source))
    empty_table = writer.expand(EMPTY_TABLE, read(EMPTY_TABLE))
    sources += f'\n#ifdef DIALOGMANAGER_WITHOUT_HANDLES\n{empty_table}\n#endif\n'
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    (folder / 'DialogManager.h').write_text(
        f'{licence}\n#ifndef DIALOGMANAGER_H\n#define DIALOGMANAGER_H\n{header}\n#endif\n', encoding='utf-8')
    (folder / 'DialogManager.cpp').write_text(
        f'{licence}\n#include "DialogManager.h"\n{sources}', encoding='utf-8')
    shutil.copyfile('LICENSE', folder / 'LICENSE')
    shutil.copyfile('Packaging/library.properties', folder / 'library.properties')
    shutil.copyfile('Commands/Support/Drop.md', folder / 'README.md')


if __name__ == '__main__':
    main(sys.argv[1])
