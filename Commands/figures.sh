# SPDX-License-Identifier: MIT
# Group: all
# Help: [--update] | what the commands have measured, or put it into README.md and Docs/Testing.md
# Arguments: 1
# Needs: python3
source Commands/Support/Command.bash

only_option --update "$@"
python3 -B Commands/Support/Figures.py "$@"
if [ $# -gt 0 ]; then
    python3 -B Commands/Support/Promises.py --update
fi
