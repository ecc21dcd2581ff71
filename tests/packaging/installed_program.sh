# SPDX-License-Identifier: MIT
# The installed program works for a user who may write nowhere but in the own home.
. "$(dirname "$0")/support.sh"

install_to_scratch
chmod -R a-w "$prefix"
shipped=$(cd "$prefix" && find . -type f -exec cksum {} + | sort)
tidewalk=$prefix/bin/tidewalk
data=$XDG_DATA_HOME/tidewalk
cd "$scratch"

version=$("$tidewalk" --version)
expected=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
[ "$version" = "tidewalk $expected" ] || fail "the version is said to be: $version"

# What the program says; the platform without windows has complaints of its own.
said() {
    grep -v '^This plugin does not support' messages || true
}

# The first start fills the user's folder. Copies of files for reading only would be of no use there.
"$tidewalk" --screenshot first.png 2>messages || fail "the first start: $(cat messages)"
for file in all.col tide.htm puzzles.txt tide.cfg; do
    [ -f "$data/$file" ] || fail "$file is missing in the user's folder"
done
for picture in "$prefix"/share/tidewalk/help/*; do
    cmp "$picture" "$data/help/${picture##*/}" || fail "a picture of the help page"
done
[ ! -e "$data/icons" ] || fail "the icons are copied too"
unwritable=$(find "$data" ! -perm -u+w)
[ -z "$unwritable" ] || fail "not to be written: $unwritable"

# The second start finds everything, says nothing and leaves what the user has changed.
echo "changed" >>"$data/tide.htm"
rm "$data/all.col"
"$tidewalk" --screenshot second.png 2>messages || fail "the second start: $(cat messages)"
[ -z "$(said)" ] || fail "the second start says: $(said)"
[ "$(tail -n 1 "$data/tide.htm")" = changed ] || fail "the user's own help page was replaced"
cmp "$prefix/share/tidewalk/all.col" "$data/all.col" || fail "a file that was missing did not come back"
for picture in first.png second.png; do
    [ "$(od -A n -c -j 1 -N 3 "$picture" | tr -d ' ')" = PNG ] || fail "$picture is no picture"
done

# A collection by its name, as a double click gives it.
head -n 3 "$data/puzzles.txt" >"my puzzles.tdw"
"$tidewalk" --screenshot third.png "my puzzles.tdw" 2>messages || fail "a collection: $(cat messages)"
[ -z "$(said)" ] || fail "opening a collection says: $(said)"

[ "$shipped" = "$(cd "$prefix" && find . -type f -exec cksum {} + | sort)" ] || fail "installed files were changed"
