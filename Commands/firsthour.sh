# Group: all
# Help: | seconds and lines of a first ./run demo and ./run test, in an empty Debian
# Needs: debootstrap git
# Figure: firsthour
source Commands/Support/Command.bash

# Runs a command in the empty Debian and prints its seconds and lines. It sees none of this shell's variables except
# those of a proxy: <command>
measure()
{
    local log=build/logs/firsthour-$1.log
    SECONDS=0
    watched "./run $1" "$log" env -i "${variables[@]}" \
        chroot "$debian" "/root/checkout/run" "$1" || {
        tail -n 60 "$log" >&2
        fail "./run $1 fails in an empty Debian; the whole output is in $log"
    }
    printf './run %s %d s and %d lines' "$1" "$SECONDS" "$(wc -l <"$log")"
}

[ "$(id -u)" -eq 0 ] || fail 'this command creates a root directory, which only root can do'
debian=$PWD/build/firsthour
variables=("PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin" "HOME=/root")
while IFS= read -r variable; do
    variables+=("$variable")
done < <(env | grep -i -E '^(https?|no)_proxy=' || true)
# Its processes need /proc, which is unmounted however this ends. It only has the devices that debootstrap makes, never
# this machine's, so that it can safely be deleted.
remove_mount()
{
    if mountpoint -q "$debian/proc"; then
        umount "$debian/proc"
    fi
}
trap remove_mount EXIT
remove_mount
rm -rf --one-file-system "$debian"
quietly debootstrap debootstrap --variant=minbase bookworm "$debian"
mount -t proc proc "$debian/proc"
cp /etc/resolv.conf "$debian/etc/resolv.conf"
quietly firsthour-clone git clone --quiet --no-hardlinks . "$debian/root/checkout"

demo=$(measure demo)
tests=$(measure test)
report_figure "in an empty Debian on $(nproc) processors, packages and all: $demo; $tests"
