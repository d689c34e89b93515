# A desktop of its own on a virtual screen. Sourced by run and by the scripts that measure.

# start_desktop WIDTHxHEIGHT [bare]: sets DISPLAY; "bare" leaves out window manager, compositor and
# panel. stop_desktop ends what it started.
start_desktop() {
  desktop_pids=()
  local ready number
  ready=$(mktemp -u)
  mkfifo "$ready"
  # In a session of its own: Ctrl+C is for the program, not for the screen under it.
  setsid Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset >/dev/null 2>&1 3<>"$ready" &
  desktop_pids+=($!)
  # The server writes its number when it is ready.
  read -r -t 20 number <>"$ready" || { echo "Xvfb did not start" >&2; return 1; }
  rm -f "$ready"
  export DISPLAY=":$number"
  [ "${2:-}" = bare ] && return 0
  setsid openbox >/dev/null 2>&1 & desktop_pids+=($!)
  setsid picom --backend xrender >/dev/null 2>&1 & desktop_pids+=($!)
  setsid tint2 >/dev/null 2>&1 & desktop_pids+=($!)
  until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
    sleep 0.05
  done
}

stop_desktop() {
  local pid
  for ((i = ${#desktop_pids[@]} - 1; i >= 0; i--)); do
    pid=${desktop_pids[$i]}
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  desktop_pids=()
}
