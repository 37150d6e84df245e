# SPDX-License-Identifier: MIT
# Group: everyday
# Help: | build and run all tests
# Needs: @tests
# Gate: 010
# Figure: test
source Commands/Support/Command.bash

build test
run_tests test
