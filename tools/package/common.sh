# SPDX-License-Identifier: MIT
# What the packages share. Sourced by ./package, which stands at the top of the source tree.

top=$PWD
. tools/setup/packages.sh

version=$(sed -n 's/^project(KORVEL2000 VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
packages=$top/build/packages
# What is made once and kept: a clean Debian.
cache=${KORVEL_PACKAGE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/korvel2000-package}
mkdir -p "$packages" "$cache"

# The same source gives the same bytes: every date in a package is that of the last commit, and no
# path of this machine gets into one.
# An archive of the source bears that date on its files.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CMakeLists.txt)}
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
release_date=$(date -d "@$SOURCE_DATE_EPOCH" +%F)
# In quotes that the build's shell takes off: a checkout may lie in a path with blanks. Single ones
# would be lost on the way to the compiler for Windows.
path_flags="\"-ffile-prefix-map=$top=.\""
umask 022

say() { echo "== $*"; }
fail() {
    echo "package: $*" >&2
    exit 1
}

# as_root COMMAND..  Runs it as root, by sudo where need be.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Where this machine gets Debian from: lines of address, release and component.
debian_mirrors() {
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u
}

# add_common_licences FOLDER  The licences that the copyright files in a folder only refer to.
add_common_licences() {
    local name
    grep -rhoE '/usr/share/common-licenses/[A-Z][A-Za-z0-9.-]*[A-Za-z0-9]' "$1" | sort -u | while read -r name; do
        [ ! -e "$name" ] || cp -L "$name" "$1"
    done
}

# add_data FOLDER  What lies beside the program. The tables of the sky are compiled in and stay out.
add_data() {
    cp -R data/. docs/manual "$1"
    rm -r "$1/sky"
}

# build_linux [TARGET..]  Builds the program for Debian, the same one for the package and the portable
# folder, and what else is named.
linux_build=$top/build/packages/linux
build_linux() {
    # shellcheck disable=SC2086
    install_missing $build_packages $package_packages
    say "Building the release for Linux"
    # The portable folder has to stay below 60 MB: each command holds what it calls and no more, and
    # functions stand side by side.
    cmake -B "$linux_build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
        -DCMAKE_CXX_FLAGS="$path_flags $(dpkg-buildflags --get CPPFLAGS) -fstack-protector-strong -ffunction-sections -fdata-sections -fno-align-functions -fno-align-loops -fno-align-jumps -fno-align-labels" \
        -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS) -Wl,-z,now -Wl,--gc-sections -Wl,-z,pack-relative-relocs" \
        -DKORVEL_RELEASE_DATE="$release_date" >/dev/null
    cmake --build "$linux_build" --target korvel2000 tidedata almanac_command passage "$@"
}
