# shellcheck shell=bash disable=SC2154,SC2034
# Where the window goes: to the user's desktop, or, without one, to a VNC port of this machine.

has_wayland() {
  local socket=${WAYLAND_DISPLAY-}
  [[ -n $socket ]] || return
  [[ $socket == /* ]] || socket=${XDG_RUNTIME_DIR-}/$socket
  [[ -S $socket ]]
}

# A display of this machine has a socket, as a file or by name only; of others we cannot know.
has_x11() {
  local socket
  [[ ${DISPLAY-} == *:* ]] || return
  [[ $DISPLAY == :* || $DISPLAY == unix:* ]] || return 0
  socket=${DISPLAY#*:}
  socket=/tmp/.X11-unix/X${socket%%.*}
  [[ -S $socket ]] || grep -qF "@$socket" /proc/net/unix
}

port_is_free() { ! (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; }

# Sets vnc_port. The lock keeps two calls that look at the same time from taking the same port.
choose_vnc_port() {
  local claim
  for vnc_port in {5900..5999}; do
    exec {claim}>>"$cache_dir/vnc-$vnc_port.lock"
    flock --nonblock "$claim" && port_is_free "$vnc_port" && return
    exec {claim}>&-
  done
  die "no port between 5900 and 5999 is free for VNC" "Close one of the running viewers"
}

# Qt's VNC server listens on every address of the machine and has no password: a preloaded library
# keeps it on 127.0.0.1. It is named without its folder, which may hold blanks that LD_PRELOAD
# would take for separators.
loopback=$build_dir/loopback
loopback_settings=("LD_LIBRARY_PATH=$loopback" LD_PRELOAD=libloopback_only.so)

build_loopback() {
  local source=$project_dir/script/lib/loopback_only.c library=$loopback/libloopback_only.so
  mkdir -p -- "$loopback"
  [[ $library -nt $source ]] || in_environment cc -shared -fPIC -O2 -o "$library" "$source" ||
    die "the library that keeps VNC local could not be built" "Start from a graphical desktop"
}

# The loader only warns about a library it cannot load, which would leave the port open to all.
check_loopback() {
  [[ -z $(in_environment env "${loopback_settings[@]}" true 2>&1) ]] ||
    die "VNC could not be kept to this machine" "Move the checkout to a path without colons"
}

offer_vnc() {
  choose_vnc_port
  check_loopback
  display_settings=("${loopback_settings[@]}" "QT_QPA_PLATFORM=vnc:port=$vnc_port:size=1280x1024")
  say "no X11 or Wayland display found: the window is offered through VNC at 127.0.0.1:$vnc_port" \
    "(from elsewhere: ssh -L $vnc_port:127.0.0.1:$vnc_port $(uname -n)); Ctrl-C ends it"
}

# Sets display_settings, the variables with which the viewer finds its display.
choose_display() {
  display_settings=()
  if [[ -n ${QT_QPA_PLATFORM-} ]]; then return; fi
  if has_wayland && has_x11; then return; fi
  if has_wayland; then display_settings=(QT_QPA_PLATFORM=wayland)
  elif has_x11; then display_settings=(QT_QPA_PLATFORM=xcb)
  else offer_vnc; fi
}
