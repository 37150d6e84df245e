# SPDX-License-Identifier: MIT
"""Records a run of the board: RecordRun.py <log> <seed> <inputs> <emulator and its arguments ...>

Starts the program, whose serial line is standard input and output, and sends random input as its user would, at times
that nobody knows before: each line follows the reply to the one before. Ends the board in the middle of whatever it is
doing.
"""

import json
import pathlib
import random
import subprocess
import sys
import time

LIKELY = ('touch BTN_DRINKS', 'touch BTN_COFFEE', 'touch BTN_BREW', 'touch BTN_SETTINGS', 'touch BTN_LANGUAGE',
          'touch BTN_GERMAN', 'touch BTN_BACK', 'touch BTN_CLEANING', 'touch BTN_CLEANING_NEXT', 'touch BTN_ABOUT',
          'key next', 'key ok', 'key back', 'key home', 'key service', 'water 60', 'water 1000', 'beans 20', 'beans 200',
          'tray out', 'tray in', 'cups 50', 'ShowPopup POP_SAVED', 'ShowPopup POP_DESCALE', 'Back true')
UNLIKELY = ('state', 'touch BTN_NONE', 'key none', 'CreateDialog 999 ODA_DELETE', 'ShowPopup 999', 'ClosePopup POP_SAVED',
            'Nonsense', '# a comment', 'ClearDialogHistory 0 true false')
LONGEST = 60  # seconds


def main(log, seed, inputs, command):
    chance = random.Random(int(seed))
    deadline = time.monotonic() + LONGEST
    lines, replies = [], 0
    with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE) as board:

        def read_line():
            line = board.stdout.readline()
            if not line.endswith(b'\n') or time.monotonic() > deadline:
                board.kill()
                sys.exit(f'the board does not answer; the end of what it sent: {b"".join(lines[-3:]) + line!r}')
            lines.append(line)
            return json.loads(line)

        for _ in range(int(inputs)):
            text = chance.choice(LIKELY if chance.random() < 0.9 else UNLIKELY)
            board.stdin.write(text.encode() + b'\n')
            board.stdin.flush()
            while not text.startswith('#') and read_line()['type'] != 'reply':
                pass
            replies += not text.startswith('#')
            time.sleep(chance.choice((0, 0, 0.002, 0.02)))
        board.kill()
        lines.append(board.stdout.read())
    pathlib.Path(log).write_bytes(b''.join(lines))
    print(f'{replies} replies, seed {seed}')


if __name__ == '__main__':
    main(*sys.argv[1:4], sys.argv[4:])
