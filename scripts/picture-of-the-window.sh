#!/usr/bin/env bash
# Starts a program, waits for its main window, takes a picture of the screen into a file and ends the program.
# usage: picture-of-the-window.sh PROGRAM PICTURE
set -euo pipefail

"$1" &
program=$!
trap 'kill "$program" 2>/dev/null || true' EXIT

window=
for _ in $(seq 100); do
    window=$(xdotool search --onlyvisible --pid "$program" 2>/dev/null | tail -n 1) || true
    [ -n "$window" ] && break
    kill -0 "$program" 2>/dev/null || { echo "The program ended before it showed a window" >&2; exit 1; }
    sleep 0.1
done
[ -n "$window" ] || { echo "The program showed no window within ten seconds" >&2; exit 1; }
# There is no window manager here to give the window the screen.
xdotool windowmove "$window" 0 0 windowsize "$window" 1280 800
sleep 1
import -window root "$2"
