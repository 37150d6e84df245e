# SPDX-License-Identifier: MIT
"""Reads from a page what it tells its reader to do.

The instructions are fenced blocks; the word after the opening fence says what to do with a block:

sh      commands to type
text    what the commands before it print; ... stands for anything within a line
diff    lines of a file to replace; an empty line separates two places
others  a file to save: cpp, cmake, xml and the like

The sentence before a file or a diff names the file, as in "Save this as `Main.cpp`:". A block without a word
only shows something.
"""

import os
import re


class Trouble(Exception):
    """What is wrong with a page, where, and what to do."""


class Block:
    def __init__(self, place, section, kind, introduction):
        self.place = place  # page and line
        self.section = section
        self.kind = kind
        self.introduction = introduction  # the paragraph before the block
        self.lines = []

    def text(self):
        return ''.join(line + '\n' for line in self.lines)

    def file_name(self):
        names = re.findall(r'`([^`]+)`', self.introduction)
        if not names or not self.introduction.endswith(':'):
            raise Trouble(f'{self.place}: which file is this? The sentence before it must name the file in '
                          f'`backquotes` and end with a colon')
        return names[-1]


class Page:
    def __init__(self, root, name):
        self.name = name
        self.blocks = []
        self.sections = []
        with open(os.path.join(root, name), encoding='utf-8') as file:
            self._read(file.read().split('\n'))

    def _read(self, lines):
        section, paragraph, is_going_on, block = '', '', False, None
        for number, line in enumerate(lines, 1):
            if block is not None:
                if line.startswith('```'):
                    block, paragraph = None, ''
                else:
                    block.lines.append(line)
            elif line.startswith('```'):
                block = Block(f'{self.name}:{number}', section, line[3:].strip(), paragraph)
                self.blocks.append(block)
            elif line.startswith('#'):
                section, paragraph = line.lstrip('#').strip(), ''
                self.sections.append(section)
            elif line:
                paragraph = f'{paragraph} {line}' if is_going_on else line
            is_going_on = bool(line)
        if block is not None:
            raise Trouble(f'{block.place}: this block has no end; close it with ```')

    def blocks_of(self, section):
        if section not in self.sections:
            raise Trouble(f'{self.name}: there is no section "{section}"; the sections are '
                          f'{", ".join(self.sections)}')
        return [block for block in self.blocks if block.section == section]
