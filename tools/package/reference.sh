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
        mkdir "$reference/home"
        # A home of its own: the paper is saved there.
        env -u XDG_CONFIG_HOME HOME="$reference/home" \
            tools/package/work-a-case "$packages/case/reference.png" "$reference/korvel2000"
    fi
    for name in KV_KORVEL.ini KV_CDDR.ini; do
        cmp "$reference/$name" "$1/$name" || fail "the records of the worked case differ: $name"
    done
    say "The case was worked; its records are the developer build's, byte for byte"
}

# same_page COMMAND..  The command almanac, started so, writes the page that the developer's build does.
same_page() {
    "$linux_build/tools/almanac/almanac" --page 2026-11-22 >"$packages/page.txt"
    "$@" --page 2026-11-22 | tr -d '\r' | cmp - "$packages/page.txt" || fail "a page of the almanac differs"
    say "The command almanac writes the page of the developer's build, byte for byte"
}

# saved_paper HOME  The working paper that was saved as PDF somewhere in it has the results. It goes,
# so that the next one gets its name.
saved_paper() {
    local paper
    paper=$(as_root find "$1" -xdev -name '*.pdf')
    [ -n "$paper" ] || fail "no paper was saved under $1"
    as_root pdftotext -layout "$paper" - | grep -F "4728'.7" >/dev/null || fail "the paper lacks a result: $paper"
    as_root rm "$paper"
    [ -z "$(as_root find "$1" -xdev -name 'QtProject*')" ] || fail "the toolkit left a file behind under $1"
    say "Its working paper was saved as PDF, results and all"
}

# kept_offset FOLDER  What was kept instead of a clock that could not be set: two hours, but for the
# seconds that a typed minute lacks.
kept_offset() {
    local seconds
    seconds=$(tr -dc '0-9-' <"$1/KV_Clock.ini")
    [ "${seconds:-0}" -gt 7100 ] && [ "$seconds" -le 7200 ] || fail "the offset kept is $seconds seconds"
    say "The program was refused the clock, said so and keeps the ship's time itself"
}
