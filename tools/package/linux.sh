# SPDX-License-Identifier: MIT
# The portable folder with its libraries: build/packages/korvel2000-VERSION-linux.tar.xz

# What is asked of the system below is there only once these are.
# shellcheck disable=SC2086
install_missing $build_packages $package_packages

folder_name=korvel2000-$version-linux
folder=$packages/$folder_name
system_libraries=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
toolkit_plugins=$system_libraries/qt6/plugins

# X11, Wayland and no display; typing with dead keys and by an input method.
plugins="platforms/libqxcb.so platforms/libqwayland-generic.so platforms/libqoffscreen.so
    platforms/libqminimal.so wayland-shell-integration/libxdg-shell.so
    wayland-decoration-client/libbradient.so
    platforminputcontexts/libcomposeplatforminputcontextplugin.so
    platforminputcontexts/libibusplatforminputcontextplugin.so"

make_package() {
    build_linux
    say "Packing $folder_name.tar.xz"
    rm -rf "$folder"
    mkdir -p "$folder"/{lib,plugins,fonts,licences}
    add_program
    add_libraries
    add_fonts
    add_licences
    tar -C "$packages" --sort=name --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 \
        --numeric-owner -c "$folder_name" | xz -9 -T1 >"$folder.tar.xz"
    local megabytes=$(($(du -s --apparent-size -B1 "$folder" | cut -f1) / 1000000))
    [ "$megabytes" -le 60 ] || fail "the portable folder has $megabytes MB, more than 60"
}

add_program() {
    add_data "$folder"
    cp LICENSE "$folder"
    cp LICENSE "$folder/licences/KORVEL2000"
    sed "s/@version@/$version/" tools/package/linux/README.in >"$folder/README"
    install -s "$linux_build/korvel2000/korvel2000" "$linux_build/tools/tidedata/tidedata" \
        "$linux_build/tools/almanac/almanac" "$linux_build/tools/passage/passage" "$folder"
    install tools/extend-tides "$folder"
    # The older kind of run path, which holds for the libraries and plug-ins behind the program too:
    # they stay the bytes that Debian built and can be exchanged for others.
    patchelf --force-rpath --set-rpath '$ORIGIN/lib' "$folder/korvel2000" "$folder/almanac" "$folder/passage"
    local plugin
    for plugin in $plugins; do
        install -D -m 644 "$toolkit_plugins/$plugin" "$folder/plugins/$plugin"
    done
    printf '[Paths]\nPrefix=.\nPlugins=plugins\n' >"$folder/qt.conf"
}

# libraries_of FILE..  Every shared library that the files need, directly or not, but those of the
# C library: they belong to the kernel's side of the system and must be its own.
libraries_of() {
    ldd "$@" | sed -n 's/.* => \(\/.*\) (0x[0-9a-f]*)$/\1/p' | sort -u |
        grep -vE '/(libc|libm|libdl|libpthread|librt|libresolv|ld-linux[^/]*)\.so'
}

add_libraries() {
    local library files libraries
    mapfile -d '' files < <(find "$folder/plugins" -name '*.so' -print0)
    libraries=$(libraries_of "$folder/korvel2000" "$folder/almanac" "$folder/passage" "${files[@]}")
    while read -r library; do
        # What was found in the folder's own lib/ does not count as the system's.
        cp -L "$library" "$folder/lib/"
    done <<<"$libraries"
    shorten_unicode_data
    chmod 644 "$folder"/lib/*
}

# The Unicode library's data are half of everything, in two hundred languages. The texts here are
# English with Japanese terms: names of currencies, countries, units and other languages stay out, and
# so do the words of languages without blanks, for the toolkit breaks lines by tables of its own.
shorten_unicode_data() {
    local library work number
    library=$(echo "$folder"/lib/libicudata.so.*)
    number=${library##*.so.}
    work=$(mktemp -d)
    objcopy -O binary --only-section=.rodata "$library" "$work/icudt${number}l.dat"
    # icupkg takes nothing but .txt for a list.
    icupkg -l "$work/icudt${number}l.dat" |
        grep -E '^(brkitr|curr|lang|region|unit|rbnf|translit|zone)/|\.(cnv|spp|cfu)$|^unames|^(coll/)?[a-z]{2,3}(_[A-Za-z0-9_]*)?\.res$' |
        grep -vE '^(coll/)?(en|ja)(_|\.res)' >"$work/left-out.txt"
    # The file's name is part of every name in it, and the library looks for that one.
    mkdir "$work/short"
    icupkg -r "$work/left-out.txt" "$work/icudt${number}l.dat" "$work/short/icudt${number}l.dat"
    cat >"$work/data.s" <<END
.section .rodata
.balign 16
.globl icudt${number}_dat
.type icudt${number}_dat, %object
icudt${number}_dat: .incbin "$work/short/icudt${number}l.dat"
.size icudt${number}_dat, . - icudt${number}_dat
.section .note.GNU-stack,"",%progbits
END
    gcc -shared -nostdlib -Wl,-soname,"libicudata.so.$number" -Wl,--build-id=none -s \
        -o "$library" "$work/data.s"
    rm -rf "$work"
    ! LD_LIBRARY_PATH=$folder/lib icuinfo 2>&1 | grep -v U_ZERO_ERROR | grep "U_.*_ERROR" ||
        fail "the Unicode library does not find its data"
}

# DejaVu for the windows, a Gothic for Japanese terms and full-width figures; the system's fonts
# come first where it has any.
add_fonts() {
    cp /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf \
        /usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf \
        /usr/share/fonts/truetype/vlgothic/VL-Gothic-Regular.ttf \
        tools/package/linux/fonts.conf "$folder/fonts/"
    chmod 644 "$folder"/fonts/*
}

# add_licences  The terms of every Debian package that a file of the folder comes from, once where
# packages of one source have the same.
add_licences() {
    local file package terms
    for file in "$folder"/lib/* $plugins; do
        case $file in /*) file=$system_libraries/${file##*/} ;; *) file=$toolkit_plugins/$file ;; esac
        dpkg -S "$file" 2>/dev/null || dpkg -S "$(realpath "$file")" 2>/dev/null ||
            dpkg -S "/lib/${file#/usr/lib/}"
    done | sed 's/:.*//' | sort -u >"$folder/licences/packages"
    printf '%s\n' fonts-vlgothic fonts-dejavu-core >>"$folder/licences/packages"
    while read -r package; do
        terms=$(same_terms "/usr/share/doc/$package/copyright")
        [ -n "$terms" ] || cp -L "/usr/share/doc/$package/copyright" "$folder/licences/$package"
        dpkg-query -W -f "\${Package} \${Version} (source \${source:Package} \${source:Version})${terms:+, terms: $terms}\n" \
            "$package" | head -1
    done <"$folder/licences/packages" >"$folder/licences/versions"
    mv "$folder/licences/versions" "$folder/licences/packages"
    add_common_licences "$folder/licences"
    cp tools/package/linux/libraries.txt "$folder/licences/README"
}

# same_terms FILE  Name of the file of terms that holds the same; nothing where there is none.
same_terms() {
    local kept
    for kept in "$folder"/licences/*; do
        ! cmp -s "$1" "$kept" || { echo "${kept##*/}" && return; }
    done
}
