# SPDX-License-Identifier: MIT
# Proves the folder for Windows under Wine: the suites of the library and the calculations, a case
# worked by key events, an alarm heard, a folder that cannot be written to.

. tools/package/windows.sh
. tools/package/reference.sh
wine=/usr/lib/wine # Debian keeps its programs out of the way
place=$(mktemp -d)
trap close_windows EXIT

check_package() {
    # shellcheck disable=SC2086
    install_missing $windows_check_packages $display_packages
    chmod 755 "$place"
    look_at_program
    open_windows "$place/builder"
    run_suites
    open_windows "$place/officer"
    work_in_folder
    ask_for_clock
    hear_alarm
    work_in_protected_folder
}

# look_at_program  Nothing but the system's own libraries, and what the system shows of it.
look_at_program() {
    say "Checking $folder_name.zip"
    ! x86_64-w64-mingw32-objdump -p "$folder/korvel2000.exe" | grep -iE 'DLL Name: (lib|qt)' ||
        fail "the program needs libraries that no Windows has"
    wrestool --extract --raw --type=16 "$folder/korvel2000.exe" | iconv -f UTF-16LE -t UTF-8 -c |
        grep -aq "$version" || fail "the program bears no version"
    wrestool --extract --type=14 --output="$place/icon.ico" "$folder/korvel2000.exe"
    [ "$(icotool --list "$place/icon.ico" | wc -l)" -eq 7 ] || fail "the program bears no icon in seven sizes"
}

# open_windows HOME  An installation of Wine of its own; HOME/run starts a program in it. Programs
# there belong to an ordinary user without any right over the machine, its clock least of all; the
# suites alone are the builder's, because they read the checkout.
open_windows() {
    close_wine
    home=$1
    visitor=()
    mkdir -p "$home"
    if [ "$(id -u)" -eq 0 ] && [ "$home" != "$place/builder" ]; then
        visitor=(setpriv --reuid=nobody --regid=nogroup --clear-groups --inh-caps=-all --bounding-set=-all)
        chown nobody "$home"
    fi
    listen_in "$home"
    cat >"$home/run" <<END
#!/bin/sh
exec ${visitor[*]} env -i HOME="$home" WINEPREFIX="$home/wine" WINEDEBUG=-all \\
    WINEDLLOVERRIDES='mscoree,mshtml=' LANG=C.UTF-8 TZ="\$TZ" DISPLAY="\${DISPLAY:-}" \\
    PATH=/usr/bin:/bin $wine/wine64 "\$@"
END
    chmod 755 "$home/run"
    "$home/run" wineboot --init >"$packages/wine.log" 2>&1
    let_wine_settle
    give_fonts
    let_wine_settle
}

# let_wine_settle  Services and a desktop without a display linger after a program of its own, and
# after the server too; a program that is started while they end waits for them for ever.
let_wine_settle() {
    timeout 60 "${visitor[@]}" env WINEPREFIX="$home/wine" "$wine/wineserver64" --wait || close_wine
    for _ in $(seq 300); do
        pgrep -f '^C:.windows.system32|^[^ ]*/wineserver64' >/dev/null || break
        sleep 0.1
    done
}

# give_fonts  Windows has a Tahoma and, for Japanese and full-width letters, an MS UI Gothic. Wine has
# neither and shows gaps; fonts of Debian stand in for them.
give_fonts() {
    printf '%s\n' REGEDIT4 '' '[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]' \
        '"Tahoma"="DejaVu Sans"' '"MS UI Gothic"="VL Gothic"' >"$home/fonts.reg"
    "$home/run" regedit /S "$home/fonts.reg" >>"$packages/wine.log" 2>&1
}

# Its server stays in memory for a while after the last program.
close_wine() {
    [ -z "${home:-}" ] || "${visitor[@]}" env WINEPREFIX="$home/wine" "$wine/wineserver64" --kill || true
}

close_windows() {
    close_wine
    rm -rf "$place"
}

run_suites() {
    say "The suites of the library and the calculations under Wine"
    configure_for_windows /usr/src/googletest "$test_library/build" -DCMAKE_INSTALL_PREFIX="$test_library"
    cmake --build "$test_library/build" --target install >/dev/null
    local suite suites="navlib_test almanac_test app_test calculations_test"
    # shellcheck disable=SC2086
    build_windows $suites
    for suite in $suites; do
        "$home/run" "$windows_build/tests/$suite.exe" --gtest_brief=1 || fail "$suite fails under Wine"
    done
}

work_in_folder() {
    stick=$home/"stick 海図"
    unzip -q -d "$stick" "$folder.zip"
    [ ${#visitor[@]} -eq 0 ] || chown -R nobody "$stick"
    tools/package/work-a-case "$packages/windows.png" "$home/run" "$stick/$folder_name/korvel2000.exe"
    same_records "$stick/$folder_name"
    saved_paper "$home"
    same_page "$home/run" "$stick/$folder_name/almanac.exe"
    let_wine_settle
}

ask_for_clock() {
    rm "$stick/$folder_name"/KV_*
    tools/package/try-the-clock "$packages/windows-clock.png" \
        "$home/run" "$stick/$folder_name/korvel2000.exe"
    kept_offset "$stick/$folder_name"
}

# hear_alarm  By the clock of another zone, and with the program that cannot set a clock: what it
# sounds is what the program for Linux gives a player.
hear_alarm() {
    local linux_trial=$place/linux/trial
    mkdir -p "$place/linux"
    listen_in "$place/linux"
    build_linux korvel2000-trial >/dev/null
    cp -R "$linux_build/trial" "$linux_trial"
    TZ=Asia/Tokyo tools/package/ring-an-alarm "$packages/linux-alarm.png" \
        env HOME="$place/linux" "$linux_trial/korvel2000-trial"

    build_windows korvel2000-trial
    cp "$windows_build/trial/korvel2000-trial.exe" "$stick/$folder_name"
    rm -f "$stick/$folder_name"/KV_*
    TZ=Asia/Tokyo tools/package/ring-an-alarm "$packages/windows-alarm.png" \
        "$home/run" "$stick/$folder_name/korvel2000-trial.exe"
    # A tone takes 66,144 bytes.
    cmp -n 66144 "$place/linux/sounded.raw" "$home/sounded.raw" || fail "the alarm sounds otherwise under Wine"
    say "An alarm rang; its tone is that of the program for Linux, byte for byte"
}

# listen_in HOME  What is sounded by programs of that home goes into a file.
listen_in() {
    printf 'pcm.!default {type file; file "|cat >>%s/sounded.raw"; format raw; slave.pcm "null"}\n' \
        "$1" >"$1/.asoundrc"
}

# work_in_protected_folder  As under the folder of the system's programs: the records go to the
# officer's own folder.
work_in_protected_folder() {
    rm "$stick/$folder_name"/KV_*
    [ ${#visitor[@]} -eq 0 ] || chown -R root "$stick"
    chmod -R a-w "$stick"
    FIRST_START=1 tools/package/work-a-case "$packages/windows-protected.png" \
        "$home/run" "$stick/$folder_name/korvel2000.exe"
    same_records "$home"/wine/drive_c/users/*/AppData/Local/korvel2000
    saved_paper "$home"
    chmod -R u+w "$stick"
}
