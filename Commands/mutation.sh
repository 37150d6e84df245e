# Group: check
# Help: | change the core in many small ways: do the tests notice?
# Help: --sample N [--seed S] | the same for some of the changes, by chance
# Help: --only TEXT | the same for those that have this in their description
# Help: --list | show the changes
# Help: --check-script | try the command itself on a small sample
# Arguments: 4
# Needs: @tests @clang python3-clang-14 ccache
# Gate: 071 --check-script
# Figure: mutation
# Figure: mutation-sample --sample
source Commands/Support/Command.bash

mkdir -p build/mutation
rm -f build/mutation/summary
# The Debian package's module belongs to this Python.
if ! /usr/bin/python3 -B Tests/Mutation/Mutation.py "$@"; then
    [ ! -s build/mutation/summary ] || cat build/mutation/summary
    fail 'the above is not as it should be'
fi
case ${1:-} in
'') report_figure "$(cat build/mutation/summary)" ;;
--sample) report_figure "$(cat build/mutation/summary)" mutation-sample ;;
esac
