# A private display with the bench on it. Sourced by the tests in this folder:
#   PATCHBENCH=PROGRAM . display.sh; start_display; start_manager; start_bench

fail() { echo "FAILED: $*" >&2; [ -f out ] && tail -n 15 out err >&2; exit 1; }

for tool in Xvfb openbox xdotool wmctrl xwininfo xprop compare convert; do
    command -v "$tool" >/dev/null || fail "$tool is missing"
done
[ -x "$PATCHBENCH" ] || fail "there is no program $PATCHBENCH"

room=$(mktemp -d) && cd "$room" || exit 1
started=()
clean_up() {
    for pid in "${started[@]}"; do kill "$pid" 2>/dev/null; done
    wait
    rm -rf "$room"
}
trap clean_up EXIT
trap 'exit 1' INT TERM

patience=60 # seconds allowed per step on a busy machine
title='^Halcyra$'

# until_true COMMAND ...: polls, and gives the bench time for its window.
until_true() {
    local end=$((SECONDS + patience))
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        [ -z "${bench:-}" ] || tell "wait 10"
        sleep 0.03
    done
}

start_display() {
    local number server
    for number in $(seq $((100 + $$ % 400)) 600); do
        [ -e "/tmp/.X$number-lock" ] && continue
        Xvfb ":$number" -screen 0 1920x1080x24 -noreset -nolisten tcp >server 2>&1 &
        server=$!
        export DISPLAY=":$number"
        if until_true answers_or_ended "$server" && kill -0 "$server" 2>/dev/null; then
            started=("$server")
            return
        fi
    done
    fail "no display could be started"
}
answers_or_ended() { xwininfo -root >/dev/null 2>&1 || ! kill -0 "$1" 2>/dev/null; }

start_manager() {
    openbox >/dev/null 2>&1 &
    started=("$!" "${started[@]}")
    until_true has_manager || fail "the window manager does not start"
}
has_manager() { wmctrl -m >/dev/null 2>&1; }

start_bench() {
    rm -f in out
    mkfifo in
    : >out
    "$PATCHBENCH" --window native <in >>out 2>err &
    bench=$!
    started=("$bench" "${started[@]}")
    exec 8>in
    seen=0
}

tell() { kill -0 "$bench" 2>/dev/null || fail "the bench has ended"; echo "$1" >&8; }

# expect LINE ...: each in order; lines in between are skipped.
expect() {
    local line
    for line; do
        until_true came "$line" || fail "never came: $line"
        seen=$found
    done
}
came() {
    local at
    at=$(tail -n +$((seen + 1)) out | grep -nxF -m1 -- "$1") || return 1
    found=$((seen + ${at%%:*}))
}

# Waits until the bench has run all commands, and skips their output.
settle() {
    local answers
    answers=$(grep -c '^h assist' out)
    tell "wait 40"
    tell "assist h inlet 0"
    until_true has_answered "$answers" || fail "the bench does not answer"
    seen=$(wc -l <out)
}
has_answered() { [ "$(grep -c '^h assist' out)" -gt "$1" ]; }

visible() { xdotool search --onlyvisible --name "$title" 2>/dev/null; }
is_visible() { [ -n "$(visible)" ]; }
is_hidden() { ! is_visible; }
windows() { xdotool search --name "$title" 2>/dev/null | wc -l; }

# The window, once it is on the screen in its full size.
find_window() {
    until_true stands || fail "the window is not on the screen"
    window=$(visible | tail -n 1)
}
stands() { is_visible && xwininfo -id "$(visible | tail -n 1)" 2>/dev/null | grep -q 'Width: 930' && settled_place; }
settled_place() {
    local now before=${place:-}
    now=$(xwininfo -id "$(visible | tail -n 1)" 2>/dev/null | grep Absolute)
    place=$now
    [ "$now" = "$before" ]
}

# One step of a drag: the bench handles each before the next. Its output can still be expected.
step() { local before=$seen; settle; seen=$before; }
pointer() { xdotool mousemove --window "$window" "$1" "$2"; step; }
press() { pointer "$1" "$2"; xdotool mousedown 1; step; }
release() { xdotool mouseup 1; step; }
click() { press "$1" "$2"; release; }
wheel() { pointer "$1" "$2"; xdotool click "$3"; step; }

# drag X Y X2 Y2 ...: from point to point with the button held.
drag() {
    press "$1" "$2"
    while [ $# -ge 4 ]; do
        shift 2
        pointer "$1" "$2"
    done
    release
}
