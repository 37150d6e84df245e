# SPDX-License-Identifier: MIT
"""Follows the instructions of the pages for newcomers.

Usage: TryDocuments.py program | ways | --check-script

program         README.md's program, and the frame of the demo that README.md shows
ways            the four ways into a project in README.md, Docs/GettingStarted.md and Meson
--check-script  tests these scripts: pages with a mistake must be refused

Page.py describes the form of a page that can be tried.
"""

import os
import sys
import unittest

from Page import Page, Trouble
from Try import Try

ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..'))

# The sections of each try, in the order in which a reader follows them.
SAVED = ('README.md', 'A complete program')
PROGRAM = [[SAVED, ('README.md', 'Build it and run it')]]
WAYS = [
    [SAVED, ('README.md', 'An installed package')],
    [SAVED, ('README.md', 'A part of your CMake build')],
    [SAVED, ('README.md', 'Sources in an IDE project')],
    [SAVED, ('README.md', 'Dialogs compiled into the program')],
    [SAVED, ('Docs/Adoption.md', 'Meson')],
    [('Docs/GettingStarted.md', section)
     for section in ('What you need', 'A project', 'A dialog of your own', 'When it does not work')],
]
FRAME = ('README.md', 'See it run', 'Examples/CoffeeMachine/Tour.golden')


def main(arguments):
    if arguments == ['program']:
        check_frame()
        check_that_all_is_tried()
        follow_all(PROGRAM)
        print('The program of README.md prints what README.md says')
    elif arguments == ['ways']:
        follow_all(WAYS)
        print(f'README.md, Docs/GettingStarted.md and Docs/Adoption.md hold what they promise: {len(WAYS)} tries went as printed')
    elif arguments == ['--check-script']:
        check_script()
    else:
        sys.exit(__doc__)


def follow_all(tries):
    for number, sections in enumerate(tries, 1):
        print(f'[{number}/{len(tries)}] {sections[-1][0]}: {sections[-1][1]}', flush=True)
        attempt = Try(ROOT)
        for name, section in sections:
            attempt.follow(Page(ROOT, name).blocks_of(section))
        attempt.clean_up()


def check_frame():
    name, section, transcript = FRAME
    frames = [block for block in Page(ROOT, name).blocks_of(section) if not block.kind]
    if not frames:
        raise Trouble(f'{name}: the section "{section}" shows no frame of the demo')
    with open(os.path.join(ROOT, transcript), encoding='utf-8') as file:
        tour = file.read()
    for frame in frames:
        if frame.text() not in tour:
            raise Trouble(f'{frame.place}: the demo has no such frame; copy one from {transcript}')


def check_that_all_is_tried():
    tried = {section for sections in PROGRAM + WAYS for section in sections}
    for name in sorted({name for name, _ in tried}):
        for block in Page(ROOT, name).blocks:
            if block.kind and (name, block.section) not in tried:
                raise Trouble(f'{block.place}: nobody tries this block; add its section to '
                              f'{os.path.relpath(__file__, ROOT)}')


def check_script():
    tests = unittest.defaultTestLoader.discover(os.path.dirname(os.path.abspath(__file__)), '*Test.py')
    if not unittest.TextTestRunner(verbosity=1).run(tests).wasSuccessful():
        sys.exit(1)


if __name__ == '__main__':
    try:
        main(sys.argv[1:])
    except Trouble as trouble:
        sys.exit(str(trouble))
