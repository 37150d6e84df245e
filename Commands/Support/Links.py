# SPDX-License-Identifier: MIT
"""Checks the links of the documents, and that the last table of Docs/Design.md names existing files and functions."""

import pathlib
import re
import subprocess
import sys


def anchors(text):
    """Returns the anchors of the headings of a page."""
    return {re.sub(r'[^\w\- ]', '', heading.lower()).replace(' ', '-')
            for heading in re.findall(r'^#+ (.*)$', text, re.MULTILINE)}


def broken_links(page):
    """Yields the links of a page that lead nowhere."""
    text = re.sub(r'```.*?```', '', page.read_text(encoding='utf-8'), flags=re.DOTALL)
    for link in re.findall(r'\]\(([^)\s]+)\)', text):
        if re.match(r'\w+:', link):
            continue
        path, _, anchor = link.partition('#')
        target = page.parent / path if path else page
        if not target.exists():
            yield f'{page}: there is no file {link}'
        elif anchor and anchor not in anchors(target.read_text(encoding='utf-8')):
            yield f'{page}: there is no heading for {link}'


def wrong_places(page):
    """Yields the places in the table of behaviour that do not exist."""
    for cell in re.findall(r'^\|[^|]*\|([^|]*)\|$', page.read_text(encoding='utf-8'), re.MULTILINE):
        quoted = re.findall(r'`([^`]+)`', cell)
        files = [pathlib.Path(name) for name in quoted if '/' in name]
        yield from (f'{page}: there is no file {path}' for path in files if not path.is_file())
        texts = [path.read_text(encoding='utf-8') for path in files if path.is_file()]
        for name in quoted:
            function = name.split('::')[-1]
            if '/' not in name and not any(function in text for text in texts):
                yield f'{page}: {name} is in none of {", ".join(map(str, files))}'


def main():
    """Prints what is wrong; returns the exit status."""
    listed = subprocess.run(['git', 'ls-files', '*.md'], check=True, stdout=subprocess.PIPE, text=True).stdout
    pages = [pathlib.Path(name) for name in listed.split()]
    wrong = [fault for page in pages for fault in broken_links(page)]
    wrong += wrong_places(pathlib.Path('Docs/Design.md'))
    print('\n'.join(wrong) or f'The links of {len(pages)} documents lead to files and headings')
    return 1 if wrong else 0


if __name__ == '__main__':
    sys.exit(main())
