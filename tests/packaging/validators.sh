# SPDX-License-Identifier: MIT
# The programs that judge desktop entries, metainfo, MIME types and man pages find nothing wrong with ours.
. "$(dirname "$0")/support.sh"

need desktop-file-validate appstreamcli xmllint update-mime-database mandoc
install_to_scratch
share=$prefix/share

desktop-file-validate "$share/applications/tidewalk.desktop" || fail "the desktop entry"
appstreamcli validate --no-net "$share/metainfo/tidewalk.metainfo.xml" || fail "the metainfo"
xmllint --noout "$share/metainfo/tidewalk.metainfo.xml" "$share/mime/packages/tidewalk-collection.xml" ||
    fail "a file is no XML"

XDG_DATA_DIRS=$share update-mime-database "$share/mime" || fail "the MIME type"
grep -q ':application/x-tidewalk-collection:\*\.tdw$' "$share/mime/globs2" || fail "no type for collections"
grep -q '^MimeType=application/x-tidewalk-collection;$' "$share/applications/tidewalk.desktop" ||
    fail "collections are not opened with the program"

mandoc -T lint "$share"/man/man1/*.1 || fail "a man page"
# Every option that the program has is explained.
for option in $("$prefix/bin/tidewalk" --help | grep -o -e '--[a-z]*' | sort -u); do
    sed 's/\\-/-/g' "$share/man/man1/tidewalk.1" | grep -q -e "$option" || fail "$option is not in the man page"
done

for side in 48 64 128 256; do
    icon=$share/icons/hicolor/${side}x${side}/apps/tidewalk.png
    size=$(od -A n -t u1 -j 16 -N 8 "$icon" | awk '{ print $3 * 256 + $4 "x" $7 * 256 + $8 }')
    [ "$size" = "${side}x${side}" ] || fail "$icon measures $size"
done
xmllint --noout "$share/icons/hicolor/scalable/apps/tidewalk.svg" || fail "the scalable icon"
"$prefix/bin/tidewalk-cli" show "$source/data/puzzles.txt" 1 --solution --svg >"$scratch/picture.svg" || fail "no picture"
xmllint --noout "$scratch/picture.svg" || fail "a picture is no XML"
svg="-//W3C//DTD SVG 1.1//EN"
if xmlcatalog /etc/xml/catalog "$svg" >/dev/null 2>&1; then
    xmllint --nonet --noout --dtdvalidfpi "$svg" "$scratch/picture.svg" || fail "a picture is no SVG"
fi

# What the README names lies beside it.
for named in $(grep -o '](\([^)]*\))' "$share/doc/tidewalk/README.md" | sed 's/](\(.*\))/\1/'); do
    [ -s "$share/doc/tidewalk/$named" ] || fail "the installed README names $named"
done
