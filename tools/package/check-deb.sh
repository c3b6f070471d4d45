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
    ! appstreamcli validate --no-net "$packages/deb/usr/share/metainfo/korvel2000.metainfo.xml" |
        grep '^E:' || fail "the AppStream metadata are wrong"

    cp "$deb" "$clean_root/tmp/korvel2000.deb"
    in_root apt-get -q update >/dev/null
    files_of_root >"$packages/files-before"
    in_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends \
        install /tmp/korvel2000.deb >"$packages/install.log"
    open_debian
    FIRST_START=1 tools/package/work-a-case "$packages/deb.png" \
        bash -c '. tools/package/common.sh; . tools/package/clean-debian.sh; as_officer korvel2000'
    same_records "$clean_root/officer/.local/share/korvel2000"
    close_debian
    in_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --autoremove purge korvel2000 >"$packages/remove.log"
    say "What the removal left: the officer's records alone"
    files_of_root | grep korvel2000 || true
    files_of_root | grep korvel2000 | grep -v '^\./officer/\|^\./tmp/korvel2000.deb$' &&
        fail "the package left files behind"
    [ -e "$clean_root/officer/.local/share/korvel2000/KV_CDDR.ini" ] ||
        fail "the officer's records went with the package"
}

in_root() { as_root chroot "$clean_root" "$@"; }
files_of_root() { (cd "$clean_root" && as_root find . -xdev | sort); }
