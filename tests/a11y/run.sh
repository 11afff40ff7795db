#!/bin/bash
# Plays a whole game through AT-SPI: the game on a virtual screen with a D-Bus
# session and the accessibility bus, the reader's side in play.py.
#   run.sh GAME      exits 77 (skipped) when the desktop's pieces are missing
set -u
game=$1
here=$(cd "$(dirname "$0")" && pwd)
skip() { echo "skipped: $*"; exit 77; }
command -v Xvfb >/dev/null || skip "no Xvfb"
command -v dbus-daemon >/dev/null || skip "no dbus-daemon"
launcher=$(ls /usr/libexec/at-spi-bus-launcher /usr/lib/at-spi2-core/at-spi-bus-launcher 2>/dev/null | head -n 1)
[[ -n $launcher ]] || skip "no at-spi-bus-launcher (at-spi2-core)"
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || skip "no python3-pyatspi"

work=$(mktemp -d)
pids=()
cleanup() { kill "${pids[@]}" 2>/dev/null; rm -rf "$work"; }
trap cleanup EXIT
export XDG_RUNTIME_DIR=$work HOME=$work
unset WAYLAND_DISPLAY QT_QPA_PLATFORM

for n in $(seq 90 120); do
  [[ -e /tmp/.X11-unix/X$n || -e /tmp/.X$n-lock ]] && continue
  Xvfb ":$n" -screen 0 1024x768x24 -nolisten tcp >/dev/null 2>&1 &
  pids+=($!)
  export DISPLAY=":$n"
  break
done
for _ in $(seq 50); do [[ -e /tmp/.X11-unix/X${DISPLAY#:} ]] && break; sleep 0.1; done
[[ -e /tmp/.X11-unix/X${DISPLAY#:} ]] || skip "Xvfb did not start"

address=$(dbus-daemon --session --fork --print-address=1 --print-pid=3 3>"$work/dbus.pid") ||
  skip "no D-Bus session could start"
pids+=($(cat "$work/dbus.pid"))
export DBUS_SESSION_BUS_ADDRESS=$address
"$launcher" --launch-immediately >/dev/null 2>&1 &
pids+=($!)
sleep 0.5

QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "$game" >"$work/game.log" 2>&1 &
pids+=($!)
/usr/bin/python3 "$here/play.py"
status=$?
[[ $status -eq 0 ]] || cat "$work/game.log"
exit $status
