# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | what GDB shows of a manager, lists, strings, handles and safe pointers, or record it
# Arguments: 1
# Needs: @build gdb
# Gate: 065
source Commands/Support/Command.bash

only_option --update "$@"
build shared DialogManagerCore
program=build/debugger/Application
mkdir -p build/debugger
# As it is installed: beside the library, by the name under which GDB looks for it.
cp Debugger/DialogManagerPrinters.py "$(readlink -f build/shared/libDialogManagerCore.so)-gdb.py"
quietly debugger-application g++ -std=c++17 -g -O0 -Wall -Wextra -DGUI_SHARED_LIBRARIES -UNDEBUG -IInclude \
    Tests/Debugger/Application.cpp -Lbuild/shared -lDialogManagerCore "-Wl,-rpath,$PWD/build/shared" -o "$program"
gdb -nx -batch -iex "add-auto-load-safe-path $PWD/build/shared" -x Tests/Debugger/Commands.gdb "$program" \
    >build/debugger/all.txt 2>build/debugger/errors.txt || true
# What is shown, and what the call of PrintDialogHistory logs; addresses differ from run to run.
{
    sed -n '/^\$1 = /,$p' build/debugger/all.txt | grep -v -E '^(Breakpoint|Continuing|[0-9]+\b|\[Inferior|$)'
    grep '^DEBUG: ' build/debugger/errors.txt | tail -n 4
} | sed -E 's/0x[0-9a-f]+/(address)/; s/ \([A-Za-z/.]+:[0-9]+\)$//' >build/debugger/shown.txt
if [ $# -gt 0 ]; then
    cp build/debugger/shown.txt Tests/Debugger/Shown.expected
fi
diff -u Tests/Debugger/Shown.expected build/debugger/shown.txt || {
    cat build/debugger/errors.txt
    fail 'GDB shows something else; see ./run debugger --update'
}
printf 'GDB shows managers, lists, strings, handles and safe pointers as they are meant\n'
