# SPDX-License-Identifier: MIT
"""Fails unless the tables of the dialogs are in flash: DialogsInFlash.py <map of the coffee machine>

Flash ends before 0x20000000. Nothing else of their object file may be elsewhere, except the check that a table of handles
is linked, which every object file contains.
"""

import pathlib
import re
import sys

MEMORY_BEGIN = 0x20000000


def tables(map_text):
    """Yields the sections of the dialogs' object file and their addresses."""
    text = map_text[map_text.index('Linker script and memory map'):]
    pattern = r'^ (\.\S+)\s+0x([0-9a-f]+)\s+0x([0-9a-f]+)\s+\S*/Dialogs\.cpp\.obj$'
    for section, address, size in re.findall(pattern, text, re.MULTILINE):
        if int(size, 16) and re.match(r'\.(rodata|data|bss)', section) and \
                not section.endswith('HandleTableIsLinked'):
            yield section, int(address, 16)


def main(path):
    """Prints what is not in flash; returns the exit status."""
    placed = list(tables(pathlib.Path(path).read_text(encoding='utf-8')))
    in_memory = [section for section, address in placed if address >= MEMORY_BEGIN]
    for section in in_memory:
        print(f'{path}: {section} of the dialogs is in memory')
    if not placed:
        print(f'{path} has no tables of dialogs')
    return 1 if in_memory or not placed else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1]))
