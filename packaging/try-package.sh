#!/usr/bin/env bash
# Installs the package on a system in a folder, starts the program as its users would, installs over it and removes it.
# usage: PACKAGE=FILE PICTURE=FILE try-package.sh ROOT
set -euo pipefail

root=$1
name=kelvaro-basic
program_folder=/usr/lib/kelvaro-basic
title="Kelvaro - Kelvaro Basic"
data_folder=".local/share/Kelvaro/Kelvaro Basic"
program=

fail() {
    echo "The trial of the package failed: $*" >&2
    exit 1
}

inside() { chroot "$root" env DEBIAN_FRONTEND=noninteractive "$@"; }

windows() { xdotool search --onlyvisible --name "$title" 2>/dev/null || true; }

# start_program USER_ID HOME: returns when the window shows.
start_program() {
    # Who may draw on the display is told by a file, which must be the user's own.
    install -o "$1" -g "$1" -m 600 "$XAUTHORITY" "$root$2/.Xauthority"
    chroot --userspec="$1:$1" "$root" env -i HOME="$2" PATH=/usr/bin:/bin DISPLAY="$DISPLAY" \
        XAUTHORITY="$2/.Xauthority" kelvaro &
    program=$!
    for _ in $(seq 150); do
        [ -z "$(windows)" ] || break
        kill -0 "$program" 2>/dev/null || fail "the program ended before it showed a window"
        sleep 0.1
    done
    [ -n "$(windows)" ] || fail "no window within fifteen seconds"
    sleep 2
    local shown
    shown=$(xdotool search --onlyvisible --class kelvaro 2>/dev/null | wc -l)
    [ "$shown" -eq 1 ] || fail "$shown windows show; a message box beside the main window?"
}

end_program() {
    [ -n "$program" ] || return 0
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    program=
}
trap end_program EXIT

charts() { sqlite3 "$1" "select group_concat(ChartName) from ChartSave"; }

xdotool getdisplaygeometry >/dev/null || fail "there is no display"
install -m 644 "$PACKAGE" "$root/tmp/package.deb"
inside apt-get install -y -qq --no-install-recommends /tmp/package.deb >/dev/null
inside dpkg -L "$name" >"$root/tmp/installed-files"
original=$(sha256sum <"$root$program_folder/DBMirvaneBasic.mdb")

echo "First start by an ordinary user"
user=1000
home=/home/astrologer
mkdir -p "$root$home"
chown "$user:$user" "$root$home"
start_program "$user" "$home"
import -window root "$PICTURE"
database=$root$home/$data_folder/DBMirvaneBasic.mdb
[ -f "$database" ] || fail "the user has no database of their own"
chroot --userspec="$user:$user" "$root" test -w "$home/$data_folder/DBMirvaneBasic.mdb" ||
    fail "the user's database cannot be written"
sqlite3 "$database" "insert into ChartSave (ChartName) values ('Velnesh~14-Jul-1965')"
end_program

echo "First start by the super-user, who could write the original"
start_program 0 /root
[ -f "$root/root/$data_folder/DBMirvaneBasic.mdb" ] || fail "the super-user has no database of their own"
end_program

echo "Upgrade"
inside apt-get install -y -qq --reinstall --no-install-recommends /tmp/package.deb >/dev/null
start_program "$user" "$home"
end_program
[ "$(charts "$database")" = "Velnesh~14-Jul-1965" ] || fail "the upgrade changed the user's charts"
[ "$(sha256sum <"$root$program_folder/DBMirvaneBasic.mdb")" = "$original" ] || fail "the original was written to"

echo "Removal"
inside apt-get purge -y -qq "$name" >/dev/null
while read -r path; do
    case $path in
    */kelvaro*) [ ! -e "$root$path" ] || fail "$path is still there" ;;
    esac
done <"$root/tmp/installed-files"
[ "$(charts "$database")" = "Velnesh~14-Jul-1965" ] || fail "the removal took the user's charts away"
