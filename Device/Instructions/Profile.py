# SPDX-License-Identifier: MIT
"""Which functions the instructions of the operations on the board belong to.

    Profile.py <program> <document> <board ...>

Runs a counting program on the board, which logs every instruction, until each operation of the first application was
repeated often enough, and writes a table into the document. The call of an operation is not counted, so the sums are
some instructions lower than what the program prints.
"""

import bisect
import collections
import os
import pathlib
import re
import subprocess
import sys

OPERATIONS = {"switch": "Switch()", "back": "Back()", "popup shown": "ShowPopup()", "popup closed": "ClosePopup()"}
REPETITIONS = 6  # the first ones still allocate
LEAST = 15  # instructions of a function that has a row of its own
AROUND = ("CountTicks", "CountAll", "CAct::", "main")
EXECUTED = re.compile(r"^Trace \d+: 0x[0-9a-f]+ \[[0-9a-f]+/([0-9a-f]+)/")
REST = "all others"


class Program:
    """The functions of a program by address."""

    def __init__(self, path):
        found = subprocess.run(["arm-none-eabi-nm", "--numeric-sort", "--demangle", path], capture_output=True,
                               text=True, check=True).stdout
        symbols = re.findall(r"^([0-9a-f]+) [TtWw] (.*)$", found, re.MULTILINE)
        self.addresses = [int(address, 16) & ~1 for address, _ in symbols]
        self.names = [name.replace("(anonymous namespace)::", "") for _, name in symbols]

    def find(self, address):
        """Returns the name of the function at an address, and whether it begins there."""
        place = bisect.bisect_right(self.addresses, address) - 1
        return self.names[place], self.addresses[place] == address


def profile(program, log):
    """Returns how many instructions of each function an operation takes, by operation."""
    counts = {operation: [] for operation in OPERATIONS}
    begin = {f"CApplication::{function}": operation for operation, function in OPERATIONS.items()}
    operation = None
    for line in log:
        executed = EXECUTED.match(line)
        if not executed:
            continue
        name, is_entry = program.find(int(executed[1], 16) & ~1)
        if operation is None and is_entry and name in begin:
            operation = begin[name]
            counts[operation].append(collections.Counter())
        elif operation is not None and name.startswith(AROUND):
            operation = None
            if all(len(repeated) >= REPETITIONS for repeated in counts.values()):
                break
        if operation is not None:
            counts[operation][-1][name] += 1
    return {operation: repeated[-1] for operation, repeated in counts.items()}


def short(name):
    """Returns a function's name without its arguments, the types of templates and what it returns."""
    while re.search(r"<[^<>]*>", name):
        name = re.sub(r"<[^<>]*>", "", name)
    return re.sub(r"^.*[&*] ", "", name.split("(")[0])


def rows_of(profiles):
    """Returns the rows of the table, the largest first."""
    cells = collections.defaultdict(collections.Counter)
    for operation, counts in profiles.items():
        for name, count in counts.items():
            cells[short(name)][operation] += count
    for name in [name for name, counts in cells.items() if max(counts.values()) < LEAST]:
        cells[REST].update(cells.pop(name))
    names = sorted(cells, key=lambda name: (name == REST, -sum(cells[name].values()), name))
    together = {operation: sum(counts.values()) for operation, counts in profiles.items()}
    return ([[f"`{name}`" if name != REST else name] + [str(cells[name][operation]) for operation in OPERATIONS]
             for name in names] + [["together"] + [str(together[operation]) for operation in OPERATIONS]])


def main(program, document, *board):
    """Writes the table."""
    reading, writing = os.pipe()
    options = ["-singlestep", "-d", "exec,nochain", "-D", f"/dev/fd/{writing}", "-kernel", program]
    with subprocess.Popen([*board, *options], stdout=subprocess.DEVNULL, pass_fds=[writing]) as running:
        os.close(writing)
        with os.fdopen(reading, encoding="utf-8", errors="replace") as log:
            profiles = profile(Program(program), log)
            running.kill()
    if not all(profiles.values()):
        sys.exit("Profile.py: the program ended before all operations were repeated")
    lines = ["| instructions of | " + " | ".join(OPERATIONS) + " |", "|---|" + "---:|" * len(OPERATIONS)]
    lines += ["| " + " | ".join(row) + " |" for row in rows_of(profiles)]
    path = pathlib.Path(document)
    place = re.compile(r"(<!-- profile: [^>]*-->\n).*?(<!-- end of profile -->)", re.DOTALL)
    text = path.read_text(encoding="utf-8")
    if not place.search(text):
        sys.exit(f"Profile.py: {document} has no place for the table")
    path.write_text(place.sub(lambda found: found[1] + "\n".join(lines) + "\n" + found[2], text), encoding="utf-8")
    print("\n".join(lines))


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
