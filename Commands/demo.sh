# SPDX-License-Identifier: MIT
# Group: everyday
# Help: | play a tour of the coffee machine
# Needs: @build
source Commands/Support/Command.bash
source Commands/Support/Tour.bash

build_demo
play_tour
