#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs the console program as people do: program_test.sh CASE PROGRAM COLLECTION.
set -u
program=$2
collection=$3
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1

fail() {
    echo "$*" >&2
    exit 1
}

# Waits up to half a minute for a condition.
wait_until() {
    for _ in $(seq 300); do
        "$@" && return 0
        sleep 0.1
    done
    fail "waited in vain for: $*"
}

copies_input() {
    readlink "/proc/$1/fd"/* | grep -q "temp/"
}

pipes() {
    lines=$("$program" list - <"$collection" | wc -l)
    [ "$lines" -eq "$(wc -l <"$collection")" ] || fail "list printed $lines lines"
    solved=$("$program" shuffle - <"$collection" | "$program" solve - --out - | "$program" check - --jobs 2 |
        grep -c 'stored valid  solutions one')
    [ "$solved" -eq "$lines" ] || fail "$solved puzzles are right in the end"
    # A descriptor that was handed over is gone on with, and a named pipe waits for its reader.
    { "$program" create 7 --out /dev/fd/8 && "$program" append /dev/stdin 1 /dev/fd/8 <"$collection"; } 8>both >report
    [ "$("$program" list both | wc -l)" -eq 2 ] || fail "two programs wrote over each other: $(cat both)"
    mkfifo fifo
    "$program" solve "$collection" --out fifo >report &
    [ "$(wc -l <fifo)" -eq "$lines" ] || fail "not all records came through a named pipe"
    # A reader that has seen enough ends it without a word.
    record=$(head -n 1 "$collection" | tr -d '\r')
    { yes "$record" | timeout 60 "$program" list - 2>messages; echo $? >code; } | head -n 3 >lines
    wait_until test -s code
    [ "$(cat code)" -eq 141 ] || fail "a closed pipe gave $(cat code)"
    [ ! -s messages ] || fail "a closed pipe gave messages"
    [ "$(wc -l <lines)" -eq 3 ] || fail "what was read is not whole"
    # Nothing behind a range is read.
    yes "$record" | timeout 60 "$program" check - 2-4 --jobs 2 >lines || fail "a part of an endless input gave $?"
    [ "$(wc -l <lines)" -eq 3 ] || fail "a part of an endless input has $(wc -l <lines) lines"
}

signals() {
    "$program" create 20 --count 1000000 --jobs 2 --out made.txt >report 2>messages &
    wait_until test -s made.txt
    kill -TERM $!
    wait $!
    [ $? -eq 143 ] || fail "a signal in the middle did not give 143"
    grep -q "stopped before the end" messages || fail "nothing was said about it"
    "$program" list made.txt >listed || fail "half a record was written"
    grep -q "^$(wc -l <listed) of 1000000 " report || fail "the report does not tell how many: $(cat report)"

    # It waits for input that does not come.
    mkfifo fifo
    echo old >solved.txt
    exec 9<>fifo
    "$program" solve fifo --out solved.txt --json >report 2>messages &
    cat "$collection" >fifo
    wait_until grep -q number report
    kill -TERM $!
    wait $!
    [ $? -eq 143 ] || fail "a signal while waiting did not give 143"
    [ "$(cat solved.txt)" = old ] || fail "the older file was touched"
    [ "$(ls | grep -c solved)" -eq 1 ] || fail "something was left beside it"
    [ "$(tail -n 1 report)" = "]" ] || fail "the report was cut off"

    # A copy of what can be read once only has no name that would be left.
    mkdir temp
    TMPDIR=temp "$program" shuffle fifo >shuffled &
    wait_until copies_input $!
    kill -KILL $!
    exec 9>&-
    [ -z "$(ls temp)" ] || fail "the copy of the input was left: $(ls temp)"
}

full_disk() {
    [ -c /dev/full ] || exit 0
    "$program" list "$collection" >/dev/full 2>messages
    [ $? -eq 1 ] || fail "a full disk did not give 1"
    grep -q "standard output: " messages || fail "nothing was said about it"
    "$program" create 7 --out /dev/full >/dev/null 2>&1 && fail "a puzzle was written to a full disk"
    cp "$collection" own
    "$program" delete own 1 >/dev/full || fail "who reads of a failure deletes another puzzle"
    return 0
}

case $1 in
    pipes | signals | full_disk) "$1" ;;
    *) fail "no such case: $1" ;;
esac
