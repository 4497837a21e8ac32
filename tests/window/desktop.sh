#!/bin/bash
# desktop.sh PROGRAM: uses the window and the status item on a desktop of its own, with a window
# manager and a bar, and then without the bar: the program can always be reached, or it has ended.
set -euo pipefail

program=$1

if [ "${2:-}" != inside ]; then
    exec xvfb-run -a -s "-screen 0 1400x1000x24" "$0" "$program" inside
fi

place=$(mktemp -d /tmp/tidewell-desktop.XXXXXX)
clean_up() {
    local processes
    mapfile -t processes < <(jobs -p)
    kill "${processes[@]}" 2>/dev/null || true
    wait
    rm -rf --one-file-system -- "$place"
}
trap clean_up EXIT

fail() {
    echo "desktop: $*" >&2
    cat "$place/log" >&2
    exit 1
}

# Until a condition holds, within reason.
await() {
    local what=$1
    shift
    for _ in {1..150}; do
        if "$@"; then return; fi
        sleep 0.1
    done
    fail "$what"
}

# A visible window of this program and of this width.
sees() {
    local window
    for window in $(xdotool search --onlyvisible --name '^Tidewell$' 2>/dev/null); do
        if xdotool getwindowgeometry "$window" 2>/dev/null | grep -q "Geometry: $1x"; then return; fi
    done
    return 1
}
sees_window() { sees 1120; }
sees_popover() { sees 300; }
sees_no_window() { ! sees_window; }
sees_no_popover() { ! sees_popover; }
has_window_manager() { xdotool get_num_desktops >/dev/null 2>&1; }
has_bar() { xdotool search --class trayer >/dev/null 2>&1; }
has_ended() { ! kill -0 "$running" 2>/dev/null; }

click() { xdotool mousemove "$1" "$2" click 1; }
# Where the bar has its only item.
click_item() { click 1388 13; }
open_popover() {
    # The bar may not have taken the item in yet.
    for _ in {1..10}; do
        click_item
        for _ in {1..10}; do
            if sees_popover; then return; fi
            sleep 0.1
        done
    done
    fail "a click opens no popover"
}
window_is_active() { xdotool getactivewindow getwindowgeometry 2>/dev/null | grep -q "Geometry: 1120x"; }
close_window() {
    await "the window does not come to the front" window_is_active
    xdotool key ctrl+w
    await "the window has not closed" sees_no_window
}

mkdir -m 700 "$place/runtime"
mkdir -p "$place/machine/Users/ada/.config/tidewell"
echo '{"hasOnboarded": true}' >"$place/machine/Users/ada/.config/tidewell/defaults.json"
export XDG_RUNTIME_DIR=$place/runtime
export QT_QUICK_BACKEND=software
start=("$program" --root "$place/machine")
: >"$place/log"

openbox >/dev/null 2>&1 &
await "no window manager comes" has_window_manager
trayer --edge top --align right --widthtype request --height 26 >/dev/null 2>&1 &
bar=$!
await "no bar comes" has_bar
"${start[@]}" 2>>"$place/log" &
running=$!
await "no window comes" sees_window

# It is known by its desktop entry, and has a frame of its own that it is moved by.
window_id=$(xdotool search --onlyvisible --name '^Tidewell$' | head -1)
xprop -id "$window_id" WM_CLASS | grep -q '"io.tidewell.Tidewell"$' || fail "its windows are of another class"
where() { xdotool getwindowgeometry --shell "$window_id" | sed -n 's/^[XY]=//p' | xargs; }
drag() {
    local x y
    read -r x y <<<"$(where)"
    xdotool mousemove $((x + 500)) $((y + 14)) mousedown 1
    for _ in {1..5}; do xdotool mousemove_relative 8 8; sleep 0.05; done
    xdotool mouseup 1
}
at_first=$(where)
has_moved() { [ "$(where)" != "$at_first" ]; }
drag
await "the window is not moved by its upper edge" has_moved

open_popover
sleep 0.6 # or it is a double click, which opens only
click_item
await "a second click does not close the popover" sees_no_popover
sleep 0.7
sees_no_popover || fail "the click that closed the popover opened it again"
open_popover
click 600 600
await "a click elsewhere does not close the popover" sees_no_popover

close_window
open_popover
xdotool key Return
await "a scan does not open the window" sees_window
sees_no_popover || fail "the popover stays over the window"

kill "$bar"
close_window
if has_ended; then fail "the program ended with its window"; fi
"${start[@]}" || fail "a second start is not heard"
await "a second start does not open the window" window_is_active
xdotool key ctrl+q
await "the program does not quit" has_ended
[ ! -s "$place/log" ] || fail "the program complains"

# Neither a bar nor a place where a second start could find the first.
unset XDG_RUNTIME_DIR
"${start[@]}" 2>>"$place/log" &
running=$!
close_window
await "nobody can reach the program, and it goes on" has_ended
