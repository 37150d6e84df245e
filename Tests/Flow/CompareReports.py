# SPDX-License-Identifier: MIT
"""Compares the dialogs that two applications reach: CompareReports.py <report of the flow> <report of the program>

The about dialog has a handle in the flow and a dynamic identifier in the program.
"""

import json
import sys


def read_dialogs(path):
    with open(path, encoding='utf-8') as file:
        dialogs = json.load(file)['dialogs']
    return {'DLG_ABOUT' if name.lstrip('-').isdigit() else name for name in dialogs}


def main():
    flow, program = (read_dialogs(path) for path in sys.argv[1:3])
    if flow != program:
        print(f'only the flow reaches {sorted(flow - program)}, only the program {sorted(program - flow)}')
        return 1
    print(f'the flow and the program reach the same {len(flow)} dialogs')
    return 0


if __name__ == '__main__':
    sys.exit(main())
