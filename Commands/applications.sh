# SPDX-License-Identifier: MIT
# Group: check
# Help: | build an application of ./run new and a copy of the coffee machine, outside the project
# Needs: @build
# Gate: 063
source Commands/Support/Command.bash

outside=$(mktemp -d)
trap 'rm -rf -- "$outside"' EXIT

# Runs ./run new outside the project. It must refuse in one line and write nothing: <text> <arguments of new ...>
expect_refusal()
{
    local expected=$1 status=0 said
    shift
    said=$(cd "$outside" && "$OLDPWD/run" new "$@" 2>&1) || status=$?
    [[ $status -eq 2 && $said = "run: "*"$expected"* && $said != *$'\n'* ]] ||
        fail "./run new ${*@Q} should refuse with '$expected', but ended with status $status: $said"
    [ "$(find "$outside" | sort)" = "$there" ] || fail "./run new ${*@Q} refuses, but has written something"
}

# Configures and builds an application: <folder> <build folder> <CMake argument>
build_outside()
{
    quietly applications-configure cmake -S "$1" -B "$2" -G Ninja -DCMAKE_CXX_COMPILER=g++ \
        '-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror' "$3"
    quietly applications-build cmake --build "$2"
}

mkdir "$outside/full"
touch "$outside/full/.hidden" "$outside/file"
there=$(find "$outside" | sort)
expect_refusal 'two arguments'
expect_refusal 'two arguments' folder
expect_refusal 'too many arguments' folder Name more
expect_refusal 'no option' --help Name
expect_refusal 'empty text' '' Name
expect_refusal 'is not empty' full Name
expect_refusal 'is not a folder' file Name
expect_refusal 'inside this checkout' "$PWD/build/new application" Name
expect_refusal 'inside this checkout' "$PWD" Name
[ ! -e 'build/new application' ] || fail './run new refuses a folder inside the checkout, but has written it'
for path in 'a;b' 'a"b' "a'b" 'a\b' 'a*b' 'a[b]' $'a\nb'; do
    expect_refusal "folder's path" "$path" Name
done
for name in '' 1st 'two words' a-b a.b ü $'a\nb'; do
    expect_refusal 'identifier' folder "$name"
done
expect_refusal 'keyword' folder class
expect_refusal 'keyword' folder xor_eq
expect_refusal 'taken' folder test
expect_refusal 'taken' folder DialogManagerCore
expect_refusal '64 characters' folder "$(printf 'a%.0s' {1..65})"
printf './run new refuses wrong arguments\n'

build release
quietly applications-install cmake --install build/release --prefix "$outside/the library"
root=$PWD
(cd "$outside" && "$root/run" new 'an application/größer' Thermostat >/dev/null)
application=$outside/an\ application/größer
if grep -r MyApplication "$application"; then
    fail 'the lines above of a new application still contain the name of the template'
fi

for argument in "-DCMAKE_PREFIX_PATH=$outside/the library" "-DDIALOGMANAGER_DIRECTORY=$root"; do
    tree=$outside/build${argument%%=*}
    build_outside "$application" "$tree" "$argument"
    quietly applications-test ctest --test-dir "$tree" --output-on-failure --no-tests=error
    (cd / && "$tree/Thermostat" --play) | grep '^| |  Brightness 60 % *|$' >/dev/null ||
        fail 'the brightness of a new application does not change'
    (cd / && "$tree/Thermostat" </dev/null) | grep -x 'This is the short tour: .*' >/dev/null ||
        fail 'a new application does not tell its short tour'
    printf 'A new application works with %s\n' "${argument%%=*}"

    # Also in a Release build the test notices a change, and the library reports a missing root.
    sed -i 's/cuiMessageTime = 2000/cuiMessageTime = 1999/' "$application/Application/Application.cpp"
    quietly applications-build cmake --build "$tree"
    ! "$tree/ThermostatTest" >"$outside/difference" || fail 'the test of a new application does not notice a change'
    grep -q -x -e '- | active: POP_SAVED .*, 2000 ms left' "$outside/difference" ||
        fail 'the test of a new application does not show what has changed'
    sed -i '/CGUI m_kRoot;/d' "$application/Application/Application.h"
    quietly applications-build cmake --build "$tree"
    # The braces also redirect what the shell says about an aborted program.
    ! { "$tree/Thermostat" </dev/null >/dev/null; } 2>"$outside/said" || fail 'an application runs without a root'
    grep -q "Assertion .*ms_pInstance" "$outside/said" || fail "a missing root is reported as '$(cat "$outside/said")'"
    printf 'A missing root is reported\n'
    rm -rf -- "$application"
    ./run new "$application" Thermostat >/dev/null
done

# What it offers as comments is code: lines that name a member, and includes.
find "$application/Application" -type f -exec \
    sed -i -E 's@^( *)// (.*m_k[A-Z].*;)$@\1\2@; s@^// (#include "Companions/)@\1@' {} +
[ "$(grep -c '^    CGUI.* m_k.*;$' "$application/Application/Application.h")" -ge 9 ] ||
    fail 'a new application does not offer the companions'
build_outside "$application" "$outside/build-companions" "-DCMAKE_PREFIX_PATH=$outside/the library"
quietly applications-test ctest --test-dir "$outside/build-companions" --output-on-failure --no-tests=error
printf 'A new application works with all companions that it offers\n'

cp -R Examples/CoffeeMachine "$outside/machine"
rm -rf "$outside/machine/Device" "$outside/machine/Tests"
build_outside "$outside/machine" "$outside/build-machine" "-DCMAKE_PREFIX_PATH=$outside/the library"
(cd / && "$outside/build-machine/CoffeeMachine" "$outside/machine/Tour.scenario") >"$outside/Tour.transcript"
diff -u Examples/CoffeeMachine/Tour.golden "$outside/Tour.transcript" ||
    fail 'a copy of the coffee machine does not play the recorded tour'
printf 'A copy of the coffee machine works\n'
