# SPDX-License-Identifier: MIT
# Group: check
# Help: [--fix] | check the format of the sources, or correct it
# Arguments: 1
# Needs: clang-format-14 python3
# Gate: 067
source Commands/Support/Command.bash

only_option --fix "$@"
if [ $# -gt 0 ]; then
    sources h cpp | watched format build/logs/format.log for_each_in_parallel clang-format-14 -i
else
    sources h cpp | watched format build/logs/format.log for_each_in_parallel clang-format-14 --dry-run -Werror || {
        show_findings build/logs/format.log
        fail 'these files are not formatted; ./run format --fix corrects them'
    }
    sources h cpp | xargs -0 python3 -B Commands/Support/TestDialect.py ||
        fail 'the above is not in the dialect of the tests'
    printf 'The sources are formatted, and the tests have one dialect\n'
fi
