# SPDX-License-Identifier: MIT
# A Debian of its own with nothing but its essential packages, below build/.

# Makes it; only root can. However the command ends, its /proc is taken away again. Its devices are those that
# debootstrap makes, never this machine's, so what is left may be removed: <directory>
make_bare_debian()
{
    [ "$(id -u)" -eq 0 ] || fail 'this makes a root directory of its own, which only root can'
    debian=$1
    trap remove_proc EXIT
    remove_proc
    rm -rf --one-file-system "$debian"
    quietly debootstrap debootstrap --variant=minbase bookworm "$debian"
    mount -t proc proc "$debian/proc"
    cp /etc/resolv.conf "$debian/etc/resolv.conf"
}

# What runs in it needs /proc.
remove_proc()
{
    if mountpoint -q "$debian/proc"; then
        umount "$debian/proc"
    fi
}

# Runs a command in it, with nothing of this shell's variables but those of a proxy: <command> ...
in_debian()
{
    local variable
    local -a variables=("PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin" "HOME=/root")
    while IFS= read -r variable; do
        variables+=("$variable")
    done < <(env | grep -i -E '^(https?|no)_proxy=' || true)
    env -i "${variables[@]}" chroot "$debian" "$@"
}
