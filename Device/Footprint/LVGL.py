# SPDX-License-Identifier: MIT
"""What the coffee machine on LVGL takes on the device: flash and RAM of its parts, and how much of its memory it uses.

    LVGL.py collect <map> <report>          prints a figure per line, with its number at the end
    LVGL.py document <figures> <document>   writes the tables of such figures into a document
    LVGL.py summarise <figures>             prints what LVGL and the adapter take

The map is the linker's, the report what the program has printed at its end. A part includes its exception tables.
"""

import pathlib
import re
import sys

from Footprint import FLASH, MEMORY, document, read, sections_of

# The first part whose pattern matches the object file, or the section where there is a second one, owns it.
PARTS = [
    ("adapter for LVGL", r"libDialogManagerLVGL\.a", None),
    ("mirror", r"libDialogManagerMirror\.a", None),
    ("LVGL's heap", r"liblvgl\.a", r"^\.bss\.work_mem_int"),
    ("LVGL's fonts", r"liblvgl\.a\(lv_font_montserrat", None),
    ("LVGL", r"liblvgl\.a", None),
    ("lines that LVGL draws into", r"LVGLMain", r"g_auiDrawn"),
    ("widgets", r"libDialogManagerWidgets\.a", None),
    ("companions", r"libDialogManagerCompanions\.a", None),
    ("core and ROM loader", r"libDialogManager(?:Core|ROMLoader)\.a", None),
    ("application, its dialogs, and what plays the tour",
     r"CoffeeMachine(?:Application\.a|LVGL\.dir)|libDialogManager(?:Scenario|Simulator|Inspection)\.a", None),
    ("board, C and C++ run-time", r"Board\.dir|lib(?:c|m|gcc|stdc\+\+|rdimon)\.a|crt", None),
]
WHOLE = "the whole program"
FONTS = "LVGL, flash, LVGL's fonts"
IN_USE = "LVGL's memory, most in use, heap of LVGL"
TABLES = [("LVGL", "part, bytes"), ("LVGL's memory", "memory, bytes")]


def part_of(section, file):
    for name, files, sections in PARTS:
        if re.search(files, file) and (sections is None or re.search(sections, section)):
            return name
    sys.exit(f"LVGL.py: {section} of {file} belongs to no part")


def collect(map_file, report_file):
    flash = {name: 0 for name, _, _ in PARTS}
    memory = dict(flash)
    for output, section, size, file in sections_of(pathlib.Path(map_file)):
        if size and output in FLASH | MEMORY:
            part = part_of(section, file)
            flash[part] += size if output in FLASH else 0
            memory[part] += size if output in MEMORY else 0
    empty = [name for name in flash if flash[name] + memory[name] == 0]
    if empty:
        sys.exit(f"LVGL.py: {map_file} has nothing of: {', '.join(empty)}")
    for name, flash_bytes, memory_bytes in [*((name, flash[name], memory[name]) for name in flash),
                                            (WHOLE, sum(flash.values()), sum(memory.values()))]:
        print(f"LVGL, flash, {name}  {flash_bytes}")
        print(f"LVGL, RAM, {name}  {memory_bytes}")
    uses = re.findall(r"^(.+): at most (\d+) of (\d+) bytes in use$", pathlib.Path(report_file).read_text(), re.M)
    if len(uses) != 3:
        sys.exit(f"LVGL.py: expected three lines about memory in {report_file}, found {len(uses)}")
    for name, most, size in uses:
        print(f"LVGL's memory, size, {name}  {size}")
        print(f"LVGL's memory, most in use, {name}  {most}")


def summarise(figures_file):
    figures = dict(read(figures_file))
    print(f"LVGL on the Cortex-M4, -Os: adapter {figures['LVGL, flash, adapter for LVGL']} bytes of flash, mirror "
          f"{figures['LVGL, flash, mirror']}, LVGL {figures['LVGL, flash, LVGL']} and its fonts "
          f"{figures[FONTS]}; at most {figures[IN_USE]} bytes of LVGL's heap in use; the tour's transcript and the "
          "pictures as on the host")


if __name__ == "__main__":
    if len(sys.argv) == 4 and sys.argv[1] == "collect":
        collect(sys.argv[2], sys.argv[3])
    elif len(sys.argv) == 4 and sys.argv[1] == "document":
        document(sys.argv[2], sys.argv[3], TABLES, "lvgldevice")
    elif len(sys.argv) == 3 and sys.argv[1] == "summarise":
        summarise(sys.argv[2])
    else:
        sys.exit(__doc__)
