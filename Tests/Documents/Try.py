# SPDX-License-Identifier: MIT
"""Follows the instructions of pages, in an empty folder outside the checkout.

`git clone` of the address in the pages copies the checkout itself, including changes that are not committed.
"""

import difflib
import os
import pty
import re
import shutil
import subprocess
import tempfile
import tty

from Page import Trouble

ADDRESS = 'https://example.com/dialogmanager.git'

# Trying a page installs nothing, but Debian must know the packages that the page names.
SUDO = '''#!/bin/sh
! command -v apt-get >/dev/null || exec "$@" --simulate
'''


class Try:
    """An empty folder with a reader who follows instructions literally. If something fails, the folder is kept."""

    def __init__(self, root):
        # The name contains a blank, because a page must work in such a folder too.
        self.base = tempfile.mkdtemp(prefix='first steps ')
        self.folder = os.path.join(self.base, 'empty')
        os.mkdir(self.folder)
        self.repository = os.path.join(self.base, 'repository')
        self.last_command = None
        self.last_output = ''
        self._publish(root)
        self._write_file(os.path.join(self.base, 'programs', 'sudo'), SUDO)
        os.chmod(os.path.join(self.base, 'programs', 'sudo'), 0o755)

    def clean_up(self):
        shutil.rmtree(self.base)

    def follow(self, blocks):
        for block in blocks:
            if block.kind == 'sh':
                self._run(block)
            elif block.kind == 'text':
                self._compare(block)
            elif block.kind == 'diff':
                self._change(block)
            elif block.kind:
                self._write_file(os.path.join(self.folder, block.file_name()), block.text())

    def _publish(self, root):
        """Creates a repository of the files that would be committed."""
        names = subprocess.run(['git', 'ls-files', '-z', '--cached', '--others', '--exclude-standard'], cwd=root,
                               check=True, stdout=subprocess.PIPE).stdout.decode()
        for name in names.split('\0'):
            if os.path.isfile(os.path.join(root, name)):
                os.makedirs(os.path.dirname(os.path.join(self.repository, name)), exist_ok=True)
                shutil.copy2(os.path.join(root, name), os.path.join(self.repository, name))
        for command in (['init', '--initial-branch=main'], ['add', '--all'],
                        ['-c', 'user.name=Nobody', '-c', 'user.email=nobody@example.com', 'commit', '-m', 'As it is']):
            subprocess.run(['git', *command], cwd=self.repository, check=True, stdout=subprocess.DEVNULL)

    @staticmethod
    def _write_file(path, text):
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, 'w', encoding='utf-8') as file:
            file.write(text)

    def _run(self, block):
        folder_file = os.path.join(self.base, 'folder')
        script = f'trap \'pwd >"$FOLDER_FILE"\' EXIT\nset -e\n{block.text()}'
        environment = dict(os.environ, HOME=self.base, TERM='dumb', FOLDER_FILE=folder_file,
                           PATH=os.path.join(self.base, 'programs') + os.pathsep + os.environ['PATH'],
                           CMAKE_BUILD_PARALLEL_LEVEL=str(os.cpu_count()), GIT_CONFIG_COUNT='1',
                           GIT_CONFIG_KEY_0=f'url.{self.repository}.insteadOf', GIT_CONFIG_VALUE_0=ADDRESS)
        status, self.last_output = run_in_terminal(['bash', '-c', script], self.folder, environment)
        self.last_command = block
        if status != 0:
            raise Trouble(f'{self._show_output()}{block.place}: these commands end with status {status}; what '
                          f'they have done so far is in {self.folder}')
        if ' warning: ' in self.last_output:
            raise Trouble(f'{self._show_output()}{block.place}: these commands show the reader the warning above')
        with open(folder_file, encoding='utf-8') as file:
            self.folder = file.read().rstrip('\n')

    def _show_output(self):
        return '\n'.join(self.last_output.split('\n')[-60:])

    def _compare(self, block):
        if self.last_command is None or self.last_command.section != block.section:
            raise Trouble(f'{block.place}: no command of this section prints this; put a sh block before it')
        expected = block.lines
        printed = self.last_output.split('\n')[:-1]
        if len(expected) == len(printed) and all(map(is_meant, expected, printed)):
            return
        meant = [next((line for line in printed if is_meant(text, line)), text) for text in expected]
        difference = difflib.unified_diff(meant, printed, block.place, 'printed', lineterm='')
        raise Trouble('\n'.join(difference) + f'\n{block.place}: the commands of {self.last_command.place} print '
                      f'something else; what they have done is in {self.folder}')

    def _change(self, block):
        path = os.path.join(self.folder, block.file_name())
        if not os.path.isfile(path):
            raise Trouble(f'{block.place}: there is no file {block.file_name()} to be changed')
        with open(path, encoding='utf-8') as file:
            lines = file.read().splitlines()
        for change in block.text().rstrip('\n').split('\n\n'):
            signs = change.split('\n')
            if any(line[:1] not in ('-', '+', ' ') for line in signs):
                raise Trouble(f'{block.place}: each line begins with "-", "+" or a blank')
            old = [line[1:] for line in signs if line[0] != '+']
            places = [start for start in range(len(lines)) if lines[start:start + len(old)] == old]
            if len(places) != 1:
                raise Trouble(f'{block.place}: {block.file_name()} has these lines {len(places)} times instead of '
                              'once:\n' + '\n'.join(old))
            lines[places[0]:places[0] + len(old)] = [line[1:] for line in signs if line[0] != '-']
        self._write_file(path, ''.join(line + '\n' for line in lines))


def is_meant(expected, printed):
    return re.fullmatch('.*'.join(map(re.escape, expected.split('...'))), printed) is not None


def run_in_terminal(command, folder, environment):
    """Runs a command as in a terminal, with output and errors in the order in which they are written.
    Returns its status and its output."""
    terminal, end_of_command = pty.openpty()
    tty.setraw(end_of_command)  # do not translate line breaks
    with subprocess.Popen(command, cwd=folder, env=environment, stdin=subprocess.DEVNULL, stdout=end_of_command,
                          stderr=end_of_command) as process:
        os.close(end_of_command)
        output = b''
        while True:
            try:
                piece = os.read(terminal, 65536)
            except OSError:  # the other end is closed
                break
            if not piece:
                break
            output += piece
        os.close(terminal)
        return process.wait(), output.decode(errors='replace')
