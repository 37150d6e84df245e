# SPDX-License-Identifier: MIT
# Group: everyday
# Help: [<port>] | the coffee machine and flows in a browser; prints the address (port 8080)
# Help: --check | the page shows what happens on the host and is accessible; the documentation fits 390 px
# Arguments: 1
# Needs: @build @browser
# Gate: 085 --check
# Figure: browser --check
source Commands/Support/Command.bash
source Commands/Support/Expat.bash

page=build/browser/Examples/CoffeeMachine/Page
# The compiler's own scripts look for their packages here.
export NODE_PATH=/usr/share/nodejs

build_page()
{
    build release dialogc
    quietly configure-browser-expat cmake --preset browser \
        "-DDIALOGMANAGER_EXPAT_SOURCE=$([ ! -e "$expat_source" ] || printf '%s' "$PWD/$expat_source")"
    build browser CoffeeMachinePage "$@"
}

if [ "${1:-}" != --check ]; then
    only_numbers "$@"
    find_expat || printf 'The page opens no flows: the sources of expat cannot be had, see build/logs/expat.log;\
 DIALOGMANAGER_EXPAT_SOURCE may name them\n'
    build_page
    printf 'The page is %s; any web server can serve it\n' "$page"
    exec node Simulator/Browser/Serve.mjs "$page" "${1:-8080}"
fi

need @browsertests @tests
find_expat || fail 'the sources of expat cannot be had, see build/logs/expat.log; DIALOGMANAGER_EXPAT_SOURCE may name them'
# Installs the locked packages, unless they are there already.
install_packages()
{
    local there=build/browser/packages
    cmp -s Tests/Browser/package-lock.json "$there/package-lock.json" && [ -f "$there/complete" ] && return
    rm -rf "$there"
    mkdir -p "$there"
    cp Tests/Browser/{.npmrc,package.json,package-lock.json} "$there"
    npm ci --prefix "$there" --ignore-scripts
    touch "$there/complete"
}

build_page CoffeeMachineTour
build demo CoffeeMachine
build test dialogsim
quietly browser-packages install_packages

build/browser/packages/node_modules/.bin/eslint --config Tests/Browser/eslint.config.mjs Simulator/Browser Tests/Browser ||
    fail 'the scripts have the faults above'

tour=build/logs/Tour.browser
node --no-experimental-fetch build/browser/Examples/CoffeeMachine/CoffeeMachineTour.js \
    <Examples/CoffeeMachine/Tour.scenario >"$tour" 2>&1 || fail "the tour stopped; see $tour"
diff -u Examples/CoffeeMachine/Tour.golden "$tour" || fail "the demo's transcript in WebAssembly differs from that on the host"
printf 'The demo in WebAssembly: %d lines of transcript are as recorded\n' "$(wc -l <Examples/CoffeeMachine/Tour.golden)"

./run docs >build/logs/browser-docs.log 2>&1 || fail 'the site of the documentation is not made; ./run docs says why'
log=build/logs/browser-tests.log
BROWSER=$(command -v chromium) HOST=$PWD/build/demo/Examples/CoffeeMachine/CoffeeMachine \
    DIALOGSIM=$PWD/build/test/Flow/dialogsim \
    watched browser-tests "$log" node --test --test-reporter=spec Tests/Browser/{Session,Files,Page,Flow,Site}Test.mjs || {
    cat "$log" >&2
    fail "the page does not do what it should; its pictures are in build/browser/pictures"
}
grep -E '^ℹ (tests|pass|fail)' "$log"
# The bytes of a module, and compressed: <name>
size_of()
{
    printf '%d bytes of WebAssembly (%d compressed)' "$(stat -c %s "$page/$1.wasm")" "$(gzip -9 -c "$page/$1.wasm" | wc -c)"
}
report_figure "browser: $(sed -n 's/^ℹ pass //p' "$log") tests of the page passed, the coffee machine has \
$(size_of simulation), what runs flows $(size_of flow)"
