# SPDX-License-Identifier: MIT
"""Runs a command for each file of a list: InParallel.py <command ...>, the files on standard input

Each file is followed by a zero byte and becomes the last argument of the command. As many commands run at once as there
are processors. This program shows the output of each command that fails in one piece, and then fails itself. After each
command it prints its progress, as [3/10].
"""

import concurrent.futures
import os
import subprocess
import sys


def main(command):
    """Runs them all; returns the exit status."""
    files = [name for name in sys.stdin.read().split('\0') if name]

    def run(name):
        return subprocess.run([*command, name], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)

    has_failed = False
    with concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        for number, result in enumerate(pool.map(run, files), 1):
            if result.returncode:
                has_failed = True
                sys.stdout.flush()
                sys.stdout.buffer.write(result.stdout)
            print(f'[{number}/{len(files)}]', flush=True)
    return 1 if has_failed or not files else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
