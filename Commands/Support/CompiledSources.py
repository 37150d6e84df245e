# SPDX-License-Identifier: MIT
"""Lists how sources are compiled: CompiledSources.py <compile_commands.json> <output directory>

A source that several programs share is listed once; generated sources are left out. Writes compile_commands.json and
sources, a file with one name per line, to the directory.
"""

import json
import pathlib
import sys


def main(database, directory):
    """Writes both files."""
    generated = pathlib.Path('build').resolve()
    commands = {}
    for command in json.loads(pathlib.Path(database).read_text(encoding='utf-8')):
        if generated not in pathlib.Path(command['file']).parents:
            commands.setdefault(command['file'], command)
    output = pathlib.Path(directory)
    (output / 'compile_commands.json').write_text(json.dumps(list(commands.values()), indent=1), encoding='utf-8')
    (output / 'sources').write_text(''.join(f'{source}\n' for source in commands), encoding='utf-8')


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2])
