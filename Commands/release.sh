# SPDX-License-Identifier: MIT
# Group: check
# Help: | write the archive of this version, what is in it (SPDX) and checksums to build/archive; twice, alike
# Needs: @build git pkg-config python3
# Gate: 066
source Commands/Support/Command.bash

# Writes a release of sources: <sources> <folder>
write_release()
{
    python3 -B "$1/Commands/Support/Release.py" "$1" "$2" "$changed" "${needed[@]}" <build/archive-files ||
        fail 'the release cannot be written'
}

# What the libraries need is what they tell pkg-config.
quietly configure-release cmake --preset release
needed=()
while read -r module; do
    needed+=("$module=$(pkg-config --modversion "$module")")
done < <(sed -n 's/^Requires\(\.private\)\?: //p' build/release/*.pc | tr ',' '\n' | awk 'NF && !/dialogmanager/ {print $1}' | sort -u)

rm -rf build/archive build/archive-copy build/archive-again
git ls-files -z >build/archive-files
changed=$(git log -1 --format=%ct)
write_release . build/archive
# The second one is of a copy, with other times and permissions, by a user of another place.
mkdir -p build/archive-copy
(umask 077 && tar -c --null --files-from build/archive-files | tar -x --touch -C build/archive-copy --no-same-permissions)
(export LC_ALL=C TZ=Asia/Tokyo && write_release build/archive-copy build/archive-again)
diff -r build/archive build/archive-again || fail 'two archives of the same sources differ'
(cd build/archive && sha256sum --quiet --check SHA256SUMS)

# What is in the archive is a whole project.
mkdir -p build/archive-again/unpacked
tar -x -f build/archive/*.tar.gz -C build/archive-again/unpacked --strip-components 1
quietly release-configure cmake -S build/archive-again/unpacked -B build/archive-again/build -G Ninja -DCMAKE_CXX_COMPILER=g++
[ -z "$(git status --porcelain --untracked-files=no)" ] || printf 'Not everything in it is committed\n'
printf 'build/archive has %s and what belongs to it, the same bytes each time\n' "$(basename build/archive/*.tar.gz)"
