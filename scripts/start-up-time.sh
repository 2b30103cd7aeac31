#!/usr/bin/env bash
# Starts a program ten times, each with a new home, and prints the median of the milliseconds from its start to the first
# picture of the screen that does not change any more. Wants a display of its own: xvfb-run start-up-time.sh PROGRAM
set -euo pipefail

now() { date +%s%3N; }
picture() { import -window root rgb:- | md5sum; }

start_once() {
    local home program begin last seen
    home=$(mktemp -d)
    begin=$(now)
    HOME=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home "$1" >/dev/null 2>&1 &
    program=$!
    last= seen=0
    while [ $(($(now) - begin)) -lt 2000 ]; do
        local present
        present=$(picture)
        if [ "$present" != "$last" ]; then
            last=$present
            seen=$(($(now) - begin))
        fi
    done
    kill "$program" && wait "$program" 2>/dev/null || true
    rm -rf "$home"
    echo "$seen"
}

for _ in $(seq 10); do start_once "$1"; done | sort -n | sed -n 5p
