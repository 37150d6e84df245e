# Group: all
# Help: | seconds and lines of a first ./run demo and ./run test, in an empty Debian
# Needs: debootstrap git
# Figure: firsthour
source Commands/Support/Command.bash

# Runs a command in the empty Debian and prints its seconds and lines: <command>
measure()
{
    local log=build/logs/firsthour-$1.log
    SECONDS=0
    watched "./run $1" "$log" chroot "$debian" "/root/checkout/run" "$1" || {
        tail -n 60 "$log" >&2
        fail "./run $1 fails in an empty Debian; the whole output is in $log"
    }
    printf './run %s %d s and %d lines' "$1" "$SECONDS" "$(wc -l <"$log")"
}

[ "$(id -u)" -eq 0 ] || fail 'this makes a root directory of its own, which only root can'
debian=$PWD/build/firsthour
# Its processes and temporary files need these, which are taken away again however this ends.
remove_mounts()
{
    local mount
    for mount in proc dev; do
        if mountpoint -q "$debian/$mount"; then
            umount "$debian/$mount"
        fi
    done
}
trap remove_mounts EXIT
remove_mounts
rm -rf --one-file-system "$debian"
quietly debootstrap debootstrap --variant=minbase bookworm "$debian"
mount -t proc proc "$debian/proc"
mount --bind /dev "$debian/dev"
cp /etc/resolv.conf "$debian/etc/resolv.conf"
quietly firsthour-clone git clone --quiet --no-hardlinks . "$debian/root/checkout"

demo=$(measure demo)
tests=$(measure test)
report_figure "in an empty Debian on $(nproc) processors, packages and all: $demo; $tests"
