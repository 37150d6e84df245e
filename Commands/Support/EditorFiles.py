# SPDX-License-Identifier: MIT
"""Checks that what editors read here names what there is."""

import json
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path


def find_faults():
    faults = []
    tasks = json.loads(Path('.vscode/tasks.json').read_text(encoding='utf-8'))['tasks']
    for task in tasks:
        command = re.fullmatch(r'\./run (\w+)( --\w+)?', task['command'])
        if not command or not Path(f'Commands/{command[1]}.sh').is_file():
            faults.append(f'.vscode/tasks.json: there is no command {task["command"]}')
    settings = json.loads(Path('.vscode/settings.json').read_text(encoding='utf-8'))
    for association in settings['xml.fileAssociations']:
        if not list(Path('.').glob(association['pattern'])):
            faults.append(f'.vscode/settings.json: there are no files {association["pattern"]}')
        if not Path(association['systemId']).is_file():
            faults.append(f'.vscode/settings.json: there is no schema {association["systemId"]}')
    named = set()
    for catalog in settings['xml.catalogs']:
        for entry in ElementTree.parse(catalog).getroot():
            schema = Path(catalog).parent / entry.get('uri')
            named.add(schema)
            if not schema.is_file() or schema.name != (entry.get('name') or entry.get('systemId')).split('/')[-1]:
                faults.append(f'{catalog}: there is no schema {schema}')
    faults += [f'{schema} is not in the catalog' for schema in Path('Docs').glob('*.xsd') if schema not in named]
    return faults


if __name__ == '__main__':
    found = find_faults()
    print('\n'.join(found), end='\n' if found else '')
    sys.exit(1 if found else 0)
