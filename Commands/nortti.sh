# Group: check
# Help: | the tests, library and all, without run-time type information
# Needs: @tests googletest
# Gate: 100
# Figure: nortti
source Commands/Support/Command.bash

build nortti
if nm -C build/nortti/libDialogManager*.a 2>/dev/null | grep -E 'typeinfo for (C|eC_)'; then
    fail 'the libraries hold the type information above'
fi
run_tests nortti
