#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Drives the simulator in a terminal as a person does, with tmux.

DriveTerminal.py COFFEE_MACHINE FAULTY_SIMULATOR
"""
import collections
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

SEED = 20240229
KEYS = 10000
FORMS = ('CreateDialog', 'Back', 'ShowPopup', 'ClosePopup', 'ClearDialogHistory')
LEAST_LINES = 500  # of a session of random keys
LEAST_FORMS = 200
PATIENCE = 20  # seconds until something must have happened


class Trouble(Exception):
    pass


class Terminal:
    """A terminal of its own with a shell, in which programs run one after the other."""

    def __init__(self, directory, width=80, height=24, environment=''):
        self.directory = directory
        self.server = os.path.join(directory, 'tmux')
        self.tmux('-f', '/dev/null', 'new-session', '-d', '-x', str(width), '-y', str(height), '-c', directory,
                  f'exec env {environment} LC_ALL=C.UTF-8 PS1=ready- PROMPT_COMMAND= bash --norc --noprofile')
        self.wait_for('ready-')

    def tmux(self, *arguments):
        ran = subprocess.run(['tmux', '-u', '-S', self.server, *arguments], capture_output=True, text=True, check=False)
        if ran.returncode != 0:
            raise Trouble(f'tmux {arguments[0]}: {ran.stderr.strip()}')
        return ran.stdout

    def close(self):
        self.tmux('kill-server')

    def press(self, *keys):
        self.tmux('send-keys', *keys)

    def type(self, text):
        self.tmux('send-keys', '-l', text)

    def resize(self, width, height):
        self.tmux('resize-window', '-x', str(width), '-y', str(height))

    def screen(self, *options):
        return self.tmux('capture-pane', '-p', *options)

    def wait_for(self, text, gone=False):
        """Waits until the screen shows a text (or a pattern), or no longer does."""
        pattern = text if isinstance(text, re.Pattern) else re.compile(re.escape(text))
        end = time.monotonic() + PATIENCE
        while bool(pattern.search(self.screen())) == gone:
            if time.monotonic() > end:
                raise Trouble(f'{"still" if gone else "never"} shown: {pattern.pattern!r}; the screen is\n{self.screen()}')
            time.sleep(0.03)
        return self.screen()

    def start(self, command):
        """Starts a program in the shell, which says its status and the terminal's modes when it ends."""
        with open(os.path.join(self.directory, 'session.sh'), 'w', encoding='utf-8') as script:
            # With a trap the script goes on when the program dies of a signal from the keyboard.
            script.write(f'trap : INT\nstty -g > before\n{command}\necho status $?\nstty -g > after\n'
                         'cmp before after && echo modes kept\n')
        self.press('C-l')
        self.type('bash session.sh')
        self.press('Enter')

    def line(self, text):
        """Enters a line of a scenario in the simulator."""
        self.type(':')
        self.type(text)
        self.press('Enter')

    def ended(self, status):
        """Checks how the program ended, and that the terminal is as before."""
        screen = self.wait_for('modes kept')
        if f'status {status}' not in screen:
            raise Trouble(f'expected status {status}; the screen is\n{screen}')
        for mode, name in (('cursor_flag', 'the cursor is hidden'), ('keypad_flag', 'the keypad sends other keys')):
            if self.tmux('display-message', '-p', f'#{{{mode}}}').strip() != ('1' if mode == 'cursor_flag' else '0'):
                raise Trouble(f'{name} after {status}')
        if self.tmux('display-message', '-p', '#{alternate_on}#{mouse_any_flag}').strip() != '00':
            raise Trouble(f'the terminal is not given back after {status}')
        return screen

    def send_signal(self, program, name):
        """Sends a signal to the one program of that name in this terminal."""
        tty = self.tmux('display-message', '-p', '#{pane_tty}').strip()
        found = subprocess.run(['ps', '-t', tty.removeprefix('/dev/'), '-o', 'pid=,args='], capture_output=True,
                               text=True, check=True).stdout
        process, = [int(line.split()[0]) for line in found.splitlines() if line.split()[1] == program]
        os.kill(process, name)


def expect(condition, text, terminal):
    if not condition:
        raise Trouble(f'{text}; the screen is\n{terminal.screen()}')


def play_the_tour(terminal, machine):
    terminal.start(machine)
    terminal.wait_for('SIMULATOR: Coffee machine')
    terminal.wait_for('A TOUR OF THE COFFEE MACHINE. Left is the screen of the device')
    terminal.press('s', 's', 's')
    terminal.wait_for('DLG_HOME')
    terminal.wait_for('tour paused: p goes on')
    terminal.press('p', '+', '+', '+', '+', '+', '+')
    terminal.wait_for('2. DIALOGS')
    terminal.press('Enter')  # a key of the device
    terminal.wait_for(' live ')
    terminal.press('q')
    terminal.ended(0)


def use_everything(terminal, machine):
    terminal.start(f'{machine} --goto DLG_DRINKS --record session.scenario')
    screen = terminal.wait_for('>[ Espresso ]<')
    expect('[Next] [OK] [Back] [Home] [Service]' in screen and 'DLG_HOME ODA_INVISIBLE' in screen, 'no inspector', terminal)
    terminal.press('Tab', 'Down', 'Up', 'Enter')
    terminal.wait_for('+- Your drink ---')
    terminal.press('Escape')
    terminal.wait_for('+- Your drink ---', gone=True)
    terminal.press('?')
    terminal.wait_for('Keys of the simulator')
    terminal.press('x')
    terminal.wait_for('Keys of the simulator', gone=True)
    terminal.press('o')
    terminal.wait_for('ClosePopup <popup>')
    terminal.press('u')
    terminal.wait_for('choices: POP_WATER_EMPTY')
    terminal.press('Enter')
    terminal.wait_for('Please fill the tank.')
    terminal.press('x', 'Enter')
    terminal.wait_for('Please fill the tank.', gone=True)
    terminal.line('CreateDialog 99 ODA_DELETE')
    terminal.wait_for('!! ERROR: CreateDialog: Createing dialog with ID 99 failed!')
    terminal.line('water a lot')
    terminal.wait_for('!! water: expected water <millilitres>, found 2 arguments')
    terminal.press('p')
    terminal.wait_for('paused')
    before = terminal.wait_for(re.compile('paused +[0-9.]+ s'))
    terminal.press('b', 'b')
    terminal.wait_for(re.compile(r'line [0-9]+ of [0-9]+, paused'))
    terminal.press('F')
    terminal.wait_for(re.compile(' paused +[0-9.]+ s'))
    expect(device_of(before) == device_of(terminal.screen()), 'back and forth gives another screen', terminal)
    terminal.press('e', 'e')
    terminal.wait_for('trace: errors')
    expect('hook OnDialog' not in terminal.screen(), 'the trace has more than errors', terminal)
    terminal.press('e', '/')
    terminal.type('hook')
    terminal.press('Enter')
    terminal.wait_for("trace, with 'hook'")
    expect('UpdateActivePopups' not in trace_of(terminal.screen()), 'the filter lets others through', terminal)
    terminal.press('PPage')
    terminal.wait_for('5 newer below')
    terminal.press('i')
    terminal.press('v')
    terminal.type('picture.svg')
    terminal.press('Enter')
    terminal.wait_for('the picture is in picture.svg')
    click(terminal, 3, 15)
    terminal.wait_for('> key next')
    click(terminal, 6, 7)
    terminal.wait_for('> touch-at 5 5')
    last = device_of(terminal.screen())
    terminal.press('q')
    terminal.ended(0)
    repeat_session(terminal, machine, 'session.scenario', last)
    terminal.start(f'{machine} --from session.scenario')
    terminal.wait_for(' live ')
    terminal.press('C-c')
    terminal.ended(130)


def click(terminal, column, row):
    """Clicks with the mouse, as the terminal that tmux is reports it."""
    place = chr(33 + column) + chr(33 + row)
    terminal.tmux('send-keys', '-l', f'\x1b[M {place}\x1b[M#{place}')


def device_of(screen):
    """The simulated screen, without its frame."""
    return [line[1:41] for line in screen.splitlines()[2:14]]


def trace_of(screen):
    return screen[screen.index('─ trace'):]


def repeat_session(terminal, machine, name, last):
    """A session is played again and ends with the same screen."""
    played = subprocess.run([machine, '--play', os.path.join(terminal.directory, name)], capture_output=True, text=True,
                            check=False)
    if played.returncode != 0:
        raise Trouble(f'--play {name} ends with status {played.returncode}: {played.stderr}')
    frames = re.findall(r'^\| \|(.{40})\|$', played.stdout, re.MULTILINE)
    if [line.rstrip() for line in frames[-12:]] != [line.rstrip() for line in last]:
        raise Trouble(f'--play {name} ends with another screen:\n' + '\n'.join(frames[-12:]) + '\ninstead of\n' +
                      '\n'.join(last))


def change_size(terminal, machine):
    terminal.start(f'{machine} --goto DLG_SETTINGS')
    terminal.wait_for('simulated screen')
    terminal.resize(140, 45)
    screen = terminal.wait_for(re.compile(r'^.{120,}\? help', re.MULTILINE))
    expect(len(screen.splitlines()) == 45, 'not all 45 rows are used', terminal)
    terminal.resize(40, 12)
    terminal.wait_for('80x24 shows all')
    terminal.resize(1, 1)
    terminal.resize(80, 24)
    terminal.wait_for('─ trace')
    terminal.press('C-z')
    terminal.wait_for('ready-')
    # The shell may have said so while the screen was not yet given back.
    terminal.type('jobs')
    terminal.press('Enter')
    terminal.wait_for('Stopped')
    terminal.type('fg')
    terminal.press('Enter')
    terminal.wait_for('SIMULATOR')
    terminal.press('q')
    terminal.ended(0)


def die_of_everything(terminal, machine, faulty):
    for name, status in (('SIGTERM', 143), ('SIGHUP', 129), ('SIGINT', 130), ('SIGSEGV', 139), ('SIGABRT', 134)):
        terminal.start(machine)
        terminal.wait_for('SIMULATOR')
        terminal.send_signal(machine, getattr(__import__('signal'), name))
        terminal.ended(status)
    terminal.start(faulty)
    terminal.wait_for(' live ')
    terminal.line('start-badly')
    terminal.press('b')
    expect('an exception ended the simulator: deliberate' in terminal.ended(1), 'no reason', terminal)
    terminal.start(f'{faulty} --record /nonexistent/session')
    terminal.wait_for(' live ')
    terminal.press('q')
    expect('cannot write /nonexistent/session: No such file' in terminal.ended(1), 'no reason', terminal)
    terminal.start(faulty)
    terminal.wait_for(' live ')
    terminal.line('recurse')
    terminal.ended(139)
    terminal.start(faulty)
    terminal.wait_for(' live ')
    terminal.line('hang')
    time.sleep(0.3)
    terminal.press('C-c')
    time.sleep(0.1)
    terminal.press('C-c')
    terminal.ended(130)


def fill_a_form(source):
    """The keys that open a form, choose something in each of its fields, and execute it. The form of a go-back that may
    never end is left out."""
    key, fields = source.choice((('c', 2), ('k', 1), ('w', 1), ('x', 1), ('h', 3)))
    pressed = ['C-t', key]
    for field in range(fields):
        is_number = key == 'h' and field == 0
        pressed += [source.choice('0123')] if is_number else ['Down'] * source.randint(1, 9)
        pressed.append('Enter')
    return pressed


def send_random_keys(terminal, source, keys, count, forms):
    """Sends keys; with forms each round closes what is open, fills a form, and goes on with keys of any kind."""
    pressed = 0
    while pressed < count:
        some = fill_a_form(source) + source.choices(keys, k=8) if forms else source.choices(keys, k=50)
        pressed += len(some) + 1
        # A lone escape and the next key would be read as one key if they came together.
        terminal.press('Escape')
        time.sleep(0.03)
        terminal.press(*[key for key in some if key != 'Escape'])


def close_what_is_open(terminal):
    time.sleep(1)
    terminal.press('Escape')
    time.sleep(0.1)
    terminal.press('Escape')
    time.sleep(0.1)


def press_random_keys(terminal, machine):
    """All keys but those that leave and that write files; those that forget the session only at the beginning."""
    keys = ['Tab', 'BTab', 'Enter', 'Escape', 'Up', 'Down', 'Left', 'Right', 'BSpace', 'DC', 'Home', 'End', 'PPage',
            'NPage', 'F1', 'F2', 'F12', 'C-t', 'Space', *'abcdefghiklmnopstuwxyzACDEFGHIKLMNOPQSUVWXYZ0123456789?:/+-']
    source = random.Random(SEED)
    terminal.start(f'{machine} --record random.scenario')
    terminal.wait_for('SIMULATOR')
    send_random_keys(terminal, source, [*keys, 'T', 'B'], KEYS // 5, False)
    close_what_is_open(terminal)
    # It may be in a tour, or before the device was switched on.
    terminal.press('C-t', 'R')
    send_random_keys(terminal, source, keys, KEYS - KEYS // 5, True)
    close_what_is_open(terminal)
    terminal.press('Home', 'F')
    terminal.wait_for(re.compile(r'paused +[0-9.]+ s'))
    last = device_of(terminal.screen())
    terminal.send_signal(machine, 15)
    terminal.ended(143)
    session = os.path.join(terminal.directory, 'random.scenario')
    with open(session, encoding='utf-8') as file:
        lines = file.readlines()
    forms = collections.Counter(line.split()[0] for line in lines if line.split()[0] in FORMS)
    print(f'the session of random keys has {len(lines)} lines, of forms: {dict(forms)}')
    if len(lines) < LEAST_LINES or sum(forms.values()) < LEAST_FORMS or len(forms) < len(FORMS):
        raise Trouble(f'expected at least {LEAST_LINES} lines, and {LEAST_FORMS} of forms: {", ".join(FORMS)}')
    repeat_session(terminal, machine, session, last)


def without_colours(directory, machine):
    terminal = Terminal(os.path.join(directory, 'plain'), environment='TERM=vt100')
    terminal.start(machine)
    terminal.wait_for('SIMULATOR: Coffee machine')
    terminal.press('s', 's', 's')
    terminal.wait_for('>[ Drinks ]<')
    coloured = terminal.screen('-e')
    expect(not re.search(r'\x1b\[[0-9;]*\b[34][0-7]m', coloured), 'a terminal without colours gets colours', terminal)
    expect(re.search(r'\x1b\[[0-9;]*7m[^\n]*SIMULATOR', coloured), 'the banner is not reversed', terminal)
    terminal.press('q')
    terminal.ended(0)
    terminal.close()


def without_terminal(directory, machine):
    ran = subprocess.run([machine], stdin=subprocess.DEVNULL, capture_output=True, text=True, check=True, cwd=directory)
    lines = ran.stdout.splitlines()
    if not 50 < len(lines) <= 200 or '--play prints all of it' not in lines[-1]:
        raise Trouble(f'the short tour has {len(lines)} lines and ends with {lines[-1:]}')
    for chapter in range(1, 14):
        if not any(line.startswith(f'{chapter}. ') for line in lines):
            raise Trouble(f'the short tour lacks chapter {chapter}')
    wrong = subprocess.run([machine, '--from'], capture_output=True, text=True, check=False)
    if (wrong.returncode, wrong.stderr) != (2, 'CoffeeMachine: --from: expected a scenario, found nothing; see --help\n'):
        raise Trouble(f'wrong usage ends with {wrong.returncode}: {wrong.stderr}')


def take_steps(steps):
    """Takes named steps one after the other, and says how long each takes."""
    for number, (name, step) in enumerate(steps, 1):
        begin = time.monotonic()
        print(f'[{number}/{len(steps)}] {name}', flush=True)
        step()
        print(f'{name}: {time.monotonic() - begin:.1f} s', flush=True)


def main():
    machine, faulty = (os.path.abspath(path) for path in sys.argv[1:])
    directory = tempfile.mkdtemp(prefix='simulator-')
    os.mkdir(os.path.join(directory, 'plain'))
    terminal = Terminal(directory)
    try:
        steps = [('without a terminal', lambda: without_terminal(directory, machine)),
                 ('the tour', lambda: play_the_tour(terminal, machine)),
                 ('every key', lambda: use_everything(terminal, machine)),
                 ('sizes', lambda: change_size(terminal, machine)),
                 ('without colours', lambda: without_colours(directory, machine)),
                 ('signals and exceptions', lambda: die_of_everything(terminal, machine, faulty)),
                 ('random keys', lambda: press_random_keys(terminal, machine))]
        take_steps(steps)
        print(f'{len(steps)} sessions at a terminal, one with {KEYS} random keys, passed')
    except Trouble as trouble:
        print(trouble)
        sys.exit(1)
    finally:
        for server in ('plain/tmux', 'tmux'):
            subprocess.run(['tmux', '-S', os.path.join(directory, server), 'kill-server'], capture_output=True, check=False)
        shutil.rmtree(directory, ignore_errors=True)


if __name__ == '__main__':
    main()
