# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

# window.sh PROGRAM: waits until the program's window is painted, closes it as a user does, and
# expects that the program ends well and has said nothing.

# Qt leaks what it is reading from the session's bus when the program ends.
export DBUS_SESSION_BUS_ADDRESS=disabled:

said=$(mktemp)
trap 'rm "$said"' EXIT
"$@" >"$said" 2>&1 &
program=$!

running() {
    sleep 0.05
    kill -0 $program 2>/dev/null
}

painted() {
    window=$(xdotool search --onlyvisible --pid $program 2>/dev/null | tail -n 1)
    [ -n "$window" ] || return
    colours=$(import -window "$window" png:- 2>/dev/null | identify -format %k - 2>/dev/null)
    [ "${colours:-0}" -gt 16 ]
}

close_window() {
    until painted; do
        running || return
    done
    # Until the window has the focus, the key goes nowhere.
    while running; do
        xdotool windowactivate "$window" key alt+F4 2>/dev/null
    done
    true
}

close_window &
closer=$!
wait $program
status=$?
wait $closer && [ $status = 0 ] && [ ! -s "$said" ] || {
    cat "$said"
    false
}
