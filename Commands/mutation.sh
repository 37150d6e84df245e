# SPDX-License-Identifier: MIT
# Group: check
# Help: | change the core in many small ways; the tests must notice
# Help: --sample N [--seed S] | the same for a random sample of the changes
# Help: --only TEXT | the same for changes with this text in their description
# Help: --again | the same for changes that survived the last run; for writing tests
# Help: --jobs N | the same on so many processors
# Help: --list | show the changes
# Help: --check-script | test the command itself with a small sample
# Arguments: 6
# Needs: @tests @clang python3-clang-14 ccache
# Gate: 071 --check-script
# Figure: mutation
# Figure: mutation-sample --sample
source Commands/Support/Command.bash

mkdir -p build/mutation
rm -f build/mutation/summary
# The module of the Debian package belongs to this Python.
if ! /usr/bin/python3 -B Tests/Mutation/Mutation.py "$@"; then
    [ ! -s build/mutation/summary ] || cat build/mutation/summary
    fail 'the above is not as it should be'
fi
case ${1:-} in
'') report_figure "$(cat build/mutation/summary)" ;;
--sample) report_figure "$(cat build/mutation/summary)" mutation-sample ;;
esac
