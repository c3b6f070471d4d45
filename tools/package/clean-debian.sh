# SPDX-License-Identifier: MIT
# A clean minimal Debian, kept in the cache and unpacked afresh for every proof, and an ordinary
# user in it. Sourced by the proofs.

clean_root=$packages/clean-debian
# What makes it takes no blank in its path; a checkout may have one.
case $clean_root in
*[[:space:]]*) clean_root=/var/tmp/korvel2000-clean-debian.$(cksum <<<"$top" | cut -d ' ' -f 1) ;;
esac

# fresh_debian  Leaves a fresh minimal system in $clean_root, of the release of this machine.
fresh_debian() {
    # shellcheck disable=SC2086
    install_missing $package_check_packages $display_packages
    local release mirror kept=$cache/clean-debian.tar
    release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
    mirror=$(debian_mirrors | awk -v release="$release" '$2 == release {print $1; exit}')
    drop_debian
    if [ ! -e "$kept" ]; then
        say "Making a minimal Debian, once"
        as_root debootstrap --variant=minbase "$release" "$clean_root" "$mirror" >"$packages/debootstrap.log"
        as_root tar -C "$clean_root" -cf "$kept" .
    else
        mkdir -p "$clean_root"
        as_root tar -C "$clean_root" -xf "$kept"
    fi
    as_root cp /etc/resolv.conf "$clean_root/etc/resolv.conf"
    as_root chroot "$clean_root" useradd --create-home --home-dir /officer officer
    as_root mkdir -p "$clean_root/tmp/.X11-unix"
}

close_debian() {
    local mounted
    for mounted in tmp/.X11-unix proc; do
        ! mountpoint -q "$clean_root/$mounted" || as_root umount "$clean_root/$mounted"
    done
}

drop_debian() {
    close_debian
    as_root rm -rf --one-file-system "$clean_root"
}

# open_debian  Lets programs in it reach a virtual display of this machine.
open_debian() {
    mkdir -p /tmp/.X11-unix
    as_root mount --bind /tmp/.X11-unix "$clean_root/tmp/.X11-unix"
    as_root mount -t proc proc "$clean_root/proc"
}

# as_officer COMMAND..  Runs it there as the ordinary user.
as_officer() {
    as_root chroot --userspec=officer:officer "$clean_root" \
        env -i HOME=/officer PATH=/usr/bin:/bin LANG=C.UTF-8 DISPLAY="${DISPLAY:-}" "$@"
}
