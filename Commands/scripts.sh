# Group: check
# Help: | shellcheck on this script and its commands
# Needs: shellcheck
# Gate: 068
source Commands/Support/Command.bash

shellcheck run || fail 'shellcheck found the above'
shellcheck --shell bash --external-sources --check-sourced .ci/run Commands/*.sh || fail 'shellcheck found the above'
if grep -n 'shellcheck[ ]disable' run .ci/run Commands/*.sh Commands/Support/*.bash; then
    fail 'the lines above keep shellcheck from looking'
fi
printf 'shellcheck found nothing in %d scripts\n' "$(find run .ci/run Commands -name '*.*sh' -o -name run | wc -l)"
