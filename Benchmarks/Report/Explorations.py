# SPDX-License-Identifier: MIT
"""Measures the checker of flows: Explorations.py <dialogcheck> <file>

It writes to the file, as JSON, how many states each flow has, how many seconds of one processor it took, and the most
memory for each state. The large flow is the infusion pump beside four switches that have nothing to do with it, up to
100,000 states.
"""

import json
import os
import subprocess
import sys
import tempfile

FLOWS = (
    ("coffee-machine", "Examples/Flows/CoffeeMachine.xml", 0, ()),
    ("100000-states", "Examples/Flows/InfusionPump.xml", 4, ("--bounded", "--states", "100000")),
)


def add_switches(text, number):
    """Returns a flow with so many more signals, each of which switches a flag."""
    switches = "".join(f'<Signal name="switch{switch}"/><Flag name="flag{switch}"/>'
                       f'<On signal="switch{switch}"><set flag="flag{switch}" value="toggle"/></On>\n'
                       for switch in range(number))
    return text.replace("</Flow>", switches + "</Flow>")


def explore(checker, path, switches, arguments):
    """Returns what exploring a flow took."""
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryFile() as output:
        if switches:
            with open(path, encoding="utf-8") as file:
                text = add_switches(file.read(), switches)
            path = os.path.join(folder, os.path.basename(path))
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        process = subprocess.Popen([checker, path, "--json", *arguments], stdout=output)
        _, status, used = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            sys.exit(f"{path} is not clean")
        output.seek(0)
        report = json.load(output)
    seconds = used.ru_utime + used.ru_stime
    return {"states": report["states"], "steps": report["steps"], "seconds": seconds,
            "states_per_second": report["states"] / seconds,
            "bytes_per_state": used.ru_maxrss * 1024 / report["states"]}


def main():
    results = {name: explore(sys.argv[1], path, switches, arguments) for name, path, switches, arguments in FLOWS}
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        json.dump(results, file, indent=1)


if __name__ == "__main__":
    main()
