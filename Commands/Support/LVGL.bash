# SPDX-License-Identifier: MIT
# Where LVGL comes from, for the commands that build with it.

lvgl_source=build/lvgl-source

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

# Configures builds with LVGL, and says which one they take: <preset ...>
configure_lvgl()
{
    local options=() archive preset log
    archive=$(find_archive)
    if [ -n "${DIALOGMANAGER_LVGL_SOURCE:-}" ]; then
        options=("-DDIALOGMANAGER_LVGL_SOURCE=$DIALOGMANAGER_LVGL_SOURCE")
    elif [ -n "$archive" ]; then
        if [ ! -e "$lvgl_source/lvgl.h" ] || [ "$archive" -nt "$lvgl_source" ]; then
            rm -rf "$lvgl_source"
            mkdir -p "$lvgl_source"
            tar -xf "$archive" -C "$lvgl_source" --strip-components=1 || fail "cannot unpack $archive"
            touch "$lvgl_source"
        fi
        printf 'LVGL: the archive %s\n' "$(basename "$archive")"
        options=("-DDIALOGMANAGER_LVGL_SOURCE=$PWD/$lvgl_source")
    fi
    mkdir -p build/logs
    for preset in "$@"; do
        # Configured before it is built, so that what is missing is said in one line.
        log=build/logs/configure-$preset-source.log
        watched "configure-$preset-source" "$log" cmake --preset "$preset" "${options[@]}" || {
            tail -n 20 "$log" >&2
            fail 'there is no LVGL. Set DIALOGMANAGER_LVGL_SOURCE to its sources, DIALOGMANAGER_LVGL_ARCHIVE to an archive of them, install it, or connect to its repository'
        }
        grep '^-- LVGL:' "$log" | sed 's/^-- //; s#: the sources in .*/build/#: the sources in build/#'
    done
}
