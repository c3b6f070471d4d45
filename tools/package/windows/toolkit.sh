# SPDX-License-Identifier: MIT
# The toolkit for Windows, static, from the source package of the toolkit that this machine builds
# with. Made once (1,000 objects) and kept in the cache.

toolkit_version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
toolkit=$cache/toolkit-windows/$toolkit_version

# Nothing that the program does not use. Two more stay out because the source package lacks what
# they need: the header for drawing tablets and with it the direct2d plugin.
toolkit_options=(
    -DFEATURE_{network,sql,xml,dbus,opengl,dynamicgl,concurrent,testlib}=OFF
    -DFEATURE_{tabletevent,direct2d1_1,vulkan}=OFF
    -DFEATURE_{pkg_config,glib,icu,zstd,jpeg,gif}=OFF
    -DFEATURE_system_{zlib,png,freetype,harfbuzz,pcre2,doubleconversion}=OFF
    -DQT_BUILD_{EXAMPLES,TESTS}=OFF
    # It looks for its parts from the program's folder on: no path of this machine is in it.
    -DFEATURE_relocatable=ON
)

# What the toolkit's bytes come from beside its source.
toolkit_recipe() {
    printf '%s\n' "${toolkit_options[@]}"
    cat tools/package/windows/mingw.cmake
    x86_64-w64-mingw32-g++-posix --version
}

build_toolkit() {
    if [ -e "$toolkit/complete" ]; then
        [ "$(cat "$toolkit/complete")" != "$(toolkit_recipe)" ] || return 0
        say "The toolkit for Windows in the cache was made otherwise"
    fi
    local source=$toolkit/source/qt6-base build=$toolkit/build
    rm -rf "$toolkit/complete" "$toolkit/installed"
    say "Building the toolkit for Windows: once, about half an hour on two cores"
    [ -d "$source" ] || fetch_debian_source "qt6-base=$toolkit_version" "$toolkit/source"
    # A build that was stopped goes on where it was, from whatever checkout.
    cp tools/package/windows/mingw.cmake "$toolkit/mingw.cmake"
    local flags="\"-ffile-prefix-map=$toolkit=toolkit\""
    SOURCE_DATE_EPOCH=0 cmake -S "$source" -B "$build" -G Ninja \
        -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF \
        -DCMAKE_TOOLCHAIN_FILE="$toolkit/mingw.cmake" \
        -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" \
        -DCMAKE_INSTALL_PREFIX="$toolkit/installed" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -print-multiarch)/cmake" \
        "${toolkit_options[@]}" >"$toolkit/configure.log" 2>&1 ||
        fail "the toolkit could not be configured, see $toolkit/configure.log"
    SOURCE_DATE_EPOCH=0 cmake --build "$build" >"$toolkit/build.log" 2>&1 ||
        fail "the toolkit could not be built, see $toolkit/build.log"
    cmake --install "$build" >"$toolkit/install.log"
    rm -rf "$build"
    toolkit_recipe >"$toolkit/complete"
}
