# SPDX-License-Identifier: MIT
# Group: everyday
# Help: | open the coffee machine in the simulator, with a tour; without a terminal, print a short tour
# Help: --play | print the transcript of the whole tour; --help lists more options
# Arguments: 12
# Needs: @build
source Commands/Support/Command.bash
source Commands/Support/Tour.bash

build_demo
program=$PWD/$demo
# Other commands need not wait until somebody leaves the simulator.
exec 9>&-
cd -- "$RUN_FROM"
exec "$program" "$@"
