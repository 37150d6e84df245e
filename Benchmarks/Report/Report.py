# SPDX-License-Identifier: MIT
"""Combines the results of the measuring programs.

    Report.py <directory> [--update <directory of plots> <document> ...]

The directory holds what the programs wrote: time-*.json, counts-* as Counts.py collects them, and explorations.json of
Explorations.py. The report
adds results.json, results.md and plots; --update puts each table between its marks in the documents, and copies the
plots.
"""

import glob
import json
import os
import re
import shutil
import subprocess
import sys

import Counts

HERE = os.path.dirname(os.path.abspath(__file__))
SETTINGS = ("off", "null", "ring")
EXPLORED = "explored"
PEERS = (("fltk", "FLTK"), ("qt-widgets", "Qt Widgets"), ("qt-quick", "Qt Quick"), ("gtk", "GTK 4"))
PLOTS = (
    ("history", "entries in the history", "at-depth/kept", SETTINGS),
    ("tree", "objects in the tree", None, None),
    ("popups", "popups listed", "popup/arbitration", SETTINGS),
)
TREE_LINES = ("find/hit", "find/miss", "find/among-anonymous", "find/shared-identifier", "move/raise",
              "move/detach-and-attach")


def read_results(directory):
    """Returns the results by setting and work, and the machine on which they were measured."""
    counts = {}
    for path in sorted(glob.glob(os.path.join(directory, "counts-*"))):
        counts.update(Counts.read(path))
    results = {}
    context = {}
    for path in sorted(glob.glob(os.path.join(directory, "time-*.json"))):
        with open(path, encoding="utf-8") as file:
            measured = json.load(file)
        context = {key: measured["context"][key] for key in ("date", "num_cpus", "mhz_per_cpu", "load_avg")}
        for row in measured["benchmarks"]:
            name = row["name"].replace("/iterations:1/manual_time", "")
            setting, work = name.split("/", 1)
            results[setting, work] = {
                "nanoseconds": row["real_time"],
                "floor_nanoseconds": row["floor"],
                "ratio": row["ratio"],
                "instructions": row.get("instructions", counts.get(name, (None,))[0]),
                "allocations": row["allocations"],
                "floor_allocations": row["floor_allocations"],
            }
    with open(os.path.join(directory, "explorations.json"), encoding="utf-8") as file:
        results.update({(EXPLORED, name): result for name, result in json.load(file).items()})
    return results, context


def short(number):
    """Returns a number with three significant digits."""
    if number is None:
        return "–"
    if number >= 100:
        return f"{number:,.0f}"
    return f"{number:.3g}"


def sizes_of(results, setting, work):
    """Returns the sizes for which work was measured, and the results, in order."""
    found = []
    for (other_setting, name), result in results.items():
        match = re.fullmatch(re.escape(work) + r"/(\d+)", name)
        if other_setting == setting and match:
            found.append((int(match.group(1)), result))
    return sorted(found, key=lambda pair: pair[0])


def growth_per_entry(results, setting, work, key):
    """Returns the ratio of the costs per entry in the last and in the first decade of sizes."""
    sizes = [(size, result[key]) for size, result in sizes_of(results, setting, work)]
    if len(sizes) < 3 or None in [cost for size, cost in sizes]:
        return None
    slopes = [(more[1] - less[1]) / (more[0] - less[0]) for less, more in zip(sizes, sizes[1:])]
    # No cost in the last decade is the best possible result.
    return 0 if slopes[-1] <= 0 else slopes[-1] / slopes[0] if slopes[0] > 0 else float("inf")


def size_of(work):
    """Returns the size that is the last part of the work's name."""
    return int(work.rsplit("/", 1)[1])


def figure_of(bar, results, setting):
    """Returns the figure of a bar, None if it was not measured."""
    if bar["figure"] == "exploration":
        return results[EXPLORED, bar["work"]][bar["of"]] if setting == "-" else None
    if bar["figure"] == "growth":
        return growth_per_entry(results, setting, bar["work"], bar["of"])
    if bar["figure"] == "slope":
        by_size = dict(sizes_of(results, setting, bar["work"]))
        if bar["from"] not in by_size or bar["to"] not in by_size:
            return None
        difference = by_size[bar["to"]]["nanoseconds"] - by_size[bar["from"]]["nanoseconds"]
        return difference / (bar["to"] - bar["from"])
    result = results.get((setting, bar["work"]))
    if result is None or bar["figure"] == "ratio":
        return result and result["ratio"]
    key = bar.get("of", "nanoseconds" if bar["figure"] == "against" else "instructions")
    other = results.get((setting, bar["other"]))
    if other is None or result[key] is None or other[key] is None:
        return None
    if bar["figure"] == "per-entry":
        return result[key] / size_of(bar["work"]) / (other[key] / size_of(bar["other"]))
    return result[key] / other[key]


def check_bars(results):
    """Returns for each bar its text, limit, the figures by setting, and whether it is met."""
    with open(os.path.join(HERE, "Bars.json"), encoding="utf-8") as file:
        bars = json.load(file)
    checked = []
    for bar in bars:
        figures = {setting: figure_of(bar, results, setting) for setting in SETTINGS}
        deciding = figure_of(bar, results, "-")
        if deciding is None:
            deciding = figures[bar.get("setting", "off")]
        else:
            figures = {"off": deciding, "null": None, "ring": None}
        met = deciding is not None and deciding <= bar["limit"]
        checked.append((bar["bar"], bar["limit"], figures, met))
    return checked


def table(head, rows):
    """Returns a table as lines of Markdown; all columns but the first are numbers."""
    lines = ["| " + " | ".join(head) + " |", "|---|" + "---:|" * (len(head) - 1)]
    return lines + ["| " + " | ".join(row) + " |" for row in rows]


def bar_lines(checked):
    """Returns the table of bars."""
    rows = [[text, f"≤ {limit}"] + [short(figures[setting]) for setting in SETTINGS] + ["yes" if met else "no"]
            for text, limit, figures, met in checked]
    return table(["bar", "limit", "trace off", "to no sink", "into the ring", "met"], rows)


def tracing_lines(results):
    """Returns the table of the work that logs."""
    works = dict.fromkeys(work for setting, work in results if setting in SETTINGS)
    rows = []
    for work in works:
        row = [f"`{work}`"]
        here = [results.get((setting, work)) for setting in SETTINGS]
        floors = [result["floor_nanoseconds"] for result in here if result]
        row.append(short(min(floors)))
        row += [f"{short(result['nanoseconds'])} ({short(result['ratio'])})" if result else "–" for result in here]
        row.append(" / ".join(short(result["instructions"] if result else None) for result in here))
        row.append(" / ".join(short(result["allocations"] if result else None) for result in here))
        rows.append(row)
    return table(["work", "floor, ns", "trace off, ns (ratio)", "to no sink", "into the ring",
                  "instructions off / no sink / ring", "heap allocations"], rows)


def silent_lines(results):
    """Returns the table of the work that logs nothing."""
    rows = []
    for (setting, work), result in results.items():
        if setting == "-":
            rows.append([f"`{work}`"] + [short(result[key]) for key in (
                "floor_nanoseconds", "nanoseconds", "ratio", "instructions", "allocations", "floor_allocations")])
    return table(["work", "floor, ns", "ns", "ratio", "instructions", "heap allocations", "those of the floor"],
                 rows)


def exploration_lines(results):
    """Returns the table of the explored flows."""
    rows = [[f"`{work}`", f"{result['states']:,}", f"{result['steps']:,}", f"{result['seconds']:.1f}",
             short(result["states_per_second"]), short(result["bytes_per_state"])]
            for (setting, work), result in results.items() if setting == EXPLORED]
    return table(["flow", "states", "steps", "seconds", "states per second", "bytes per state"], rows)


def peer_lines(results):
    """Returns the table of the other toolkits, empty if they were not measured."""
    works = dict.fromkeys(work for setting, work in results if setting in dict(PEERS))
    rows = []
    for work in works:
        row = [f"`{work}`"]
        for setting in ("off", "ring") + tuple(setting for setting, name in PEERS):
            result = results.get((setting, work)) or (setting == "off" and results.get(("-", work)))
            row.append(f"{short(result['nanoseconds'])} ({short(result['ratio'])})" if result else "–")
        rows.append(row)
    head = ["work", "trace off, ns (ratio)", "into the ring"] + [name for setting, name in PEERS]
    return table(head, rows) if rows else []


def write_plots(results, directory):
    """Draws cost against size."""
    for name, label, work, settings in PLOTS:
        lines = [(line, "-", line) for line in TREE_LINES] if work is None else [
            (f"trace {setting}" if setting == "off" else f"to {setting}", setting, work) for setting in settings]
        blocks = []
        titles = []
        for title, setting, line_work in lines:
            points = sizes_of(results, setting, line_work)
            if points:
                titles.append(title.replace("to null", "to no sink").replace("to ring", "into the ring"))
                blocks.append("\n".join(f"{size} {result['nanoseconds']}" for size, result in points))
        floor = sizes_of(results, lines[0][1], lines[0][2])
        titles.append("floor" if work else "floor of finding")
        blocks.append("\n".join(f"{size} {result['floor_nanoseconds']}" for size, result in floor))
        data = os.path.join(directory, f"{name}.data")
        with open(data, "w", encoding="utf-8") as file:
            file.write("\n\n\n".join(blocks) + "\n")
        subprocess.run(["gnuplot", "-e", f"data='{data}'; output='{os.path.join(directory, name)}.svg'; "
                        f"label='{label}'; titles='{'|'.join(titles)}'", os.path.join(HERE, "Plot.gnuplot")],
                       check=True)


def replace_between_marks(text, name, lines, command="./run bench --update"):
    """Returns a document with the lines between the marks of that name, None if it has no such marks."""
    begin, end = f"<!-- {name}: written by {command} -->\n", f"<!-- end of {name} -->"
    if begin not in text or end not in text:
        return None
    before, rest = text.split(begin)
    return before + begin + "\n".join(lines) + "\n" + end + rest.split(end, 1)[1]


def update(plots, documents, directory, sections):
    """Puts each section between its marks in the documents that have them, and the plots into a directory."""
    texts = {}
    for document in documents:
        with open(document, encoding="utf-8") as file:
            texts[document] = file.read()
    for name, lines in sections.items():
        changed = {document: replace_between_marks(text, name, lines) for document, text in texts.items()}
        changed = {document: text for document, text in changed.items() if text is not None}
        if not changed:
            sys.exit(f"no document has a place for {name}: {', '.join(documents)}")
        if lines:
            texts.update(changed)
    for document, text in texts.items():
        with open(document, "w", encoding="utf-8") as file:
            file.write(text)
    os.makedirs(plots, exist_ok=True)
    for name, *_ in PLOTS:
        shutil.copy(os.path.join(directory, f"{name}.svg"), plots)


def machine_lines(context):
    """Returns a line about the machine on which the results were measured."""
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search(r"^model name\s*: (.*)$", file.read(), re.MULTILINE)
    compiler = subprocess.run(["g++", "--version"], capture_output=True, text=True, check=True).stdout
    return [f"Measured on {context['date'][:10]}: {model.group(1).strip() if model else 'unknown processor'} at "
            f"{context['mhz_per_cpu']} MHz, {context['num_cpus']} processors, load "
            f"{context['load_avg'][0]:.1f}; {compiler.splitlines()[0]}, -O2."]


def main():
    """Writes the report."""
    directory = sys.argv[1]
    results, context = read_results(directory)
    checked = check_bars(results)
    sections = {
        "machine": machine_lines(context),
        "bars": bar_lines(checked),
        "work that logs": tracing_lines(results),
        "work that logs nothing": silent_lines(results),
        "explored flows": exploration_lines(results),
        "peers": peer_lines(results) and machine_lines(context) + [""] + peer_lines(results),
    }
    with open(os.path.join(directory, "results.json"), "w", encoding="utf-8") as file:
        json.dump({"context": context,
                   "bars": [{"bar": text, "limit": limit, "figures": figures, "met": met}
                            for text, limit, figures, met in checked],
                   "results": [{"setting": setting, "work": work, **result}
                               for (setting, work), result in results.items()]}, file, indent=1)
    with open(os.path.join(directory, "results.md"), "w", encoding="utf-8") as file:
        for name, lines in sections.items():
            if lines:
                file.write(f"## {name.capitalize()}\n\n" + "\n".join(lines) + "\n\n")
    write_plots(results, directory)
    if len(sys.argv) >= 5 and sys.argv[2] == "--update":
        update(sys.argv[3], sys.argv[4:], directory, sections)
    for text, limit, figures, met in checked:
        shown = ", ".join(f"{setting} {short(figures[setting])}" for setting in SETTINGS if figures[setting] is not None)
        print(f"{'met    ' if met else 'NOT MET'}  {text}: {shown} (at most {limit})")
    print(f"bench: {len(results)} measurements, {sum(met for *_, met in checked)} of {len(checked)} bars met")


if __name__ == "__main__":
    main()
