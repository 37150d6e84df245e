# SPDX-License-Identifier: MIT
# Group: check
# Help: [operations] | random operations compared with a second, simple implementation
# Arguments: 1
# Needs: @tests librapidcheck-dev
# Gate: 023
# Figure: model
source Commands/Support/Command.bash

only_numbers "$@"
build test ModelTests
watched ModelTests build/logs/model.txt build/test/Tests/Model/ModelTests "${1:-100000}" || {
    cat build/logs/model.txt
    fail 'the manager and the model differ'
}
cat build/logs/model.txt
report_figure "model: $(tail -n 1 build/logs/model.txt)"
