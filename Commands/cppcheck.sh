# SPDX-License-Identifier: MIT
# Group: check
# Help: | cppcheck
# Needs: @tests @clang @benchmarks cppcheck
# Gate: 060
source Commands/Support/Command.bash
source Commands/Support/CompiledSources.bash

list_compiled_sources build/analysis/cppcheck
mkdir -p build/cppcheck
watched cppcheck build/logs/cppcheck.log cppcheck \
    --project=build/analysis/cppcheck/compile_commands.json --cppcheck-build-dir=build/cppcheck \
    -j "$(nproc)" --quiet --std=c++17 --library=googletest --inline-suppr \
    --enable=warning,style,performance,portability --suppressions-list=CMake/CppcheckSuppressions.txt \
    --error-exitcode=1 || {
    cat build/logs/cppcheck.log
    fail 'cppcheck found the above'
}
printf 'cppcheck found nothing\n'
