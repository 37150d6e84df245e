# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | hooks do what is recorded and what Docs/HookMatrix.md shows; or record it
# Arguments: 1
# Needs: @tests
# Gate: 024
# Figure: hooks
source Commands/Support/Command.bash

# Writes the expected outcomes, or the document that shows them: <the test that writes>
write_hooks()
{
    quietly hooks env DIALOGMANAGER_UPDATE_HOOKS=1 build/test/Tests/UnitTests --gtest_filter="CHookMatrixHostTest.$1"
}

only_option --update "$@"
build test UnitTests
if [ $# -gt 0 ]; then
    write_hooks TheFilesOfOutcomes_AreAsTheyWouldBeWritten
    write_hooks TheDocument_ShowsTheTestedOutcomes
    python3 -B Commands/Support/Promises.py --update
fi
watched 'the hooks' build/logs/hooks.log \
    timeout 900 build/test/Tests/UnitTests --gtest_brief=1 --gtest_filter='*CHookMatrix*' || {
    cat build/logs/hooks.log
    fail 'hooks do not do what is recorded; if the difference is right, ./run hooks --update'
}
cat build/logs/hooks.log
report_figure "$(python3 -B Commands/Support/HookFigure.py Tests/HookMatrix/Outcomes/*.txt)"
