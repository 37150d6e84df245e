# Group: check
# Help: [--update] | Docs/Messages.md lists what the sources log, or write its table again
# Arguments: 1
# Needs: python3
# Gate: 069
source Commands/Support/Command.bash

only_option --update "$@"
python3 -B Commands/Support/Messages.py "$@" || fail 'the table is not what the sources log; see ./run messages --update'
