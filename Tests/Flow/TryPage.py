# SPDX-License-Identifier: MIT
"""Does what a page about flows says, and compares the output: TryPage.py <page> <program> <folder>

An xml block is the file Lamp.xml, a diff block changes it, a sh block runs the program, a text block is its output.
"""

import os
import re
import subprocess
import sys
from pathlib import Path


def apply_diff(text, diff):
    """Replaces each run of removed lines by the added ones that follow it; without removed ones, adds them."""
    removed, added, before = [], [], None
    for line in diff.splitlines(keepends=True) + [' end\n']:
        if line.startswith('-'):
            if added:
                text = replace(text, before, removed, added)
                removed, added = [], []
            removed.append(line[1:])
        elif line.startswith('+'):
            added.append(line[1:])
        else:
            if removed or added:
                text = replace(text, before, removed, added)
            removed, added, before = [], [], line[1:]
    return text


def replace(text, before, removed, added):
    old = ''.join(removed) or before
    if text.count(old) != 1:
        raise ValueError(f'{old!r} occurs {text.count(old)} times')
    return text.replace(old, ''.join(added) if removed else old + ''.join(added))


def main():
    page, program, folder = Path(sys.argv[1]), Path(sys.argv[2]).resolve(), Path(sys.argv[3])
    environment = {**os.environ, 'PATH': f'{program.parent}:{os.environ["PATH"]}'}
    file = folder / 'Lamp.xml'
    output, outputs = None, 0
    for kind, block in re.findall(r'^```(\w+)\n(.*?)^```$', page.read_text(encoding='utf-8'), re.MULTILINE | re.DOTALL):
        if kind == 'xml':
            file.write_text(block, encoding='utf-8')
        elif kind == 'diff':
            file.write_text(apply_diff(file.read_text(encoding='utf-8'), block), encoding='utf-8')
        elif kind == 'sh':
            output = subprocess.run(['bash', '-c', block], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                                    stdout=subprocess.PIPE, text=True, check=False, timeout=60).stdout
        elif kind == 'text':
            outputs += 1
            if output != block:
                print(f'{page}: the program prints\n{output}instead of\n{block}')
                return 1
    print(f'{page}: {outputs} outputs are as printed')
    return 0


if __name__ == '__main__':
    sys.exit(main())
