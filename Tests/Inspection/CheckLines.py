# SPDX-License-Identifier: MIT
"""Checks lines that an inspection sent: CheckLines.py <schema> <file> ...

Every line must follow the schema. In the output of InspectScenarios, the state assembled from the lines so far must
equal that of the transcript, with nothing missing.
"""

import json
import pathlib
import sys

import jsonschema

PARTS = ['current', 'history', 'dialogs', 'popups', 'active', 'remembered', 'dynamic', 'focus', 'tree', 'timers',
         'hooks', 'heap']


def name(item):
    """Returns an identifier as a transcript prints it."""
    return item.get('name', str(item['id']))


def name_or_dash(item):
    return name(item) if item['id'] else '-'


def description(item):
    return (f"after {item['after']}" + ('' if item['deletion'] else ', no deletion') +
            ('' if item['recovery'] else ', no recovery'))


def settings(item):
    return f"prio {item['priority']}, {item['time']} ms, {'delete' if item['delete'] else 'hide'} on close"


class State:
    """The parts of the state, assembled from lines."""

    def __init__(self):
        self.parts, self.begun = {}, {}

    def take(self, line, where):
        """Processes a line of the state."""
        part = line['part']
        if line['from'] == 0:
            self.begun[part] = []
        if len(self.begun[part]) != line['from']:
            sys.exit(f'{where}: items of {part} are missing')
        self.begun[part] = self.begun[part] + line['items']
        if not line['more']:
            # The time left counts from the moment when the line was sent.
            self.parts[part] = [dict(item, left=item['left'] + line['time']) if 'left' in item and part != 'history'
                                else item for item in self.begun.pop(part)]

    def text(self, time):
        """Returns the state as a transcript prints it."""
        missing = [part for part in PARTS if part not in self.parts]
        if missing:
            return f'never sent: {missing}\n'
        lines = []
        for item in self.parts['current']:
            text = description(item)
            lines.append('current: ' + (name(item) if item['id'] else 'none') +
                         ('' if not item['id'] and text == 'after ODA_NOTHING' else ' ' + text))
        for item in self.parts['history']:
            focus = f" focus {name(item['focus'])}" if 'focus' in item else ''
            lines.append(f"history: {name(item)} {item['left']}{focus} ({description(item)})")
        lines += [f"dialog: {name(item)} \"{item['path']}\"" for item in self.parts['dialogs']]
        lines += [f"popup: {name(item)} {settings(item)}, \"{item['path']}\"" for item in self.parts['popups']]
        for item in self.parts['active']:
            shown = '' if item['gone'] else ', shown' if item['shown'] else ', hidden'
            lines.append('active: ' + ('gone' if item['gone'] else name_or_dash(item)) + ' ' + settings(item) + shown +
                         (', detached' if item.get('detached') else '') + self.left(item, time))
        lines += [f'remembered: {name_or_dash(item)}' for item in self.parts['remembered']]
        if self.parts['dynamic']:
            lines.append('dynamic: ' + ' '.join(str(item['id']) for item in self.parts['dynamic']))
        lines += [f'focus: {name_or_dash(item)}' for item in self.parts['focus']]
        lines += ['tree:'] if self.parts['tree'] else []
        for item in self.parts['tree']:
            lines.append('  ' * (item['depth'] + 1) + name_or_dash(item) + (' invisible' if 'invisible' in item else '') +
                         (' focussed' if 'focussed' in item else ' focusable' if 'focusable' in item else ''))
        for item in self.parts['timers']:
            lines.append(f"timer: {name(item['popup']) if 'popup' in item else '-'} every {item['interval']} ms" +
                         self.left(item, time))
        return ''.join(line + '\n' for line in lines)

    @staticmethod
    def left(item, time):
        return f", {max(item['left'] - time, 0)} ms left" if 'left' in item else ''


def check(path, validator):
    """Returns the number of lines in a file, and how many states were compared with them."""
    state, lines, states, compares = State(), 0, 0, False
    for number, text in enumerate(pathlib.Path(path).read_text(encoding='utf-8').split('\n')[:-1], 1):
        where = f'{path}:{number}'
        if text.startswith('# '):
            state, compares = State(), True
        elif text.startswith('= '):
            time, expected = text[2:].split(' ', 1)
            expected, told, states = expected.replace('\\n', '\n'), state.text(int(time)), states + 1
            if told != expected:
                sys.exit(f'{where}: the transcript has\n{expected}and the lines before\n{told}')
        else:
            line = json.loads(text)
            error = next(validator.iter_errors(line), None)
            if error is not None:
                sys.exit(f'{where}: {jsonschema.exceptions.best_match([error]).message}')
            lines += 1
            if line['type'] == 'state' and compares:
                state.take(line, where)
    return lines, states


def main(schema_path, paths):
    schema = json.loads(pathlib.Path(schema_path).read_text(encoding='utf-8'))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    counts = [check(path, validator) for path in paths]
    print(f'{sum(lines for lines, _ in counts)} lines follow the schema, {sum(states for _, states in counts)} states '
          'are those of the transcripts')


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2:])
