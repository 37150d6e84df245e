# SPDX-License-Identifier: MIT
"""Checks that reports have the structure of SARIF 2.1.0: CheckSARIF.py <file ...>

It knows the objects that the checker writes: which properties each may and must have, and their values. A property that
the standard does not have is an error.
"""

import json
import re
import sys

URI = re.compile(r"(?:[A-Za-z0-9/._~-]|%[0-9A-F]{2})+")


def is_text(value):
    return isinstance(value, str) and value != ''


def one_of(*values):
    return lambda value: value in values


def array(check):
    return lambda value: isinstance(value, list) and all(check(item) for item in value)


def item(required, optional=None):
    """Returns a check of an object with these properties."""
    known = {**required, **(optional or {})}

    def check(value):
        if not isinstance(value, dict) or not set(required) <= set(value) <= set(known):
            raise ValueError(f'{value} has other properties than {sorted(required)} and perhaps {sorted(known)}')
        for name, content in value.items():
            if not known[name](content):
                raise ValueError(f'{name} is {content!r}')
        return True
    return check


MESSAGE = item({'text': is_text})
LOCATION = item({'physicalLocation': item({
    'artifactLocation': item({'uri': lambda value: URI.fullmatch(value) is not None}),
    'region': item({'startLine': lambda value: isinstance(value, int) and value >= 1})})})
SUPPRESSION = item({'kind': one_of('inSource', 'external')}, {'justification': is_text})
RESULT = item({'ruleId': is_text, 'level': one_of('none', 'note', 'warning', 'error'), 'message': MESSAGE},
              {'locations': array(LOCATION), 'suppressions': array(SUPPRESSION)})
RULE = item({'id': is_text, 'shortDescription': MESSAGE})
RUN = item({'tool': item({'driver': item({'name': is_text, 'rules': array(RULE)})}), 'results': array(RESULT)})
LOG = item({'version': one_of('2.1.0'), '$schema': is_text, 'runs': array(RUN)})


def check_report(path):
    with open(path, encoding='utf-8') as file:
        log = json.load(file)
    LOG(log)
    for run in log['runs']:
        rules = [rule['id'] for rule in run['tool']['driver']['rules']]
        if len(rules) != len(set(rules)):
            raise ValueError('a rule occurs twice')
        for result in run['results']:
            if result['ruleId'] not in rules:
                raise ValueError(f"{result['ruleId']} is no rule")


def main():
    for path in sys.argv[1:]:
        try:
            check_report(path)
        except ValueError as error:
            print(f'{path}: {error}')
            return 1
    return 0


if __name__ == '__main__':
    sys.exit(main())
