#!/bin/bash
# on_debian.sh PACKAGE: installs the package on a new, minimal Debian 12 that lies in a folder below
# /tmp, uses it there on a machine in a folder, and removes it again: nothing of it may stay. Needs
# root and a Debian mirror, which is the one of this system.
set -euo pipefail

package=$1

# What is mounted from here on is seen by nobody else, and gone with the last process.
if [ "${2:-}" != inside ]; then
    exec unshare --mount xvfb-run -a -s "-screen 0 1400x1000x24" "$0" "$package" inside
fi

fail() {
    echo "on_debian: $*" >&2
    exit 1
}

system=$(mktemp -d /tmp/tidewell-debian.XXXXXX)
window=
clean_up() {
    if [ -n "$window" ]; then
        kill "$window" || true
        wait "$window" || true
    fi
    umount --recursive "$system/proc" 2>/dev/null || true
    rm -rf --one-file-system -- "$system"
}
trap clean_up EXIT

# shellcheck disable=SC2016 # apt-get puts in the address
mirrors=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm')
debootstrap --variant=minbase bookworm "$system" "${mirrors%%$'\n'*}" >"$system.log" ||
    fail "debootstrap failed: $(tail -n 5 "$system.log")"
rm "$system.log"
mount -t proc proc "$system/proc"
mkdir "$system/user"

on_it() {
    chroot "$system" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/user \
        DEBIAN_FRONTEND=noninteractive "$@"
}
apt_on_it() {
    on_it apt-get -qq -y --no-install-recommends "$@" >"$system/log" 2>&1 ||
        fail "apt-get $*: $(tail -n 20 "$system/log")"
}
# All that a package can leave behind; what lies in a home folder is its user's.
files_on_it() {
    on_it find /bin /boot /etc /lib /opt /sbin /srv /usr /var -xdev \
        ! -path '/var/lib/dpkg/*' ! -path '/var/lib/apt/*' ! -path '/var/cache/*' ! -path '/var/log/*' |
        sort
}

# What uses the desktop file belongs to the desktop.
apt_on_it install desktop-file-utils xdg-utils
apt_on_it satisfy "$(dpkg-deb --field "$package" Depends)"
files_on_it >"$system/before"
cp "$package" "$system/tidewell.deb"
mkdir -p "$system/machine/Users/ada/.npm/_cacache"
head -c 3000000 /dev/zero >"$system/machine/Users/ada/.npm/_cacache/one"
apt_on_it install ./tidewell.deb

on_it tidewell-cli --root /machine scan --json | grep -q '"foundBytes": [1-9]' ||
    fail "tidewell-cli finds nothing"
handler=$(on_it xdg-mime query default x-scheme-handler/tidewell)
[ "$handler" = io.tidewell.Tidewell.desktop ] || fail "tidewell:// is opened by '$handler'"

# The window, drawn on a screen of this system. Whatever it misses, it says.
cp "$XAUTHORITY" "$system/authority"
mkdir -m 700 "$system/runtime"
screen=(DISPLAY="$DISPLAY" XAUTHORITY=/authority XDG_RUNTIME_DIR=/runtime)
on_it "${screen[@]}" tidewell --root /machine 2>"$system/log" &
window=$!
timeout 60 xdotool search --sync --onlyvisible --name Tidewell >/dev/null ||
    fail "no window: $(cat "$system/log")"
on_it "${screen[@]}" tidewell --root /machine tidewell://scan || fail "no answer to a URL"
sleep 5
kill "$window" || fail "the window ended: $(cat "$system/log")"
wait "$window" || true
window=
[ ! -s "$system/log" ] || fail "the window says: $(cat "$system/log")"

apt_on_it purge tidewell
files_on_it >"$system/after"
diff "$system/before" "$system/after" || fail "this is not as before"
echo "on_debian: installed, used and removed"
