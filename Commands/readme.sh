# SPDX-License-Identifier: MIT
# Group: check
# Help: | README.md: its figures, its frame of the demo, and its program in an empty folder
# Needs: @build git python3
# Gate: 064
source Commands/Support/Command.bash

python3 -B Commands/Support/Promises.py || fail 'the figures of README.md are not those recorded'
quietly readme python3 -B Tests/Documents/TryDocuments.py program
tail -n 1 build/logs/readme.log
