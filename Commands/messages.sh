# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | Docs/Messages.md lists what the sources log; or write its table again
# Arguments: 1
# Needs: python3
# Gate: 069
source Commands/Support/Command.bash

only_option --update "$@"
python3 -B Commands/Support/Messages.py "$@" ||
    fail 'Docs/Messages.md is not what the sources log; ./run messages --update corrects it'
