# SPDX-License-Identifier: MIT
# Group: check
# Help: [--update] | the adapter for LVGL, in C++ and C; pictures of the coffee machine, or record them
# Arguments: 1
# Needs: @tests libpng-dev git
# Gate: 068
# Figure: lvgl
source Commands/Support/Command.bash

recorded=Examples/CoffeeMachine/LVGL/Pictures
pictures=build/lvgl-pictures
source=build/lvgl-source

# An archive of the sources of LVGL: the one that DIALOGMANAGER_LVGL_ARCHIVE names, or one beside the checkout or, for
# a worktree, beside the main one.
find_archive()
{
    local folder archive
    [ -z "${DIALOGMANAGER_LVGL_ARCHIVE:-}" ] || { printf '%s\n' "$DIALOGMANAGER_LVGL_ARCHIVE"; return; }
    for folder in .. "$(dirname "$(git rev-parse --path-format=absolute --git-common-dir 2>/dev/null || pwd)")/.."; do
        for archive in "$folder"/shared/lvgl/lvgl-*.tar.xz; do
            [ ! -e "$archive" ] || { printf '%s\n' "$archive"; return; }
        done
    done
}

only_option --update "$@"
options=()
archive=$(find_archive)
if [ -n "${DIALOGMANAGER_LVGL_SOURCE:-}" ]; then
    options=("-DDIALOGMANAGER_LVGL_SOURCE=$DIALOGMANAGER_LVGL_SOURCE")
elif [ -n "$archive" ]; then
    if [ ! -e "$source/lvgl.h" ] || [ "$archive" -nt "$source" ]; then
        rm -rf "$source"
        mkdir -p "$source"
        tar -xf "$archive" -C "$source" --strip-components=1 || fail "cannot unpack $archive"
        touch "$source"
    fi
    printf 'LVGL: the archive %s\n' "$(basename "$archive")"
    options=("-DDIALOGMANAGER_LVGL_SOURCE=$PWD/$source")
fi
mkdir -p build/logs
# Configured here as well, so that what is missing is said in one line.
watched configure-lvgl-source build/logs/configure-lvgl-source.log cmake --preset lvgl "${options[@]}" || {
    tail -n 20 build/logs/configure-lvgl-source.log >&2
    fail 'there is no LVGL. Set DIALOGMANAGER_LVGL_SOURCE to its sources, DIALOGMANAGER_LVGL_ARCHIVE to an archive of them, install it, or connect to its repository'
}
grep '^-- LVGL:' build/logs/configure-lvgl-source.log | sed 's/^-- //; s#: the sources in .*/build/#: the sources in build/#'
build lvgl LVGLTests LVGLFromC CoffeeMachineLVGL

printf 'Testing the adapter, with 100,000 random switches and popups\n'
quietly lvgl-tests env LVGL_RANDOM_TURNS=100000 build/lvgl/Tests/LVGL/LVGLTests --gtest_brief=1
quietly lvgl-from-c build/lvgl/Tests/LVGL/LVGLFromC
cat build/logs/lvgl-from-c.log

program=build/lvgl/Examples/CoffeeMachine/CoffeeMachineLVGL
rm -rf "$pictures"
mkdir -p "$pictures"
"$program" Examples/CoffeeMachine/Tour.scenario "$pictures" >build/logs/lvgl-tour.txt
diff -u Examples/CoffeeMachine/Tour.golden build/logs/lvgl-tour.txt ||
    fail 'the tour on LVGL differs from the recorded one; see the lines above'
printf 'The tour with touches and keys of LVGL gives the recorded transcript\n'

"$program" Examples/CoffeeMachine/LVGL/Pictures.scenario "$pictures" >build/logs/lvgl-pictures.txt
if [ "${1:-}" = --update ]; then
    rm -rf "$recorded"
    cp -r "$pictures" "$recorded"
fi
python3 -B Commands/Support/ComparePictures.py "$recorded" "$pictures" >build/logs/lvgl-compared.txt || {
    cat build/logs/lvgl-compared.txt >&2
    fail "pictures differ; those drawn now are in $pictures. Look at them before ./run lvgl --update"
}
report_figure "$(tail -n 1 build/logs/lvgl-compared.txt)"
