# SPDX-License-Identifier: MIT
# Group: check
# Help: | a million calls of 8 threads through the post queue, under the thread sanitizer
# Needs: @tests @clang
# Gate: 042
# Figure: threads
source Commands/Support/Command.bash

build sanitize-threads PostQueueThreads
TSAN_OPTIONS=halt_on_error=1 watched PostQueueThreads build/logs/threads.log \
    build/sanitize-threads/Tests/PostQueueThreads/PostQueueThreads || {
    cat build/logs/threads.log >&2
    fail 'the above was found in the post queue'
}
report_figure "under the thread sanitizer: $(tail -n 1 build/logs/threads.log)"
