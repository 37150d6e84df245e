# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | no function is more complex than Docs/Safety.md says, and its tests are there
# Arguments: 1
# Needs: @tests @clang python3 python3-clang-14
# Gate: 069
source Commands/Support/Command.bash

only_option --update "$@"
quietly configure-test cmake --preset test
# Debian's packages are for Debian's own interpreter.
python=python3
[ ! -x /usr/bin/python3 ] || python=/usr/bin/python3
"$python" -B Commands/Support/Safety.py build/test/compile_commands.json "$@" ||
    fail 'Docs/Safety.md says something else; ./run safety --update writes it again'
printf 'No function is more complex than Docs/Safety.md says, and the tests that it names are there\n'
