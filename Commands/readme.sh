# Group: check
# Help: | the program in README.md, built by the line beside it in an empty folder, and its frame of the demo
# Needs: @build git python3
# Gate: 064
source Commands/Support/Command.bash

quietly readme python3 -B Tests/Documents/TryDocuments.py program
tail -n 1 build/logs/readme.log
