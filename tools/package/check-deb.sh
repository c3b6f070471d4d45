# SPDX-License-Identifier: MIT
# Proves the Debian package: lintian, a fresh system, an ordinary user, a removal without a trace.

. tools/package/deb.sh
. tools/package/clean-debian.sh
. tools/package/reference.sh
trap drop_debian EXIT

check_package() {
    fresh_debian
    say "Checking $(basename "$deb")"
    lintian --fail-on error --allow-root "$deb"
    desktop-file-validate "$packages/deb/usr/share/applications/korvel2000.desktop"
    # A warning wants an address of the authors on the network in the name, and there is none.
    ! appstreamcli validate --no-net "$packages/deb/usr/share/metainfo/korvel2000.metainfo.xml" |
        grep '^E:' || fail "the AppStream metadata are wrong"

    cp "$deb" "$clean_root/tmp/korvel2000.deb"
    in_root apt-get -q update >/dev/null
    files_of_root >"$packages/files-before"
    in_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends \
        install /tmp/korvel2000.deb >"$packages/install.log"
    open_debian
    local records=$clean_root/officer/.local/share/korvel2000
    FIRST_START=1 installed work-a-case deb
    same_records "$records"
    saved_paper "$clean_root/officer"
    same_page as_officer almanac
    take_earlier_records
    close_debian
    in_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --autoremove purge korvel2000 >"$packages/remove.log"
    [ -e "$records/KV_CDDR.ini" ] || fail "the officer's records went with the package"
    nothing_left
}

# installed SCRIPT PICTURE [ARGUMENT]  Works the installed program by the script, as the ordinary user.
installed() {
    "tools/package/$1" "$packages/$2.png" "${@:3}" \
        bash -c '. tools/package/common.sh; . tools/package/clean-debian.sh; as_officer korvel2000'
}

# take_earlier_records  The records as they would lie in a portable folder: asked once, taken over.
take_earlier_records() {
    local earlier=$clean_root/officer/"stick 海図"
    as_root mv "$records" "$earlier"
    installed take-records deb-earlier "/officer/stick 海図"
    cmp "$earlier/KV_CDDR.ini" "$records/KV_CDDR.ini" || fail "the earlier records were not taken over"
    installed take-records deb-later ""
    as_root rm -r "$earlier"
    say "The records of an earlier folder were taken over, and it was asked once"
}

# nothing_left  Of the package and of what came with it nothing has stayed. Under /var lie the lists
# and logs of the system's own programs for packages.
nothing_left() {
    local left
    left=$({ files_of_root | comm -13 "$packages/files-before" - | grep -vE '^\./(officer|tmp|proc|run|dev|var)/'
        files_of_root | grep '^\./var/.*korvel2000'; } || true)
    [ -z "$left" ] || fail "the package left files behind: $left"
    say "The removal left the officer's records alone"
}

in_root() { as_root chroot "$clean_root" "$@"; }
files_of_root() { (cd "$clean_root" && as_root find . -xdev | sort); }
