# SPDX-License-Identifier: MIT
# ./run on a machine without a display, through a link and with a search path for folders, on programs built already.
. "$(dirname "$0")/support.sh"

checkout="$scratch/a checkout"
mkdir -p "$checkout/build/release" "$checkout/packaging" "$scratch/bin"
cp "$source/run" "$checkout"
cp -R "$source/data" "$checkout"
ln -s "$build/ui" "$build/cli" "$checkout/build/release"
ln -s "$checkout/run" "$scratch/bin/play"
# Building is another test's business, and so is installing.
printf '#!/bin/sh\n' | tee "$scratch/bin/cmake" >"$checkout/packaging/install-packages"
chmod +x "$scratch/bin/cmake" "$checkout/packaging/install-packages"
export PATH="$scratch/bin:$PATH" CDPATH="$scratch:/"
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
cd "$scratch"
shows() {
    case "$shown" in *"$1"*) ;; *) fail "this is not shown: $1. This is: $shown" ;; esac
}

puzzles=$checkout/data/puzzles.txt
shown=$(bin/play 2>messages) || fail "without arguments: $(cat messages)"
shows "$("$build/cli/tidewalk-cli" show "$puzzles" 1)"
shows "$("$build/cli/tidewalk-cli" show "$puzzles" 1 --solution)"
shows "$checkout/build/release/window.png"
[ -s "$checkout/build/release/window.png" ] || fail "the window was not drawn"

# The puzzle that is named, by a path as the caller sees it.
cp "$puzzles" own.txt
shown=$("a checkout/run" --seed 3 own.txt 2 2>messages) || fail "with a puzzle: $(cat messages)"
shows "$("$build/cli/tidewalk-cli" show "$puzzles" 2)"
play own.txt 999 2>messages && fail "a puzzle that is not there"
play --nosuch 2>messages && fail "a wrong option"

# What needs no display is done as asked.
play --picture=puzzle.png own.txt 2 2>messages || fail "--picture: $(cat messages)"
play -pdf pages.pdf own.txt 2-3 2>messages || fail "--pdf: $(cat messages)"
play --booklet book.pdf --per-page 4 --title Evenings own.txt 1-9 2>messages || fail "--booklet: $(cat messages)"
[ "$(pdftotext book.pdf - | grep -c "No\\. 9")" = 2 ] || fail "a puzzle or its solution is not in the booklet"
play --booklet none.pdf --per-page 9 own.txt 1-144 2>messages && fail "puzzles too small to read"
grep -q "^Puzzle .* do not fit on the page beside 8 others" messages && [ ! -e none.pdf ] || fail "$(cat messages)"
play --picture=puzzle.svg --solution own.txt 2 2>messages || fail "--picture in SVG: $(cat messages)"
"$build/cli/tidewalk-cli" show "$scratch/own.txt" 2 --solution --svg | cmp - puzzle.svg || fail "two pictures"
[ -s puzzle.png ] && [ -s pages.pdf ] || fail "nothing was written"
[ "$(play --version 2>messages)" = "$("$build/ui/tidewalk" --version)" ] || fail "--version: $(cat messages)"
