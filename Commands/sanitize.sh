# SPDX-License-Identifier: MIT
# Group: check
# Help: [g++|clang++|all] | the tests with the sanitizers; with g++ also without run-time type information
# Arguments: 1
# Needs: @tests googletest
# Gate: 040 g++
# Gate: 041 clang++
# Figure: sanitize-g++ g++
# Figure: sanitize-clang++ clang++
source Commands/Support/Command.bash

compiler=${1:-all}
case $compiler in
g++ | clang++) compilers=("$compiler") ;;
all) compilers=(g++ clang++) ;;
*) wrong_usage "sanitize knows g++, clang++ and all, not '$compiler'" ;;
esac

export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:check_initialization_order=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1
for compiler in "${compilers[@]}"; do
    if [ "$compiler" = clang++ ]; then
        need @clang
        export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-14/bin/llvm-symbolizer
    fi
    build "sanitize-$compiler"
    if [ "$compiler" = g++ ] && nm -C build/sanitize-g++/libDialogManager*.a 2>/dev/null |
        grep -E 'typeinfo for (C|eC_)'; then
        fail 'the libraries contain the type information above'
    fi
    run_tests "sanitize-$compiler"
done
