# SPDX-License-Identifier: MIT
# The Debian package holds the programs with all that belongs to them, and names what they need.
. "$(dirname "$0")/support.sh"

need dpkg-deb dpkg-shlibdeps file lintian
if grep -q '^TIDEWALK_SANITIZE:STRING=.' "$build/CMakeCache.txt"; then
    echo "skipped: nobody packages a build for finding faults"
    exit 77
fi
cpack=$(dirname "$cmake")/cpack
(cd "$scratch" && "$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$scratch/package") >"$scratch/log" 2>&1 ||
    fail "$(cat "$scratch/log")"
package=$(echo "$scratch"/package/tidewalk_*.deb)
dpkg-deb -x "$package" "$scratch/unpacked"
dpkg-deb -I "$package"

for file in bin/tidewalk share/tidewalk/all.col share/tidewalk/tide.htm share/tidewalk/puzzles.txt \
    share/tidewalk/help/example.svg share/applications/tidewalk.desktop share/metainfo/tidewalk.metainfo.xml \
    share/icons/hicolor/scalable/apps/tidewalk.svg share/icons/hicolor/48x48/apps/tidewalk.png \
    share/mime/packages/tidewalk-collection.xml share/man/man1/tidewalk.1.gz share/doc/tidewalk/LICENSE \
    share/doc/tidewalk/copyright share/doc/tidewalk/changelog.gz share/doc/tidewalk/docs/file-formats.md; do
    [ -s "$scratch/unpacked/usr/$file" ] || fail "no $file in the package"
done
others=$(find "$scratch/unpacked" ! -type l -perm /go+w)
[ -z "$others" ] || fail "everybody may write: $others"
[ ! -d "$scratch/unpacked/usr/share/tidewalk/icons" ] || fail "the icons of the sources are in the package"

depends=$(dpkg-deb -f "$package" Depends)
for needed in libqt6widgets6 libqt6printsupport6 libqt6svg6 libqt6sql6-sqlite libqpdf fonts-liberation \
    fonts-dejavu-core libc6; do
    case "$depends" in
        *"$needed"*) ;;
        *) fail "$needed is no dependency: $depends" ;;
    esac
done
lintian --allow-root --fail-on error "$package" || fail "lintian finds errors"
"$scratch/unpacked/usr/bin/tidewalk" --version >/dev/null || fail "the packaged program does not start"
