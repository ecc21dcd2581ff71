# SPDX-License-Identifier: MIT
# What the tests of the installation share. Called with the path of cmake, of the sources and of the build.
set -eu

cmake=$1
source=$2
build=$3
scratch=$(mktemp -d)
trap 'chmod -R u+w "$scratch"; rm -rf "$scratch"' EXIT
trap 'exit 1' HUP INT TERM
# Windows are never shown, and nothing of the user is touched.
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen HOME="$scratch/home" XDG_DATA_HOME="$scratch/home/data" XDG_RUNTIME_DIR="$scratch/run"
mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# Skips the test when one of these programs is missing.
need() {
    for program in "$@"; do
        command -v "$program" >/dev/null 2>&1 || { echo "skipped: there is no $program here"; exit 77; }
    done
}

# Installs into $scratch/prefix.
install_to_scratch() {
    prefix=$scratch/prefix
    "$cmake" --install "$build" --prefix "$prefix" >"$scratch/install.log" || fail "$(cat "$scratch/install.log")"
}
