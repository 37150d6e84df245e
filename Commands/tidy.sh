# SPDX-License-Identifier: MIT
# Group: check
# Help: | clang-tidy
# Needs: @tests @clang @benchmarks clang-tidy-14
# Gate: 051
source Commands/Support/Command.bash
source Commands/Support/CompiledSources.bash

list_compiled_sources build/analysis/tidy
tr '\n' '\0' <build/analysis/tidy/sources >build/analysis/tidy/list
watched clang-tidy build/logs/tidy.log for_each_in_parallel clang-tidy-14 --quiet -p build/analysis/tidy \
    <build/analysis/tidy/list || {
    show_findings build/logs/tidy.log
    fail 'clang-tidy found the above'
}
printf 'clang-tidy found nothing in %d sources\n' "$(wc -l <build/analysis/tidy/sources)"
