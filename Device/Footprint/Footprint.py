# SPDX-License-Identifier: MIT
"""What the library costs on the device: flash and memory, sizes of records, stack of operations.

    Footprint.py collect <level>=<build directory> ...   prints a figure per line, with its number at the end
    Footprint.py document <figures> <document>           writes the tables of such figures into a document
    Footprint.py summarise <figures>                     prints the manager's flash and the library's memory

The figures come from the linker's map of the coffee machine, from the symbols of Device/Footprint/Sizes.cpp and
from the compiler's call graphs. The stack is that of an operation and everything it calls directly, without what it
calls through pointers (hooks, virtual functions of objects, readers and sinks) and without the functions of the C and
C++ run-time libraries. A recursive function counts once.
"""

import pathlib
import re
import subprocess
import sys

MANAGER = "manager with its lists"
# The first part that matches the object file owns the section; members of archives are in brackets. Exception tables
# are counted separately, because a program without exceptions has none: those of the library, and those of all else.
PARTS = [
    (MANAGER, r"\(GUIDialogManager\."),
    ("object tree, focus and index", r"\((?:GUI(?:Object|CompositeObject|ObjectIndex|EventHandler)?|SafeGUIObjectPtr)\."),
    ("timer", r"\((?:GUITimer|GUIAnimatable)\."),
    ("trace", r"\(GUITrace\."),
    ("factory", r"\(GUIFactoryManager\."),
    ("string", r"\(eC_String\."),
    ("handles", r"\(GUIObjectHandle"),
    ("ROM loader", r"libDialogManagerROMLoader\.a"),
    ("widgets", r"libDialogManagerWidgets\.a"),
    ("companions", r"libDialogManagerCompanions\.a"),
    ("application with its dialogs", r"CoffeeMachine|libDialogManager(Scenario|Simulator)\.a"),
    ("board", r"Board\.dir"),
    ("exceptions of the C++ run-time", r"\((?:unwind|pr-support|libunwind|eh_|vterminate|cp-demangle|guard)"),
    ("rest of the C and C++ run-time", r"lib(?:c|m|gcc|stdc\+\+|rdimon)\.a|crt"),
]
LIBRARY_TABLES, OTHER_TABLES = "exception tables of the library", "exception tables of the rest"
# Definitions in headers end up in whichever object file comes first.
INLINE = ("inline parts of the library", r"^\.\w+\._Z[A-Z]*K?\d+(?:eC_|CGUI|CSafeGUI|ListNode)")
INLINE_WIDGETS = (r"^\.\w+\._Z[A-Z]*K?\d+CGUI"
                  r"(?:Widget|Screen|Popup|Container|Label|Image|Button|CheckBox|Bar|Slider|List|Text|ValueSource)")

INLINE_COMPANIONS = (r"^\.\w+\._Z[A-Z]*K?\d+CGUI"
                     r"(?:Dialog(?:Arguments|Budget|Listener|States)|Guard|IdleHome|ObservedDialogManager|PopupPolicy|"
                     r"PostQueue|Restore|Watch)")

# What the manager's row consists of; the first that matches the section's name.
MANAGER_SHARES = [
    ("what its lists do with their elements", r"eC_(?:TList|TIterator|TSafeIterator|List)|ListNode"),
    ("texts of messages", r"^\.rodata.*\.str\d"),
    ("virtual tables", r"\._ZTV"),
    ("its functions", r""),
]

FLASH = {".vectors", ".text", ".rodata", ".constructors", ".ARM.extab", ".ARM.exidx", ".data"}
MEMORY = {".data", ".bss"}
LIBRARY = {name for name, _ in PARTS[:8]}

INSPECTION = ["trace and state", "and commands", "and hazards"]
MOST_INSPECTION_FLASH, MOST_INSPECTION_MEMORY = 12 * 1024, 1024

OPERATIONS = [
    "CreateDialog", "AddDialog", "Back", "BackToDialog", "ClearDialogHistory", "RegisterDialogDefinition",
    "UnregisterDialogDefinition", "GetRegisteredPath", "GetRegisteredDialogID", "CreateDynamicObjectID",
    "RegisterPopupDefinition", "UnregisterPopupDefinition", "UpdateRegisteredPopupDisplayTime",
    "GetRegisteredPopupDisplayTime", "GetRegisteredPopupInfo", "ShowPopup", "ClosePopup", "IsPopupDisplayed",
]

# The tables of the document: the kind of the figures, and the heading of the first column.
TABLES = [("flash", "flash, bytes"), ("share", "manager with its lists, bytes"), ("companion", "companion, bytes of flash"),
          ("RAM", "RAM, bytes"), ("sizeof", "record"), ("stack", "operation, bytes of stack"),
          ("inspection", "inspection, bytes")]

# What calls itself once for each level of a tree: the functions of one level.
RECURSIONS = {
    "destruction of a tree, each level": ["_ZN19CGUICompositeObjectD0Ev", "_ZN19CGUICompositeObjectD2Ev",
                                          "_ZN19CGUICompositeObject15DestroyChildrenEv"],
    "search for a focus, each level": ["_ZN19CGUICompositeObject8FocusAnyEv"],
}


def part_of(section, file):
    if section.startswith(".ARM.ex"):
        is_library = any(name in LIBRARY and re.search(pattern, file) for name, pattern in PARTS)
        return LIBRARY_TABLES if is_library else OTHER_TABLES
    if re.search(INLINE_COMPANIONS, section):
        return "companions"
    if re.search(INLINE_WIDGETS, section):
        return "widgets"
    for name, pattern in PARTS:
        if re.search(pattern, file):
            return INLINE[0] if name not in LIBRARY and re.search(INLINE[1], section) else name
    sys.exit(f"Footprint.py: {section} of {file} belongs to no part")


def sections_of(map_file):
    """Yields (output section, input section, size, object file) of everything in the program."""
    text = map_file.read_text()
    text = text[text.index("Linker script and memory map"):]
    output = None
    # A long name has its own line.
    text = re.sub(r"\n( ?[.\w*][^\s]*)\n\s+0x", r"\n\1 0x", text)
    for line in text.splitlines():
        found = re.match(r"(\.[\w.]+)\s+0x[0-9a-f]+\s+0x[0-9a-f]+", line)
        if found:
            output = found[1]
            continue
        found = re.match(r"\s+(?:(\.[^\s]+|COMMON)\s+)?0x[0-9a-f]+\s+0x([0-9a-f]+)\s+(\S.*)$", line)
        if found and output:
            yield output, found[1] or "", int(found[2], 16), found[3]


def collect_sections(level, build):
    flash = {name: 0 for name in [name for name, _ in PARTS] + [INLINE[0], LIBRARY_TABLES, OTHER_TABLES]}
    memory = dict(flash)
    shares = {name: 0 for name, _ in MANAGER_SHARES}
    for output, section, size, file in sections_of(build / "Examples/CoffeeMachine/CoffeeMachine.map"):
        if size and output in FLASH | MEMORY:
            part = part_of(section, file)
            flash[part] += size if output in FLASH else 0
            memory[part] += size if output in MEMORY else 0
            if part == MANAGER and output in FLASH:
                shares[next(name for name, pattern in MANAGER_SHARES if re.search(pattern, section))] += size
    if flash[MANAGER] == 0:
        sys.exit(f"Footprint.py: there is no manager in the map below {build}")
    for part in flash:
        if flash[part] or memory[part]:
            print(f"flash, {level}, {part}  {flash[part]}")
            print(f"RAM, {level}, {part}  {memory[part]}")
    for name, size in shares.items():
        print(f"share, {level}, {name}  {size}")
    print(f"RAM, {level}, the library together  {sum(memory[part] for part in LIBRARY | {INLINE[0]})}")


def collect_companions(level, build):
    """What the object file of each companion adds to a program that uses it."""
    printed = subprocess.run(["arm-none-eabi-size", "-A", build / "libDialogManagerCompanions.a"], check=True,
                             capture_output=True, text=True).stdout
    for name, sections in re.findall(r"^(\w+)\.cpp\.obj .*\n((?:\S.*\n)+)", printed, re.M):
        flash = 0
        for section, size in re.findall(r"^(\.\S+) +(\d+) ", sections, re.M):
            # What the core's headers define is in the core, too.
            if re.search(r"\d(?:eC_|CSafeGUIObjectPtr|ListNode)", section):
                continue
            if re.match(r"\.(?:data|bss)", section) and size != "0":
                sys.exit(f"Footprint.py: {name} has static RAM, which no table shows")
            if re.match(r"\.(?:text|rodata|ARM\.ex|init_array)", section):
                flash += int(size)
        label = f"C{name}" if name.startswith("GUI") else name
        print(f"companion, {level}, {label}  {flash}")


def collect_records(build):
    objects = list(build.glob("Device/CMakeFiles/FootprintSizes.dir/Footprint/Sizes.cpp.*obj"))
    if len(objects) != 1:
        sys.exit(f"Footprint.py: {build} has no object file of Sizes.cpp")
    symbols = subprocess.run(["arm-none-eabi-nm", "-S", objects[0]], check=True, capture_output=True, text=True)
    for size, name in re.findall(r"^\S+ (\S+) R Record_(\w+)$", symbols.stdout, re.M):
        print(f"sizeof, {re.sub(r'(?<=[a-z])(?=[A-Z])', ' ', name)}  {int(size, 16)}")


class CallGraph:
    """The functions of the compiler's call graphs: their stacks, their names and what they call."""

    def __init__(self, build):
        self.stack, self.names, self.calls = {}, {}, {}
        files = [path for path in build.rglob("*.ci") if re.search(r"DialogManager(?:Core|ROMLoader)\.dir", str(path))]
        if not files:
            sys.exit(f"Footprint.py: there are no call graphs below {build}")
        for path in files:
            self.read(path.read_text())

    def read(self, text):
        for title, label in re.findall(r'^node: \{ title: "([^"]*)" label: "([^"]*)"', text, re.M):
            size = re.search(r"\\n(\d+) bytes \((\w+)", label)
            if size:
                if size[2] == "dynamic":
                    sys.exit(f"Footprint.py: the stack of {title} has no bound")
                self.stack[title] = int(size[1])
                self.names[title] = label.split("\\n")[0]
        for source, target in re.findall(r'^edge: \{ sourcename: "([^"]*)" targetname: "([^"]*)"', text, re.M):
            self.calls.setdefault(source, set()).add(target)

    def worst(self, function, callers=()):
        if function in callers or function not in self.stack:
            return 0
        callees = self.calls.get(function, ())
        return self.stack[function] + max((self.worst(callee, (*callers, function)) for callee in callees), default=0)


def collect_stack(level, build):
    graph = CallGraph(build)
    for operation in OPERATIONS:
        functions = [title for title, name in graph.names.items()
                     if re.search(rf"\bCGUIDialogManager::{operation}\(", name)]
        if not functions:
            sys.exit(f"Footprint.py: no call graph has {operation}")
        print(f"stack, {level}, {operation}  {max(graph.worst(function) for function in functions)}")
    for recursion, functions in RECURSIONS.items():
        print(f"stack, {level}, {recursion}  {sum(graph.stack[function] for function in functions)}")


def size_of(program):
    """Returns flash and memory of a whole program."""
    table = subprocess.run(["arm-none-eabi-size", program], check=True, capture_output=True, text=True).stdout
    text, data, bss = (int(number) for number in table.splitlines()[1].split()[:3])
    return text + data, data + bss


def collect_inspection(level, build):
    """What programs with an inspection have more than the one without, its buffers included."""
    without = size_of(build / "Device/InspectionExtent0")
    for extent, name in enumerate(INSPECTION, 1):
        flash, memory = (more - less for more, less in zip(size_of(build / f"Device/InspectionExtent{extent}"), without))
        if memory > MOST_INSPECTION_MEMORY or (flash > MOST_INSPECTION_FLASH and name != INSPECTION[-1]):
            sys.exit(f"Footprint.py: an inspection ({name}) takes {flash} bytes of flash and {memory} of RAM; at most "
                     f"{MOST_INSPECTION_FLASH} and {MOST_INSPECTION_MEMORY} are allowed")
        print(f"inspection, {level}, flash, {name}  {flash}")
        print(f"inspection, {level}, RAM, {name}  {memory}")


def collect(arguments):
    builds = [(level, pathlib.Path(path)) for level, path in (argument.split("=", 1) for argument in arguments)]
    for level, build in builds:
        collect_sections(level, build)
    for level, build in builds:
        collect_companions(level, build)
    for level, build in builds:
        collect_inspection(level, build)
    collect_records(builds[0][1])
    for level, build in builds:
        collect_stack(level, build)


def table(figures, kind, heading):
    """Lines of a table of one kind of figures, with a column for each level."""
    rows, levels = {}, []
    for names, number in figures:
        if names[0] == kind:
            level, name = (names[1], ", ".join(names[2:])) if len(names) > 2 else ("bytes", names[1])
            levels += [level] if level not in levels else []
            rows.setdefault(name, {})[level] = number
    yield f"| {heading} | {' | '.join(levels)} |"
    yield "|---|" + "---:|" * len(levels)
    for name, row in rows.items():
        yield f"| {name} | {' | '.join(row.get(level, '0') for level in levels)} |"


def read(figures_file):
    """Returns the figures of a file in order, each a name and a number."""
    return [tuple(line.rsplit(None, 1)) for line in pathlib.Path(figures_file).read_text().splitlines()]


def summarise(figures_file):
    figures = dict(read(figures_file))
    print(f"footprint on the Cortex-M4, -Os: manager {figures['flash, debug, manager with its lists']} bytes of flash "
          f"with all messages, {figures['flash, off, manager with its lists']} without; library "
          f"{figures['RAM, debug, the library together']} bytes of static RAM")


def document(figures_file, document_file, tables=TABLES, command="footprint"):
    figures = [(names.split(", "), number) for names, number in read(figures_file)]
    path = pathlib.Path(document_file)
    text = path.read_text()
    for kind, heading in tables:
        begin, end = f"<!-- {kind}: written by ./run {command} --update -->\n", f"<!-- end of {kind} -->"
        if begin not in text or end not in text:
            sys.exit(f"{document_file} has no place for the table of {kind}")
        before, rest = text.split(begin, 1)
        text = before + begin + "\n".join(table(figures, kind, heading)) + "\n" + end + rest.split(end, 1)[1]
    path.write_text(text)


if __name__ == "__main__":
    if len(sys.argv) > 2 and sys.argv[1] == "collect":
        collect(sys.argv[2:])
    elif len(sys.argv) == 4 and sys.argv[1] == "document":
        document(sys.argv[2], sys.argv[3])
    elif len(sys.argv) == 3 and sys.argv[1] == "summarise":
        summarise(sys.argv[2])
    else:
        sys.exit(__doc__)
