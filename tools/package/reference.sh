# SPDX-License-Identifier: MIT
# What the developer's build leaves of the worked case. Sourced by the proofs.

# same_records FOLDER  The records there are those, byte for byte.
same_records() {
    local reference=$packages/case/reference name
    build_linux >/dev/null
    if [ ! "$reference/KV_CDDR.ini" -nt "$linux_build/korvel2000/korvel2000" ]; then
        rm -rf "$reference"
        mkdir -p "$packages/case"
        cp -R "$linux_build/korvel2000" "$reference"
        rm -f "$reference"/KV_*
        tools/package/work-a-case "$packages/case/reference.png" "$reference/korvel2000"
    fi
    for name in KV_KORVEL.ini KV_CDDR.ini; do
        cmp "$reference/$name" "$1/$name" || fail "the records of the worked case differ: $name"
    done
    say "The case was worked; its records are the developer build's, byte for byte"
}
