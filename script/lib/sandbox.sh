# shellcheck shell=bash disable=SC2154
# Running a command in the root file system while the user's own files stay where they are.

# Variables that point into the outer system and would lead astray inside.
outer_variables=(LD_LIBRARY_PATH LD_PRELOAD QT_PLUGIN_PATH QT_QPA_PLATFORM_PLUGIN_PATH
  QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE CMAKE_PREFIX_PATH PKG_CONFIG_PATH LOCPATH LOCALE_ARCHIVE
  PERL5LIB PYTHONPATH PYTHONHOME CC CXX)

# Folders at the top that the root file system brings itself or that are bound one by one.
inner_folder() {
  case $1 in
    /bin | /sbin | /lib* | /usr | /etc | /var | /boot | /dev | /proc | /sys | /lost+found) ;;
    *) return 1 ;;
  esac
}

# The locale inside that has this language.
locale_of_language() {
  local name
  name=$(wanted_locales | grep "^${1:-none}_") && printf '%s.UTF-8\n' "$name" || echo C.UTF-8
}

# Other locales do not exist inside.
inner_locale() {
  case $1 in
    C | POSIX | C.UTF-8 | C.utf8) printf '%s\n' "$1" ;;
    *) locale_of_language "${1%%_*}" ;;
  esac
}

add_system() {
  local tree=$1 name
  sandbox+=(--ro-bind "$tree/usr" /usr --ro-bind "$tree/etc" /etc --ro-bind "$tree/var" /var)
  for name in bin sbin lib lib32 lib64 libx32; do
    [[ ! -L $tree/$name ]] || sandbox+=(--symlink "usr/$name" "/$name")
  done
  for name in passwd group hosts resolv.conf localtime machine-id; do
    [[ ! -e /etc/$name ]] || sandbox+=(--ro-bind "$(realpath "/etc/$name")" "/etc/$name")
  done
  sandbox+=(--dev /dev --dev-bind-try /dev/dri /dev/dri --proc /proc --ro-bind-try /sys /sys
    --bind-try /var/tmp /var/tmp)
}

# /home, /tmp, /run with the sockets of the desktop, /mnt, and whatever else lies at the top.
add_outer_folders() {
  local folder
  for folder in /*/; do
    folder=${folder%/}
    inner_folder "$folder" || sandbox+=(--bind "$folder" "$folder")
  done
}

# add_path TREE PATH: makes PATH visible if it lies in a folder that is not passed on as a whole.
# A mount point cannot be made inside the read-only tree, so the nearest folder it has is covered.
add_path() {
  local tree=$1 path=$2
  inner_folder "/$(cut -d/ -f2 <<<"$path")" || return 0
  while [[ ! -d $tree$path ]]; do path=${path%/*}; done
  [[ $path == /*/* ]] ||
    die "$2 lies in $path, which belongs to the environment" "Use a folder below your home"
  sandbox+=(--bind "$path" "$path")
}

add_environment() {
  local name
  for name in "${outer_variables[@]}"; do sandbox+=(--unsetenv "$name"); done
  sandbox+=(--setenv LANG "$(inner_locale "${LANG-}")")
  for name in LC_ALL "${!LC_@}"; do
    [[ -z ${!name-} ]] || sandbox+=(--setenv "$name" "$(inner_locale "${!name}")")
  done
  sandbox+=(--setenv PATH /usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
    --setenv PLOT_KORIMO_ENVIRONMENT "${1##*/}")
}

passed_signals=(TERM HUP USR1 USR2)

# A signal for the script is meant for the command: bwrap would just end and take it along.
pass_signal() {
  local child=
  # The kernel writes no line end there, so that reading "fails" although it fills child.
  { read -r child <"/proc/$monitor/task/$monitor/children"; } 2>/dev/null || true
  [[ -z $child ]] || kill -s "$1" "$child" 2>/dev/null || true
}

# The terminal sends its own signals to the command too: those are not sent twice.
pass_signals() {
  local name
  for name in "${passed_signals[@]}"; do
    # shellcheck disable=SC2064 # the name of now is meant
    trap "pass_signal $name" "$name"
  done
  if [[ -t 0 ]]; then trap : INT QUIT; else trap 'pass_signal INT' INT; fi
}

# A trapped signal interrupts the wait; only the end of the command ends it.
wait_for_monitor() {
  local status=0
  while :; do
    wait "$monitor" && status=0 || status=$?
    kill -0 "$monitor" 2>/dev/null || return "$status"
  done
}

# in_rootfs TREE COMMAND…
in_rootfs() {
  local tree=$1 status=0
  local -a sandbox=()
  shift
  add_system "$tree"
  add_outer_folders
  add_path "$tree" "$project_dir"
  add_path "$tree" "$HOME"
  add_path "$tree" "$PWD"
  add_environment "$tree"
  # In the background, so that traps run at once; bash would make it deaf to the keyboard there.
  env --default-signal=INT,QUIT bwrap "${sandbox[@]}" --die-with-parent --chdir "$PWD" -- "$@" <&0 &
  monitor=$!
  pass_signals
  wait_for_monitor || status=$?
  trap - "${passed_signals[@]}" INT QUIT
  return "$status"
}
