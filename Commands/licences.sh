# SPDX-License-Identifier: MIT
# Group: check
# Help: [--fix] | every source file names its licence, or add the line
# Arguments: 1
# Needs: git python3
# Gate: 069
source Commands/Support/Command.bash

only_option --fix "$@"
python3 -B Commands/Support/Licences.py "$@" || fail 'these files do not name their licence; ./run licences --fix adds it'
# The program of those who define these lines knows more of them.
if command -v reuse >/dev/null; then
    quietly licences-reuse reuse lint
fi
