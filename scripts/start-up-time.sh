#!/usr/bin/env bash
# Starts programs in turns under a virtual display, each time with a new home, and prints for each of them the median of
# the milliseconds from its start to the first picture of the screen that does not change any more.
# OBSERVED, in milliseconds, is how long each start is watched.
# usage: start-up-time.sh PROGRAM...
set -euo pipefail
rounds=11
observed=${OBSERVED:-2000} # milliseconds after a start

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# Under the display itself: prints "PLACE MILLISECONDS" for each start.
if [ "${1:-}" = --on ]; then
    screen=$2/Xvfb_screen0
    shift 2
    now() { echo $((${EPOCHREALTIME/[.,]/} / 1000)); }
    picture() { md5sum <"$screen"; }
    # A display shows its pointer from its first program on: what it shows behind that one is the empty screen.
    "${!#}" >/dev/null 2>&1 &
    program=$!
    sleep 1
    kill "$program" && wait "$program" || true
    sleep 0.5
    empty=$(picture)
    for _ in $(seq "$rounds"); do
        for place in $(seq $#); do
            home=$(mktemp -d -p "$folder")
            last=$empty seen=0
            begin=$(now)
            HOME=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home "${!place}" >/dev/null 2>&1 &
            program=$!
            while [ $(($(now) - begin)) -lt "$observed" ]; do
                present=$(picture)
                if [ "$present" != "$last" ]; then
                    last=$present
                    seen=$(($(now) - begin))
                fi
            done
            kill "$program" || { echo "${!place} ended by itself" >&2; exit 1; }
            wait "$program" || true
            [ "$seen" -gt 0 ] || { echo "${!place} showed nothing" >&2; exit 1; }
            echo "$place $seen"
            until [ "$(picture)" = "$empty" ]; do sleep 0.05; done
        done
    done
    exit
fi

# The display's pictures stand in a file, so that looking at them does not slow it down.
xvfb-run -a -s "-screen 0 1280x800x24 -fbdir $folder" "$0" --on "$folder" "$@" >"$folder/times"
for place in $(seq $#); do
    sed -n "s/^$place //p" "$folder/times" | sort -n | sed -n "$(((rounds + 1) / 2))p"
done
