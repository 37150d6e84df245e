"""Instructions and heap allocations per operation, and whether they have grown.

    Counts.py collect <what CountOperations printed> <dump of callgrind> ...   prints the counts
    Counts.py compare <recorded counts> <counts>                               fails when one has grown
"""

import re
import sys

ALLOWED_GROWTH = 1.02


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


def compare(recorded_path, counted_path):
    """Returns what is wrong, and what may be recorded anew, as lines."""
    recorded = read(recorded_path)
    counted = read(counted_path)
    wrong = [f"{name} is not recorded" for name in counted if name not in recorded]
    wrong += [f"{name} is recorded and was not counted" for name in recorded if name not in counted]
    better = []
    for name in recorded.keys() & counted.keys():
        for what, before, now in zip(("instructions", "heap allocations"), recorded[name], counted[name]):
            change = f"{name}: {before:.10g} {what} are recorded, {now:.10g} were counted"
            if now > before * ALLOWED_GROWTH:
                wrong.append(change)
            elif now * ALLOWED_GROWTH < before:
                better.append(change)
    return sorted(wrong), sorted(better)


def main():
    """Does what the arguments say."""
    if len(sys.argv) > 3 and sys.argv[1] == "collect":
        print("\n".join(collect(sys.argv[2], sys.argv[3:])))
        return 0
    if len(sys.argv) == 4 and sys.argv[1] == "compare":
        wrong, better = compare(sys.argv[2], sys.argv[3])
        for line in better:
            print(f"fewer than recorded, which may be recorded now: {line}")
        for line in wrong:
            print(line)
        return 1 if wrong else 0
    print(__doc__, file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(main())
