# SPDX-License-Identifier: MIT

# fetch_debian_source SOURCE=VERSION FOLDER  Unpacks the source of a Debian package into
# FOLDER/SOURCE. The machine's own mirror is asked through a sources list of our own: nothing in the
# machine's configuration changes.
fetch_debian_source() {
    local source=$1 folder=$2 apt=$2/apt
    mkdir -p "$apt/lists/partial"
    debian_mirrors | sed 's/^/deb-src /' >"$apt/sources.list"
    local own_list=(-o "Dir::Etc::sourcelist=$apt/sources.list" -o Dir::Etc::sourceparts=-
        -o "Dir::State::lists=$apt/lists" -o "Dir::Cache=$apt" -o APT::Sandbox::User=root)
    apt-get -q "${own_list[@]}" update
    (cd "$folder" && apt-get -q "${own_list[@]}" source "$source")
    mv "$folder/${source%%=*}"-*/ "$folder/${source%%=*}"
    rm -rf "$apt"
}
