# SPDX-License-Identifier: MIT
# The folder for Windows: build/packages/korvel2000-VERSION-windows.zip

# What is asked of the system below is there only once these are.
# shellcheck disable=SC2086
install_missing $build_packages $windows_packages

. tools/package/windows/fetch.sh
. tools/package/windows/toolkit.sh
. tools/package/windows/erfa.sh

folder_name=korvel2000-$version-windows
folder=$packages/$folder_name
windows_build=$packages/windows
test_library=$windows_build/googletest

make_package() {
    build_windows korvel2000 almanac_command passage
    say "Packing $folder_name.zip"
    rm -rf "$folder" "$folder.zip"
    mkdir -p "$folder/licences"
    add_data "$folder"
    local program
    for program in korvel2000 almanac passage; do
        x86_64-w64-mingw32-strip -o "$folder/$program.exe" "$windows_build/korvel2000/$program.exe"
    done
    cp LICENSE "$folder"
    # Windows' own editor wants its line ends.
    sed "s/@version@/$version/; s/$/\r/" tools/package/windows/README.in >"$folder/README.txt"
    add_licences
    find "$folder" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
    (cd "$packages" && find "$folder_name" | sort | zip -q -9 -X -@ "$folder.zip")
}

# build_windows TARGET..  Builds parts of the tree with the cross compiler and the static toolkit.
build_windows() {
    build_toolkit
    build_erfa
    local erfa
    erfa=$(erfa_folder)
    say "Building for Windows: $*"
    configure_for_windows . "$windows_build" -DCMAKE_PREFIX_PATH="$toolkit/installed;$test_library" \
        -DERFA_INCLUDE="$erfa/installed/include" -DERFA_LIBRARY="$erfa/installed/lib/liberfa.a" \
        -DQT_HOST_PATH=/usr -DCMAKE_CXX_FLAGS="$path_flags" -DKORVEL_RELEASE_DATE="$release_date"
    cmake --build "$windows_build" --target "$@"
}

configure_for_windows() {
    local source=$1 build=$2
    shift 2
    cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$top/tools/package/windows/mingw.cmake" "$@" >/dev/null
}

# add_licences  The terms of everything that is in the program, and what the toolkit's terms ask
# for: the source of the program and the way to link it with another toolkit.
add_licences() {
    local package
    cp LICENSE "$folder/licences/KORVEL2000"
    for package in qt6-base-dev liberfa-dev gcc-mingw-w64-base mingw-w64-x86-64-dev; do
        cp -L "/usr/share/doc/$package/copyright" "$folder/licences/$package"
        dpkg-query -W -f '${Package} ${Version} (source ${source:Package} ${source:Version})\n' "$package"
    done >"$folder/licences/packages"
    add_common_licences "$folder/licences"
    cp tools/package/windows/libraries.txt "$folder/licences/README"
    archive_source "$folder/licences/korvel2000-$version-source.tar.xz"
}

# archive_source FILE  The tree as it was built, without what was built.
archive_source() {
    { git ls-files -z 2>/dev/null || find . -path ./build -prune -o -type f -printf '%P\0'; } |
        tar --null -T - --sort=name --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 --numeric-owner \
            --mode=u=rwX,go=rX --transform "s,^,korvel2000-$version/," -c | xz -9 -T1 >"$1"
}
