# SPDX-License-Identifier: MIT
"""Attaches dialogsim to programs that this script plays: TryAttaching.py <dialogsim>

Over TCP, a pseudo-terminal and a pipe. Every way ends with what dialogsim printed, its errors and its status.
"""

import os
import pty
import socket
import subprocess
import sys
import threading

LONGEST = 20  # seconds
FOCUS = b'{"type":"state","time":5,"part":"focus","from":0,"items":[{"id":7,"name":"BTN_OK"}],"more":false}\n'
NO_FOCUS = b'{"type":"state","time":9,"part":"focus","from":0,"items":[],"more":false}\n'


def reply(line, text):
    return b'{"type":"reply","time":6,"line":%d,"result":"%s"}\n' % (line, text)


def run(dialogsim, arguments, typed=b''):
    done = subprocess.run([dialogsim, *arguments], input=typed, capture_output=True, timeout=LONGEST, check=False)
    return done.stdout.decode(), done.stderr.decode(), done.returncode


def expect(what, expected, found):
    if found != expected:
        sys.exit(f'{what}: expected\n{expected}\nfound\n{found}')


def serve(play):
    """Plays a program that waits for one reader. Returns its port."""
    listener = socket.create_server(('127.0.0.1', 0))
    listener.settimeout(LONGEST)

    def accept():
        connection, _ = listener.accept()
        with connection, listener:
            connection.settimeout(LONGEST)
            play(connection)

    thread = threading.Thread(target=accept, daemon=True)
    thread.start()
    return listener.getsockname()[1], thread


def read_lines(connection, count):
    """Returns what arrives up to that many line breaks."""
    received = b''
    while received.count(b'\n') < count:
        some = connection.recv(100)
        if not some:
            return received
        received += some
    return received


def try_tcp(dialogsim):
    received = []

    def play(connection):
        connection.sendall(FOCUS)
        received.append(read_lines(connection, 2))
        connection.sendall(reply(1, b'done') + reply(2, b'') + NO_FOCUS)
        received.append(connection.recv(100))

    for host in ('127.0.0.1', 'localhost', ''):
        port, program = serve(play)
        found = run(dialogsim, ['--attach', f'{host}:{port}'], b'key ok\n# a comment\n\nBack true')
        program.join(LONGEST)
        expect('TCP', ('5 ms + focus: BTN_OK\n6 ms = done\n9 ms - focus: BTN_OK\n', '', 0), found)
        expect('what arrived', [b'key ok\nBack true\n', b''], received)
        received.clear()


def try_end(dialogsim):
    port, _ = serve(lambda connection: connection.sendall(FOCUS + b'garbage\n{"type":"turn"}\n' + NO_FOCUS + b'{"type'))
    reader, writer = os.pipe()
    done = subprocess.run([dialogsim, '--attach', f':{port}'], stdin=reader, capture_output=True, timeout=LONGEST,
                          check=False)
    os.close(writer)
    os.close(reader)
    expect('a program that ends', ('5 ms + focus: BTN_OK\n9 ms - focus: BTN_OK\n',
                                   'dialogsim: line 2: expected an object of JSON on one line, found no JSON\n'
                                   'dialogsim: line 3: expected a member "time", found none\n'
                                   'dialogsim: the last line is not complete\n', 1),
           (done.stdout.decode(), done.stderr.decode(), done.returncode))


def try_terminal(dialogsim):
    master, slave = pty.openpty()

    def play():
        received = b''
        while received.count(b'\n') < 1:
            received += os.read(master, 100)
        os.write(master, b'end of a line}\n' + FOCUS + reply(1, b''))
        while received.count(b'\n') < 2:
            received += os.read(master, 100)
        os.write(master, reply(2, b'home'))
        lines.append(received)

    lines = []
    thread = threading.Thread(target=play, daemon=True)
    thread.start()
    found = run(dialogsim, ['--attach', os.ttyname(slave), '--baud', '9600'], b'key home\n')
    thread.join(LONGEST)
    expect('a serial device', ('5 ms + focus: BTN_OK\n6 ms = home\n', '', 0), found)
    expect('what arrived', [b'state\nkey home\n'], lines)


def try_pipe(dialogsim):
    expect('a pipe', ('5 ms + focus: BTN_OK\n', '', 0), run(dialogsim, ['--attach', '-'], FOCUS))
    expect('an endless line', ('', 'dialogsim: line 1: expected a shorter line\n'
                                   'dialogsim: the last line is not complete\n', 1),
           run(dialogsim, ['--attach', '-'], b'x' * 3000000))


def try_wrong_use(dialogsim):
    with socket.create_server(('127.0.0.1', 0)) as listener:
        free = listener.getsockname()[1]
    usage = {(): 'expected a flow file, or --attach and where a program is',
             ('--attach',): '--attach: expected where a program is, found nothing',
             ('--attach', '-', '--attach', '-'): '--attach is there twice',
             ('--atach', 'x'): 'unknown option --atach',
             ('--baud', '9600', 'Lamp.xml'): '--baud is for --attach',
             ('--attach', '-', 'Lamp.xml'): 'expected nothing with --attach but --baud',
             ('--attach', '-', '--list'): 'expected nothing with --attach but --baud',
             ('--attach', '-', '--baud', 'fast'): '--baud: expected a number from 9600 to 921600, found fast'}
    for arguments, text in usage.items():
        expect(arguments, ('', f'dialogsim: {text}; see --help\n', 2), run(dialogsim, arguments))
    failures = {('--attach', 'build/none'): 'build/none: cannot open (No such file or directory)',
                ('--attach', '/dev/null'): '/dev/null: expected a serial device (Inappropriate ioctl for device)',
                ('--attach', '/dev/null', '--baud', '1'): '/dev/null: expected 9600 to 921600 baud, found 1',
                ('--attach', 'here:1'): 'here:1: expected an IPv4 address, for example 127.0.0.1',
                ('--attach', ':x'): ':x: expected a port from 1 to 65535 after the colon',
                ('--attach', f':{free}'): f'127.0.0.1:{free}: cannot connect (Connection refused)'}
    for arguments, text in failures.items():
        expect(arguments, ('', f'dialogsim: {text}\n', 1), run(dialogsim, arguments))


def main(dialogsim):
    for way in (try_tcp, try_end, try_terminal, try_pipe, try_wrong_use):
        way(dialogsim)
    print('dialogsim attaches over TCP, a serial device and a pipe')


if __name__ == '__main__':
    main(sys.argv[1])
