"""Takes the program and its output out of README.md: ReadmeBlocks.py <README.md> <transcript> <output directory>

Writes Program.cpp, the first block fenced as cpp, and Expected.txt, the first one after it fenced as text. What is
fenced before the program is a frame of the demo, and has to be in the transcript of the demo as it stands.
"""

import pathlib
import re
import sys


def main(readme, transcript, directory):
    """Writes both files; ends with a message when something is missing."""
    text = pathlib.Path(readme).read_text(encoding='utf-8')
    blocks = re.findall(r'^```(\w*)\n(.*?)^```', text, re.MULTILINE | re.DOTALL)
    languages = [language for language, _ in blocks]
    if 'cpp' not in languages:
        sys.exit(f'{readme} has no C++ program')
    program = languages.index('cpp')
    if 'text' not in languages[program:]:
        sys.exit(f'{readme} states no output of its program')
    frame = ''.join(content for _, content in blocks[:program])
    if not frame:
        sys.exit(f'{readme} shows no frame of the demo')
    if frame not in pathlib.Path(transcript).read_text(encoding='utf-8'):
        sys.exit(f'the demo has no such frame as {readme} shows')
    output = pathlib.Path(directory)
    (output / 'Program.cpp').write_text(blocks[program][1], encoding='utf-8')
    (output / 'Expected.txt').write_text(blocks[languages.index('text', program)][1], encoding='utf-8')


if __name__ == '__main__':
    main(*sys.argv[1:])
