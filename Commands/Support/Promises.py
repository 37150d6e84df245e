# SPDX-License-Identifier: MIT
"""The promises at the head of README.md: Promises.py [--update]

Checks that README.md shows them with the recorded figures, or writes them there. The commands that a promise names fail
if what they measure is worse than recorded.
"""

import pathlib
import re
import subprocess
import sys
import textwrap

HOOK_OUTCOMES = sorted(pathlib.Path('Tests/HookMatrix/Outcomes').glob('*.txt'))
DOCUMENT = pathlib.Path('README.md')
BEGIN = '<!-- promises: written by ./run figures --update -->\n'
END = '<!-- end of promises -->\n'


def recorded(path, beginning):
    """Returns the first number after the beginning of a line of recorded figures."""
    numbers = re.findall(rf'^{re.escape(beginning)} +([0-9.]+)', pathlib.Path(path).read_text(encoding='utf-8'), re.M)
    if len(numbers) != 1:
        sys.exit(f'{path} has {len(numbers)} figures "{beginning}" instead of one')
    return f'{float(numbers[0]):,.0f}'


def count_hook_cells():
    """Returns in how many combinations the hooks are tested."""
    figure = subprocess.run([sys.executable, '-B', 'Commands/Support/HookFigure.py', *HOOK_OUTCOMES], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    cells = int(re.search(r'(\d+) cells', figure)[1])
    if cells == 0:
        sys.exit('there are no recorded outcomes of the hooks where Promises.py looks for them')
    return f'{cells:,}'


def count_model_operations():
    """Returns how many operations the gate compares with the model."""
    command = pathlib.Path('Commands/model.sh').read_text(encoding='utf-8')
    return f'{int(re.search(r"ModelTests .*:-([0-9]+)", command)[1]):,}'


def promises():
    """Returns the promises as a list in Markdown."""
    footprint = 'Device/Footprint/Footprint.recorded'
    silent = recorded(footprint, 'flash, off, manager with its lists')
    talking = recorded(footprint, 'flash, debug, manager with its lists')
    memory = recorded(footprint, 'RAM, off, the library together')
    switch = recorded('Device/Instructions.recorded', 'no messages   switch         empty history, 30 objects')
    items = (
        f'**It is small and quick.** On a Cortex-M4 the manager takes {silent} bytes of flash, {talking} with all '
        f'messages, and the whole library {memory} bytes of static RAM (`./run footprint`). Switching to another '
        f'dialog takes {switch} instructions, without messages (`./run deviceinstructions`).',
        '**Your code cannot corrupt it.** A hook may call any operation, destroy any object and throw. A test plays '
        f'{count_hook_cells()} combinations; each has its recorded outcome, and none leaks or touches freed memory '
        '(`./run hooks`, `./run sanitize`).',
        f'**It does what it says.** After each of {count_model_operations()} random operations it is in the same state '
        'as an independent model of it, with the same hooks called and the same messages logged (`./run model`).',
    )
    return ''.join(wrap(f'{number}. {item}') + '\n' for number, item in enumerate(items, 1))


def wrap(item):
    """Returns an item of a list with lines of at most 120 characters; a command stays in one line."""
    joined = re.sub('`[^`]*`', lambda command: command[0].replace(' ', '\0'), item)
    return textwrap.fill(joined, 120, subsequent_indent='   ', break_on_hyphens=False).replace('\0', ' ')


def main(arguments):
    """Does what the arguments say."""
    text = DOCUMENT.read_text(encoding='utf-8')
    before, rest = text.split(BEGIN)
    after = rest.split(END)[1]
    new = before + BEGIN + promises() + END + after
    if arguments:
        DOCUMENT.write_text(new, encoding='utf-8')
    elif new != text:
        sys.exit(f'{DOCUMENT} does not promise what is recorded; ./run figures --update corrects it')


if __name__ == '__main__':
    main(sys.argv[1:])
