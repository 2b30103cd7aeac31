#!/usr/bin/env bash
# The trial itself, on a display and in a prefix of Wine that are there for it alone.
# usage: trial.sh INSTALLER FOLDER_FOR_PICTURES
set -euo pipefail
installer=$1
pictures=$2

# Letters of three code pages.
user='Jörg Śarmā देवी'
drive=$WINEPREFIX/drive_c
program="$drive/Programme für $user/Kelvaro Basic"
local_data="$drive/Daten von $user"
documents="$drive/Schriften von $user"
database="$program/DBMirvaneBasic.mdb"
title="Kelvaro - Kelvaro Basic"
chart="Kalidasa~14-Jul-1965"

fail() {
    import -window root "$pictures/failure.png"
    echo "The trial of the installer failed: $* (see $pictures/failure.png)" >&2
    exit 1
}
# wait_for SECONDS WHAT COMMAND...: until the command succeeds.
wait_for() {
    local tenths=$(($1 * 10)) what=$2
    shift 2
    for _ in $(seq "$tenths"); do
        ! "$@" >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    fail "$what"
}
# Of a file on the drive C.
windows_path() {
    local path=${1#"$drive"}
    printf 'C:%s' "${path//\//\\}"
}

shows() { xdotool search --onlyvisible --name "$1"; }
shows_not() { ! shows "$1"; }
# What is typed before a window has its keys is lost.
keys() {
    xdotool key --delay 60 "$@"
    sleep 0.4
}
text() {
    xdotool type --delay 40 "$1"
    sleep 0.4
}
picture() { import -window root "$pictures/$1.png"; }

start_program() {
    wine "$program/kelvaro.exe" 2>/dev/null &
    started=$!
    wait_for 60 "no window" shows "$title"
    sleep 3
}
end_program() {
    keys ctrl+q
    wait_for 20 "the program does not end" shows_not "$title"
    wait "$started" || fail "the program ended with $?"
}
charts() { sqlite3 "$database" "select group_concat(ChartName) from ChartSave"; }
has_chart() { [ "$(charts)" = "$chart" ]; }
require_chart() { has_chart || fail "$1: the charts are \"$(charts)\""; }
install_silently() {
    # The folder stands at the end without quotation marks, so its words are words of the command.
    # shellcheck disable=SC2046
    wine "$installer" /S $(printf '/D=%s' "$(windows_path "$program")") 2>/dev/null || fail "the installer ended with $?"
}

# The folders of a user whose name has such letters.
set_folder() {
    mkdir -p "$2"
    wine reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders' /v "$1" /t REG_EXPAND_SZ \
        /d "$(windows_path "$2")" /f >/dev/null 2>&1
}

echo "== Silent installation"
wineboot --init 2>/dev/null
set_folder "Local AppData" "$local_data"
set_folder Personal "$documents"
install_silently
[ -f "$program/kelvaro.exe" ] || fail "the program is not there"
names_program() { find "$drive" -name 'Kelvaro Basic.lnk' | grep . >/dev/null; }
names_program || fail "the Start menu does not name the program"

echo "== First start"
start_program
picture first-start
[ ! -e "$local_data/Kelvaro" ] || fail "the charts do not lie beside the program"

echo "== A birth is typed and saved"
keys ctrl+n
wait_for 10 "no form" shows "Enter Birth Details"
sleep 1
for field in Kalidasa Male 14 7 1965 2 15 "" India "Hyderabad (A.P)"; do
    [ -z "$field" ] || text "$field"
    keys Tab
done
picture birth-form
keys ctrl+s
wait_for 10 "the chart is not saved" has_chart
keys Return
keys alt+o
sleep 8
picture typed-birth
end_program

echo "== The next start shows that chart"
start_program
picture next-start

echo "== Reports"
keys ctrl+p
sleep 1
# save_report NAME: the dialog of the system suggests that name in the folder of the user's documents.
save_report() {
    keys alt+p
    sleep 3
    keys Return
    wait_for 20 "there is no report $1" test -s "$documents/$1"
    sleep 2
    picture "report-${1##*.}"
}
save_report Kalidasa.Txt
# A view that is opened anew gives the keys to its button.
open_print() {
    keys ctrl+1
    sleep 1
    keys ctrl+p
    sleep 1
}
# Back from the button the keys come to the last of the options, and then to the chosen one.
open_print
keys shift+Tab space
sleep 3
save_report Kalidasa.pdf
open_print
keys shift+Tab Up Up
save_report Kalidasa.HTML
cp "$documents"/Kalidasa.* "$pictures"
for report in "$documents"/Kalidasa.{Txt,HTML}; do
    grep -q Kalidasa "$report" || fail "$report is not of Kalidasa"
done
pdftotext "$documents/Kalidasa.pdf" - | grep "^Kalidasa · page 1 of 6$" >/dev/null || fail "the PDF file is not of Kalidasa"
end_program

echo "== A second installation over the first"
install_silently
require_chart "after the second installation"

echo "== Time of the start"
{
    printf '#!/bin/sh\nHOME=%s WINEPREFIX=%s exec wine "%s"\n' "$HOME" "$WINEPREFIX" "$program/kelvaro.exe"
} >"$HOME/start"
chmod +x "$HOME/start"
wineserver -k || true
wineserver -p
echo "First view after $(OBSERVED=8000 scripts/start-up-time.sh "$HOME/start" | head -n 1) ms"

echo "== Removal"
wine "$program/uninstall.exe" /S 2>/dev/null
removed() { [ "$(ls "$program")" = DBMirvaneBasic.mdb ]; }
wait_for 20 "the removal does not leave the charts and nothing else" removed
require_chart "after the removal"
! names_program || fail "the Start menu still names the program"
echo "The charts are still there: $(charts)"

echo "== Installed again, as an original that several users share"
install_silently
require_chart "after another installation"
touch "$program/DBMirvaneBasic.original"
start_program
end_program
database="$local_data/Kelvaro/Kelvaro Basic/DBMirvaneBasic.mdb"
require_chart "in the user's own copy"
