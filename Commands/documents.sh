# SPDX-License-Identifier: MIT
# Group: check
# Help: | do in an empty folder what README.md, Docs/GettingStarted.md and Docs/Adoption.md say
# Needs: @build @clang git make meson pkg-config python3
# Gate: 069
source Commands/Support/Command.bash
source Commands/Support/AllSources.bash

quietly documents-script python3 -B Tests/Documents/TryDocuments.py --check-script
quietly documents python3 -B Tests/Documents/TryDocuments.py ways
tail -n 1 build/logs/documents.log
for compiler in g++ clang++-14; do
    compile_all_sources "$compiler"
    for program in own none; do
        "build/all-sources/$compiler-$program" || fail "build/all-sources/$compiler-$program ends with an error"
    done
done
