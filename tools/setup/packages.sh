# SPDX-License-Identifier: MIT
# The Debian packages that building, running and testing need. Sourced by ./run,
# ./test and ./package.

build_packages="g++ cmake ninja-build qt6-base-dev libxcb1-dev nlohmann-json3-dev
    liberfa-dev"
# Fonts with Japanese and full-width glyphs, and the helpers that play the alarm's tone.
run_packages="fonts-noto-core fonts-vlgothic alsa-utils"
# A virtual display for machines that have none, and what takes the picture of the window.
display_packages="xvfb xauth xdotool x11-utils imagemagick"
# poppler-utils reads the text of printed pages, libxml2-utils holds written routes against a schema.
test_packages="libgtest-dev libgmock-dev poppler-utils libxml2-utils"
# What the tests are followed by, and the compiler for Windows that one of them uses.
ci_packages="clang-format-14 clang-tidy-14 g++-mingw-w64-x86-64-posix"
# What tests/planted-faults --sweep reads the code with.
sweep_packages="clang-tools-14"
# What makes the packages, and what proves them in clean places.
package_packages="dpkg-dev qt6-wayland fonts-vlgothic fonts-dejavu-core patchelf icu-devtools
    xz-utils"
windows_packages="g++-mingw-w64-x86-64-posix icoutils dpkg-dev zip"
windows_check_packages="googletest wine64 alsa-utils libasound2 unzip openbox
    poppler-utils fonts-vlgothic fonts-dejavu-core"
package_check_packages="debootstrap lintian desktop-file-utils appstream openbox
    poppler-utils"

# install_missing PACKAGE...  Installs those that are not there yet and says so.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing and neither root nor sudo is at hand: ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing missing packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -q >/dev/null ||
        echo "The package lists could not be refreshed; trying with those that are there."
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

# ccache is used when it is there; the build finds it by itself. This lets checkouts share it.
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$(dirname "$PWD")}"
