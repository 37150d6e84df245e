# SPDX-License-Identifier: MIT
"""Instructions and heap allocations per operation.

    Counts.py collect <what CountOperations printed> <dump of callgrind> ...   prints the counts
    Counts.py summarise <counts>                                               prints the counts of a switch
"""

import re
import sys


def collect(printed_path, dump_paths):
    """Returns lines of name, instructions per operation, heap allocations per operation."""
    totals = {}
    for path in dump_paths:
        with open(path, encoding="utf-8", errors="replace") as dump:
            text = dump.read()
        trigger = re.search(r"^desc: Trigger: Client Request: (\S+) (less|more)$", text, re.MULTILINE)
        total = re.search(r"^totals: (\d+)$", text, re.MULTILINE)
        if trigger and total:
            totals[trigger.groups()] = int(total.group(1))
    lines = []
    with open(printed_path, encoding="utf-8") as printed:
        for line in printed:
            name, operations, allocations = line.split()
            instructions = (totals[name, "more"] - totals[name, "less"]) / int(operations)
            lines.append(f"{name:44} {instructions:12.2f} {float(allocations):12.4f}")
    return lines


def read(path):
    """Returns the counts of a file by name."""
    counts = {}
    with open(path, encoding="utf-8") as file:
        for line in file:
            if line.strip() and not line.startswith("#"):
                name, instructions, allocations = line.split()
                counts[name] = (float(instructions), float(allocations))
    return counts


def summarise(path):
    """Returns the counts of a switch and back as one sentence."""
    counts = read(path)
    names = {"off": "without messages", "null": "to no sink", "ring": "into the ring"}
    parts = [f"{counts[f'{where}/switch-and-back/kept'][0]:.0f} {name}" for where, name in names.items()]
    return f"instructions of a switch and back: {', '.join(parts)}; none of {len(counts)} counts has grown"


def main():
    """Does what the arguments say."""
    if len(sys.argv) > 3 and sys.argv[1] == "collect":
        print("\n".join(collect(sys.argv[2], sys.argv[3:])))
        return 0
    if len(sys.argv) == 3 and sys.argv[1] == "summarise":
        print(summarise(sys.argv[2]))
        return 0
    print(__doc__, file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(main())
