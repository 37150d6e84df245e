# SPDX-License-Identifier: MIT
"""Changes flows in small ways and checks the changed ones: Mutants.py [--all] <dialogcheck> <flow ...>

It prints each change with the properties whose verdict it changes, or "same", then a table of the kinds of changes.
Without --all, every fifth change is tried. The bound is low, and the same for the flow itself.
"""

import collections
import json
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

STATES = '2000'
STEP = 5
ACTIONS = ['ODA_NOTHING', 'ODA_INVISIBLE', 'ODA_INVISIBLE_ALL', 'ODA_DELETE', 'ODA_DELETE_ALL']
REACTIONS = {'On', 'At', 'Start'}


def next_of(items, item):
    return items[(items.index(item) + 1) % len(items)] if item in items else items[0]


class Mutator:
    """Lists the changes of a flow. A change is a kind, a description and a function that makes it in a tree."""

    def __init__(self, tree):
        self.elements = list(tree.getroot().iter())
        numbers = {element: number for number, element in enumerate(self.elements)}
        self.parents = {numbers[child]: numbers[parent] for parent in self.elements for child in parent}
        self.dialogs = [element.get('id') for element in self.elements if element.tag == 'DialogDefinition']
        self.changes = []

    def drop(self, kind, number):
        def change(elements):
            elements[self.parents[number]].remove(elements[number])
        self.changes.append((kind, describe(self.elements[number]), change))

    def drop_button(self, number, name):
        """Drops the button and everything that names it."""
        def change(elements):
            for other, element in enumerate(elements):
                if other == number or name in (element.get('button'), element.get('object')):
                    elements[self.parents[other]].remove(element)
        self.changes.append(('drop a button', describe(self.elements[number]), change))

    def set(self, kind, number, name, value):
        def change(elements):
            elements[number].attrib.pop(name, None)
            if value is not None:
                elements[number].set(name, value)
        what = f'{name}="{value}"' if value is not None else f'no {name}'
        self.changes.append((kind, f'{describe(self.elements[number])}: {what}', change))

    def list(self):
        for number, element in enumerate(self.elements):
            if element.tag == 'Button':
                self.drop_button(number, element.get('id'))
            elif element.tag == 'On':
                self.drop('drop a reaction', number)
            elif element.tag == 'PopupDefinition':
                self.change_popup(number, element)
            elif number in self.parents and self.elements[self.parents[number]].tag in REACTIONS:
                self.drop('drop an action', number)
                self.change_action(number, element)
            if element.get('when') and element.tag not in ('Never', 'Always'):
                self.set('drop a condition', number, 'when', None)
        return self.changes

    def change_popup(self, number, element):
        self.set('raise a priority', number, 'priority', '9')
        self.set('lower a priority', number, 'priority', '1')
        self.set('change a display time', number, 'time', '0' if element.get('time', '0') != '0' else '2000')

    def change_action(self, number, element):
        if element.tag == 'create':
            self.set('swap an old-dialog action', number, 'action',
                     next_of(ACTIONS, element.get('action', 'ODA_INVISIBLE')))
        if element.tag in ('create', 'back-to'):
            self.set('swap a dialog', number, 'dialog', next_of(self.dialogs, element.get('dialog')))
        if element.tag in ('back', 'back-to', 'clear'):
            self.set('keep what is left', number, 'delete', 'false' if element.get('delete') != 'false' else 'true')


def describe(element):
    return ' '.join([element.tag] + [f'{name}="{value}"' for name, value in element.attrib.items()
                                     if name in ('id', 'button', 'key', 'signal', 'timer', 'time', 'when', 'dialog',
                                                 'popup', 'flag', 'object')])


def check(checker, text, folder, name):
    """Returns for each property how many unexpected violations it has; None for a wrong flow."""
    path = folder / f'{name}.xml'
    path.write_text(text, encoding='utf-8')
    done = subprocess.run([checker, path, '--states', STATES, '--json'], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True, check=False)
    path.unlink()
    if done.returncode > 1:
        return None
    return {result['property']: result['violations'] for result in json.loads(done.stdout)['properties']}


def try_change(checker, flow, text, change, number, folder):
    tree = ElementTree.ElementTree(ElementTree.fromstring(text))
    change(list(tree.getroot().iter()))
    return check(checker, ElementTree.tostring(tree.getroot(), encoding='unicode'), folder, f'{flow.stem}{number}')


def verdict(original, changed):
    if changed is None:
        return 'refused'
    return ' '.join(name for name in original if (original[name] == 0) != (changed[name] == 0)) or 'same'


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != '--all']
    step = 1 if '--all' in sys.argv else STEP
    checker, flows = Path(arguments[0]).resolve(), [Path(argument) for argument in arguments[1:]]
    table = collections.defaultdict(collections.Counter)
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(2) as pool:
        for flow in flows:
            text = flow.read_text(encoding='utf-8')
            original = check(checker, text, Path(folder), flow.stem)
            changes = Mutator(ElementTree.ElementTree(ElementTree.fromstring(text))).list()[::step]
            results = pool.map(lambda item, text=text, flow=flow:
                               try_change(checker, flow, text, item[1][2], item[0], Path(folder)),
                               enumerate(changes))
            for (kind, what, _), changed in zip(changes, results):
                outcome = verdict(original, changed)
                print(f'{flow.stem}: {kind}: {what}: {outcome}')
                table[kind][outcome if outcome in ('same', 'refused') else 'changed'] += 1
    print(f'\n{"change":28}{"tried":>8}{"changed":>9}{"refused":>9}{"same":>6}')
    total = collections.Counter()
    for kind, counts in sorted(table.items()) + [('all', total)]:
        print(f'{kind:28}{sum(counts.values()):8}{counts["changed"]:9}{counts["refused"]:9}{counts["same"]:6}')
        if kind != 'all':
            total.update(counts)
    return 0


if __name__ == '__main__':
    sys.exit(main())
