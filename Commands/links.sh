# SPDX-License-Identifier: MIT
# Group: check
# Help: | links between documents lead somewhere, and Docs/Design.md names existing functions
# Needs: git python3
# Gate: 069
source Commands/Support/Command.bash

python3 -B Commands/Support/Links.py || fail 'the links above lead nowhere'
