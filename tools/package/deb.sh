# SPDX-License-Identifier: MIT
# The package for Debian: build/packages/korvel2000_VERSION_ARCHITECTURE.deb

debian=tools/package/debian
architecture=$(dpkg --print-architecture)
deb=$packages/korvel2000_${version}_$architecture.deb

make_package() {
    build_linux
    say "Packing $(basename "$deb")"
    local root=$packages/deb
    rm -rf "$root"
    DESTDIR=$root cmake --install "$linux_build" --strip >/dev/null
    add_documents "$root/usr/share"
    add_control "$root"
    dpkg-deb --root-owner-group -Zxz --build "$root" "$deb" >/dev/null
}

# add_documents SHARE  What Debian wants beside the program: copyright, lists of changes.
add_documents() {
    local share=$1 day
    day=$(date -R -d "@$SOURCE_DATE_EPOCH")
    install -D -m 644 "$debian/copyright" "$share/doc/korvel2000/copyright"
    gzip -9n "$share"/man/man1/*.1
    gzip -9nc CHANGELOG.md >"$share/doc/korvel2000/changelog.gz"
    install -D -m 644 "$debian/lintian-overrides" "$share/lintian/overrides/korvel2000"
    sed "s/@version@/$version/; s/@date@/$day/" "$debian/changelog.in" |
        gzip -9n >"$share/doc/korvel2000/changelog.Debian.gz"
}

# add_control ROOT  The control files; what the programs depend on is computed from them.
add_control() {
    local root=$1 libraries size
    mkdir "$root/DEBIAN"
    # dpkg-shlibdeps wants to stand beside a debian/control.
    libraries=$(cd "$(dirname "$debian")" && dpkg-shlibdeps -O "$root"/usr/bin/* |
        sed -n 's/^shlibs:Depends=//p')
    [ -n "$libraries" ] || fail "the dependencies of the program could not be computed"
    size=$(du -k --apparent-size -s "$root/usr" | cut -f1)
    # From the paragraph of the binary package on: the source's own paragraph stays out.
    sed -n "/^Package:/,\$p" "$debian/control" |
        sed "s/@version@/$version/; s/@architecture@/$architecture/; s/@size@/$size/
             s/\${shlibs:Depends}/$libraries/" >"$root/DEBIAN/control"
    (cd "$root" && find usr -type f | sort | xargs -d '\n' md5sum >DEBIAN/md5sums)
}
