# SPDX-License-Identifier: MIT
# Group: check
# Help: | shellcheck on this script and its commands
# Needs: shellcheck
# Gate: 068
source Commands/Support/Command.bash

check()
{
    watched shellcheck build/logs/shellcheck.log shellcheck "$@" || {
        cat build/logs/shellcheck.log
        fail 'shellcheck found the above'
    }
}

check run
check --shell bash --external-sources --check-sourced .ci/run Commands/*.sh
if grep -n 'shellcheck[ ]disable' run .ci/run Commands/*.sh Commands/Support/*.bash; then
    fail 'the lines above silence shellcheck; correct what it finds instead'
fi
printf 'shellcheck found nothing in %d scripts\n' "$(find run .ci/run Commands -name '*.*sh' -o -name run | wc -l)"
