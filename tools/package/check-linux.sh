# SPDX-License-Identifier: MIT
# Proves the portable folder: on a minimal system without any package of the toolkit, also from a
# folder that cannot be written to.

. tools/package/linux.sh
. tools/package/clean-debian.sh
. tools/package/reference.sh
trap drop_debian EXIT

check_package() {
    fresh_debian
    say "Checking $folder_name.tar.xz"
    local stick=$clean_root/officer/"stick 海図"
    mkdir "$stick"
    tar -C "$stick" -xf "$folder.tar.xz"
    as_root chown -R --reference="$clean_root/officer" "$stick"
    open_debian
    there work-a-case linux
    same_records "$stick/$folder_name"
    saved_paper "$clean_root/officer"
    same_page as_officer "/officer/stick 海図/$folder_name/almanac"

    as_root rm "$stick/$folder_name"/KV_*
    there try-the-clock linux-clock
    kept_offset "$stick/$folder_name"

    # The same folder on a protected stick: the records go to the officer's own folder.
    as_root rm "$stick/$folder_name"/KV_*
    as_root chown -R root:root "$stick"
    FIRST_START=1 there work-a-case linux-protected
    same_records "$clean_root/officer/.local/share/korvel2000"
    saved_paper "$clean_root/officer"
}

# there SCRIPT PICTURE  Works the folder's program by the script, as the ordinary user.
there() {
    "tools/package/$1" "$packages/$2.png" bash -c '. tools/package/common.sh
        . tools/package/clean-debian.sh; as_officer "/officer/stick 海図/$1/korvel2000"' - "$folder_name"
}
