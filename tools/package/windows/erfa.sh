# SPDX-License-Identifier: MIT
# ERFA for Windows, static, from the source package of the ERFA that this machine builds with. Made
# once (250 small files) and kept in the cache.

erfa_compiler="x86_64-w64-mingw32-gcc-posix -O2 -ffp-contract=off"

# Its folder; asked for when the package is there.
erfa_folder() {
    echo "$cache/erfa-windows/$(dpkg-query -W -f '${source:Version}' liberfa-dev)"
}

# What ERFA's bytes come from beside its source.
erfa_recipe() {
    echo "$erfa_compiler"
    x86_64-w64-mingw32-gcc-posix --version
}

build_erfa() {
    local erfa source objects
    erfa=$(erfa_folder)
    source=$erfa/source/erfa/src
    objects=$erfa/objects
    [ "$(cat "$erfa/complete" 2>/dev/null)" != "$(erfa_recipe)" ] || return 0
    say "Building ERFA for Windows"
    rm -rf "$erfa/complete" "$erfa/installed" "$objects"
    [ -d "$source" ] || fetch_debian_source "erfa=${erfa##*/}" "$erfa/source"
    mkdir -p "$erfa/installed"/{include,lib} "$objects"
    # Its tests stay out, and so does what tells the version that only its own build knows.
    find "$source" -name '*.c' ! -name 't_erfa*' ! -name 'erfaversion.c' -print0 |
        (cd "$objects" && xargs -0 -P "$(nproc)" -n 32 $erfa_compiler -c) ||
        fail "ERFA could not be built for Windows"
    (cd "$objects" && printf '%s\n' ./*.o | sort | xargs x86_64-w64-mingw32-ar rcsD "$erfa/installed/lib/liberfa.a")
    cp "$source"/*.h "$erfa/installed/include/"
    rm -rf "$objects"
    erfa_recipe >"$erfa/complete"
}
