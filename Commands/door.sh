# SPDX-License-Identifier: MIT
# Group: check
# Help: | this script itself: progress, two at once, odd and moved checkouts, missing programs
# Needs: @build python3
# Gate: 050
source Commands/Support/Command.bash

# Fails unless the printed text is as expected: <what is tried> <pattern for the whole text> <text>
expect()
{
    local pattern=$2
    [[ $3 =~ ^$pattern$ ]] || fail "$1: expected ${2@Q}, printed ${3@Q}"
}

# Makes a checkout with this script, a project that builds at once, and the command slow, which takes seconds.
make_checkout()
{
    mkdir -p "$1"
    cp -r run Commands "$1"
    cp Commands/Support/Sample/CMakeLists.txt Commands/Support/Sample/CMakePresets.json Commands/Support/Sample/Main.cpp \
        Commands/Support/Sample/Tour.scenario "$1"
    mkdir -p "$1/Examples/CoffeeMachine"
    mv "$1/Tour.scenario" "$1/Examples/CoffeeMachine"
    cat >"$1/Commands/slow.sh" <<'SLOW'
# Arguments: 1
source Commands/Support/Command.bash
steps()
{
    for ((step = 1; step <= $1; step++)); do
        printf '[%d/%d]\n' "$step" "$1"
        sleep 1
    done
}
quietly slow steps "$1"
SLOW
}

# A compiler cache may give files other names.
unset CMAKE_CXX_COMPILER_LAUNCHER
place=$PWD/build/door
rm -rf "$place"
built=$'Building demo\nThe tour'

odd="$place/odd é (x),+@!~^ place"
make_checkout "$odd"
expect 'an odd path' "$built" "$("$odd/run" demo 2>&1)"
mv "$odd" "$place/moved"
expect 'a moved checkout' $'This checkout was moved here from .*: everything is built anew\n'"$built" \
    "$("$place/moved/run" demo 2>&1)"
ln -s moved "$place/linked"
expect 'a linked checkout' "$built" "$("$place/linked/run" demo 2>&1)"
ln -s moved/run "$place/door"
expect 'a linked script' "$built" "$("$place/door" demo 2>&1)"

for character in '$' '"' "'" ';' \\ '`' '=' $'\n'; do
    make_checkout "$place/a${character}b"
    expect 'a path that cannot be built in' 'run: nothing can be built below a path that contains [^
]*' "$("$place/a${character}b/run" demo 2>&1 || true)"
done

expect 'progress' $'slow: step [1-7] of 7, [0-9]+ s(\nslow: step 7 of 7, [0-9]+ s)*' "$("$place/moved/run" slow 7 2>&1)"
expect 'nothing to show' '' "$("$place/moved/run" slow 1 2>&1)"
# The shell of the terminal may print a greeting first.
expect 'progress on a terminal' $'(.*\n)?(\r\e\\[Kslow: step [1-7] of 7, [0-9]+ s)+\r\e\\[K' \
    "$(script -qec "'$place/moved/run' slow 7" /dev/null)"

"$place/moved/run" slow 3 &
first=$!
sleep 1
waited=$("$place/moved/run" demo 2>&1)
if kill -0 "$first" 2>/dev/null; then
    fail 'two at once: the second did not wait'
fi
expect 'two at once' $'Waiting for ./run slow \(process [0-9]+\), which is running in this checkout\n'"$built" "$waited"

# Fails unless wrong arguments are refused with status 2: <pattern for the whole text> <argument> ...
expect_wrong_usage()
{
    local pattern=$1 status=0 said
    shift
    said=$("$place/moved/run" "$@" 2>&1) || status=$?
    expect "./run ${*@Q}" "$pattern 2" "$said $status"
}

expect_wrong_usage "run: there is no command ''; ./run help lists the commands" ''
expect_wrong_usage "run: too many arguments for 'help'; ./run help lists the commands" help me

# Only these programs are on the path: not ninja, nothing that could install it, and not flock.
mkdir "$place/programs"
for program in bash basename cat cut dirname find g++ cmake grep id mkdir nproc readlink rm sed sort tail tr wc; do
    ln -s "$(command -v "$program")" "$place/programs"
done
advice='apt-get update && apt-get install -y --no-install-recommends ninja-build'
expect 'a missing program' "run: this is missing and cannot be installed from here: the program ninja \
\\(Debian: ninja-build\\)\\. On Debian, as root: $advice" \
    "$(PATH=$place/programs "$place/moved/run" demo 2>&1 || true)"

# A gate that fails although its tests passed must fail the whole run.
mkdir -p "$place/gates/Commands" "$place/gates/.ci"
cp run "$place/gates"
cp .ci/run "$place/gates/.ci"
cp Commands/ci.sh "$place/gates/Commands"
printf '# Gate: 010\nprintf "3 passed, 0 failed\\n"\nexit 1\n' >"$place/gates/Commands/test.sh"
said=$(timeout 60 env "PATH=$place/programs" "$place/gates/run" ci 2>&1) &&
    fail 'all gates: one fails, but the whole run does not'
expect 'all gates' '3 passed, 1 failed' "$(tail -n 1 <<<"$said")"
rm -rf "$place"
printf './run works in odd and moved places, one at a time, shows its progress and says what is missing\n'
