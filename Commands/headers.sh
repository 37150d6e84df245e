# SPDX-License-Identifier: MIT
# Group: check
# Help: | compile every public header alone, with g++ and clang
# Needs: @tests @clang @benchmarks
# Gate: 061
source Commands/Support/Command.bash

build test HeaderCheck
build clang HeaderCheck
printf '%d headers compile alone\n' "$(find build/test/HeaderCheck -name '*.h.cpp' | wc -l)"
