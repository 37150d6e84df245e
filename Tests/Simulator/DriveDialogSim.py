#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Drives dialogsim as a person does, with tmux and without a terminal.

DriveDialogSim.py DIALOGSIM FLOW LISTENING_DEVICE
"""
import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile

from DriveTerminal import Terminal, Trouble, expect, take_steps

LAMP = """<Flow name="Lamp">
  <Key name="next" label="Next" keyboard="Tab" input="next"/>
  <Key name="ok" label="OK" keyboard="Enter" input="activate"/>
  <Key name="back" label="Back" keyboard="Escape"/>
  <DialogDefinition id="DLG_HOME"><Screen text="Lamp"><Button id="BTN_COLOUR" x="2" y="3" text="Colour"/></Screen></DialogDefinition>
  <DialogDefinition id="DLG_COLOUR"><Screen text="Colour"><Button id="BTN_WARM" x="2" y="3" text="Warm"/></Screen></DialogDefinition>
  <Start><create dialog="DLG_HOME"/></Start>
  <On button="BTN_COLOUR"><create dialog="DLG_COLOUR"/></On>
  <On key="back"><back/></On>
</Flow>
"""


def write(path, text):
    """Replaces a file as editors do, so that no half of it is ever there."""
    with open(f'{path}.new', 'w', encoding='utf-8') as file:
        file.write(text)
    os.replace(f'{path}.new', path)


def run(program, *arguments, typed=''):
    done = subprocess.run([program, *arguments], input=typed, capture_output=True, text=True, check=False, timeout=60)
    return done.returncode, done.stdout, done.stderr


def same(what, expected, found):
    if expected != found:
        raise Trouble(f'{what}: expected {expected!r}, found {found!r}')


def without_terminal(directory, program, flow):
    lamp = os.path.join(directory, 'Lamp.xml')
    write(lamp, LAMP)
    status, out, err = run(program, flow)
    same('the short tour', (0, ''), (status, err))
    for chapter in ('1. READY', '2. A PROGRAM', '3. WASHING', '4. NO WATER', '5. PAUSED', '6. DONE', '--play prints all of it'):
        if chapter not in out:
            raise Trouble(f'the short tour lacks {chapter}:\n{out}')
    status, out, err = run(program, lamp)
    same('a flow without a tour', (0, '', True, True), (status, err, '>[ Colour ]<' in out, 'shows first' in out))
    same('the list', (0, 'dialog DLG_HOME flow:DLG_HOME\ndialog DLG_COLOUR flow:DLG_COLOUR\n', ''), run(program, lamp, '--list'))
    way = os.path.join(directory, 'way.scenario')
    write(way, 'power-on\nkey ok\nkey back\n')
    played = run(program, lamp, '--play', way)
    same('a scenario', (0, ''), (played[0], played[2]))
    same('the order of the words', played, run(program, '--play', lamp, way))
    expect_words(played[1], '> key ok', '| current: DLG_COLOUR', '| history: DLG_HOME ODA_INVISIBLE focus BTN_COLOUR')
    status, out, err = run(program, lamp, '--json', '-', typed='power-on\nkey ok\nbad\n')
    same('lines of JSON', (0, '', True), (status, err, all(line.startswith('{"type":') for line in out.splitlines())))
    expect_words(out, '"part":"current","from":0,"items":[{"id":3,"name":"DLG_COLOUR"', '"error":"expected a command')
    changed_between_lines(directory, program)
    picture = os.path.join(directory, 'lamp.svg')
    same('a picture', (0, '', ''), run(program, lamp, '--goto', 'DLG_COLOUR', '--shot', picture))
    with open(picture, encoding='utf-8') as file:
        expect_words(file.read(), '<svg', 'Lamp in the simulator', 'Warm')
    status, out, err = run(program, lamp, '--from', way, '--shot', picture)
    same('a beginning', (0, '', ''), (status, out, err))
    wrong_use(directory, program, lamp)


def changed_between_lines(directory, program):
    """Standard input, too: before each line dialogsim looks at the file."""
    lamp = os.path.join(directory, 'Changing.xml')
    write(lamp, LAMP)
    with subprocess.Popen([program, lamp, '--json', '-'], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, text=True) as process:
        def say(line):
            process.stdin.write(line + '\n')
            process.stdin.flush()
            said = ''
            while '"type":"reply"' not in said.splitlines()[-1:][0] if said else True:
                said += process.stdout.readline()
            return said
        say('power-on')
        write(lamp, LAMP.replace('<back/>', '<beck/>'))
        say('key ok')
        write(lamp, LAMP.replace('id="BTN_WARM"', 'id="BTN_COLD"'))
        expect_words(say('GetCurrentDialogID'), '"name":"BTN_COLD"', '"result":"DLG_COLOUR"')
        _, errors = process.communicate()
        same('a changing flow', 0, process.returncode)
        expect_words(errors, "Changing.xml:9:18: unknown action 'beck'; expected one of")


def wrong_use(directory, program, lamp):
    broken = os.path.join(directory, 'broken.xml')
    write(broken, LAMP.replace('<back/>', '<backwards/>'))
    for arguments, message in (((lamp, '--jump'), 'dialogsim: unknown option --jump; see --help'),
                               ((lamp, '--play'), 'dialogsim: expected a scenario, because there is no tour'),
                               ((lamp, '--record', 'x', '--list'), 'dialogsim: --record is for the terminal; see --help'),
                               (('--list',), 'dialogsim: expected a flow file, or --attach and where a program is; see --help')):
        same(arguments, (2, '', message + '\n'), run(program, *arguments))
    status, out, err = run(program, broken)
    same('a wrong flow', (2, ''), (status, out))
    expect_words(err, f"{broken}:9:18: unknown action 'backwards'; expected one of")
    status, out, err = run(program, os.path.join(directory, 'none.xml'))
    same('no flow', (2, ''), (status, out))
    expect_words(err, 'none.xml:1:1: cannot open')
    status, out, err = run(program, '--help')
    same('the help', (0, ''), (status, err))
    expect_words(out, 'dialogsim FLOW.xml [OPTION ...] [SCENARIO]', '--attach TARGET', '--record FILE')


def expect_words(text, *words):
    for word in words:
        if word not in text:
            raise Trouble(f'expected {word!r} in\n{text}')


def play_a_flow(terminal, program, flow):
    session = os.path.join(terminal.directory, 'session.scenario')
    terminal.start(f'{program} {flow}')
    terminal.wait_for('SIMULATOR: Washing machine')
    terminal.wait_for('A TOUR OF THE WASHING MACHINE')
    terminal.press('q')
    terminal.ended(0)
    terminal.start(f'{program} {flow} --goto DLG_PROGRAMS --record {session}')
    terminal.wait_for('[ Cotton ]')
    terminal.press('Enter')
    terminal.wait_for('>[ Start ]<')
    terminal.press('q')
    terminal.ended(0)
    status, out, err = run(program, flow, '--play', session)
    same('the recorded session', (0, ''), (status, err))
    expect_words(out, '| current: DLG_SUMMARY')


def reload_a_flow(terminal, program):
    lamp = os.path.join(terminal.directory, 'Lamp.xml')
    session = os.path.join(terminal.directory, 'session.scenario')
    write(lamp, LAMP)
    terminal.start(f'{program} {lamp} --record {session}')
    terminal.wait_for('>[ Colour ]<')
    terminal.press('Enter')
    terminal.wait_for('>[ Warm ]<')
    write(lamp, LAMP.replace('"Warm"', '"Cold"'))
    screen = terminal.wait_for('>[ Cold ]<')
    expect('DLG_HOME ODA_INVISIBLE' in screen and 'the flow has changed' in screen, 'the history is lost', terminal)
    write(lamp, LAMP.replace('<back/>', '<beck/>'))
    screen = terminal.wait_for("Lamp.xml:9:18: unknown action 'beck'")
    expect('expected one' in screen and '>[ Cold ]<' in screen, 'the last good flow is gone', terminal)
    terminal.press('Escape')
    terminal.wait_for('>[ Colour ]<')
    expect("unknown action 'beck'" in terminal.screen(), 'the mistake is shown no more', terminal)
    terminal.press('Enter')
    terminal.wait_for('>[ Cold ]<')
    # Another button comes first, so that the same keys would lead elsewhere.
    write(lamp, LAMP.replace('<Button id="BTN_COLOUR"', '<Button id="BTN_FIRST" x="2" y="2" text="First"/><Button id="BTN_COLOUR"'))
    screen = terminal.wait_for('the history is built again')
    expect('>[ Warm ]<' in screen and 'DLG_HOME ODA_INVISIBLE' in screen and 'beck' not in screen, 'the history is lost', terminal)
    terminal.press('q')
    terminal.ended(0)
    status, out, err = run(program, lamp, '--play', session)
    same('the session with changes', (0, ''), (status, err))
    last = [line for line in out.splitlines() if line.startswith(('| current:', '| history:'))][-2:]
    expect_words('\n'.join(last), '| current: DLG_COLOUR', '| history: DLG_HOME ODA_INVISIBLE')


def attach_over_tcp(terminal, program, listening):
    with subprocess.Popen([listening], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True) as process:
        try:
            port = process.stdout.readline().strip()
            terminal.start(f'{program} --attach :{port}')
            screen = terminal.wait_for(f'ATTACHED: :{port}')
            screen = terminal.wait_for('DLG_A')
            expect('tree, in drawing order' in screen and 'OBJ_3 focusable' in screen, 'no tree', terminal)
            terminal.line('touch OBJ_1')
            terminal.wait_for('DLG_A ODA_INVISIBLE')
            terminal.line('touch OBJ_1')
            terminal.wait_for('POP_1 prio 5 shown')
            terminal.wait_for('POP_1 prio 5 shown', gone=True)  # its time passes there
            terminal.line('weigh 50')
            terminal.wait_for('INFO: weighs 50.')
            terminal.wait_for('= 50 g')
            terminal.line('weigh')
            terminal.wait_for('!! weigh: expected weigh <grams>, found 0 arguments')
            terminal.press('e', 'e')
            terminal.wait_for('trace: errors')
            expect('weighs 50' not in terminal.screen(), 'the level lets others through', terminal)
            terminal.press('e', '/')
            terminal.type('WEIGHS')
            terminal.press('Enter')
            terminal.wait_for("trace, with 'WEIGHS'")
            expect('> touch OBJ_1' not in terminal.screen(), 'the filter lets others through', terminal)
            terminal.press('/', *['BSpace'] * len('WEIGHS'), 'Enter')
            terminal.wait_for(re.compile('─ trace ──'))
            terminal.press('PPage')
            terminal.wait_for('5 newer below')
            terminal.press('i')
            terminal.wait_for('current dialog', gone=True)
            terminal.press('I', '?')
            terminal.wait_for('help: any key closes it')
            terminal.press('x', 'NPage')
            terminal.wait_for(re.compile('─ trace ──'))
            terminal.resize(120, 40)
            terminal.wait_for(re.compile(r'^.{100,}\? help', re.MULTILINE))
            terminal.resize(80, 24)
            terminal.wait_for(re.compile(r'^.{60,75}\? help', re.MULTILINE))
            process.kill()
            screen = terminal.wait_for('the program is gone; this is what it has told')
            expect('DLG_A ODA_INVISIBLE' in screen and ' gone ' in screen, 'what was told is lost', terminal)
            terminal.press('q')
            terminal.ended(0)
        finally:
            process.kill()


def attach_over_a_pipe(terminal, program):
    lamp = os.path.join(terminal.directory, 'Lamp.xml')
    lines = os.path.join(terminal.directory, 'lines')
    write(lamp, LAMP)
    os.mkfifo(lines)
    terminal.start(f'{program} {lamp} --json - < {lines} | {program} --attach -')
    with open(lines, 'w', encoding='utf-8', buffering=1) as fifo:
        terminal.wait_for('ATTACHED: -')
        fifo.write('power-on\n')
        terminal.wait_for('DLG_HOME')
        fifo.write('key ok\n')
        screen = terminal.wait_for('DLG_HOME ODA_INVISIBLE')
        expect('BTN_WARM focussed' in screen, 'no tree', terminal)
        terminal.press(':')
        terminal.wait_for('nothing can be sent to a program whose lines arrive on standard input')
    terminal.wait_for('the program is gone')
    terminal.press('q')
    terminal.ended(0)


def die_in_mid_line(terminal, program):
    begun = '{"type":"trace","time":5,"level":"INFO","text":"whole"}\n{"type":"trace","time":6,"le'
    half = os.path.join(terminal.directory, 'half')
    with open(half, 'w', encoding='utf-8') as file:
        file.write(begun)
    terminal.start(f'cat {half} | {program} --attach -')
    screen = terminal.wait_for('!! the last line is not complete')
    expect('INFO: whole' in screen and ' gone ' in screen, 'what was told is lost', terminal)
    terminal.press('q')
    expect('dialogsim: the last line is not complete' in terminal.ended(1), 'no reason', terminal)
    with socket.create_server(('127.0.0.1', 0)) as listener:
        terminal.start(f'{program} --attach :{listener.getsockname()[1]}')
        connection, _ = listener.accept()
        with connection:
            connection.sendall(begun.encode())
            terminal.wait_for('INFO: whole')
            connection.sendall(b'vel":3}\nnot JSON\n{')
            terminal.wait_for('!! line 3: expected an object of JSON on one line')
        terminal.wait_for('!! the last line is not complete')
    terminal.press('C-c')
    terminal.ended(130)


def main():
    program, flow, listening = (os.path.abspath(path) for path in sys.argv[1:])
    directory = tempfile.mkdtemp(prefix='dialogsim-')
    terminal = Terminal(directory)
    try:
        steps = [('without a terminal', lambda: without_terminal(directory, program, flow)),
                 ('a flow', lambda: play_a_flow(terminal, program, flow)),
                 ('a flow that changes', lambda: reload_a_flow(terminal, program)),
                 ('attached over TCP', lambda: attach_over_tcp(terminal, program, listening)),
                 ('attached to a pipe', lambda: attach_over_a_pipe(terminal, program)),
                 ('a program that dies in mid-line', lambda: die_in_mid_line(terminal, program))]
        take_steps(steps)
        print(f'dialogsim did {len(steps)} kinds of things')
    except Trouble as trouble:
        print(trouble)
        sys.exit(1)
    finally:
        subprocess.run(['tmux', '-S', os.path.join(directory, 'tmux'), 'kill-server'], capture_output=True, check=False)
        shutil.rmtree(directory, ignore_errors=True)


if __name__ == '__main__':
    main()
