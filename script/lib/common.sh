# shellcheck shell=bash disable=SC2034
# What all scripts share: where things lie, how they speak and how they wait for each other.

project_dir=$(cd -P -- "${BASH_SOURCE[0]%/*}/../.." && pwd -P)
HOME=${HOME:-$(getent passwd "$(id -u)" | cut -d: -f6)}
export HOME
cache_dir=${XDG_CACHE_HOME:-$HOME/.cache}/plot_korimo
caller=script/${0##*/}

# A call without standard input must not fail on handing it on.
[[ -e /dev/fd/0 ]] || exec </dev/null

say() { printf '%s: %s\n' "$caller" "$*" >&2; }

# die WHAT_HAPPENED WHAT_TO_DO: the one line a failure ends with.
die() {
  printf '%s: error: %s. %s\n' "$caller" "$1" "$2" >&2
  exit 1
}

prepare_cache_dir() {
  mkdir -p -- "$cache_dir" 2>/dev/null || true
  [[ -w $cache_dir ]] || die "the cache folder $cache_dir cannot be written" \
    "Point XDG_CACHE_HOME to a folder that can be"
}

# take_lock FILE WHAT: waits until no other call holds FILE. The lock is tied to a descriptor that
# child processes inherit, so it outlives a killed script for as long as its work goes on.
take_lock() {
  exec {lock_fd}>>"$1"
  flock --nonblock "$lock_fd" && return
  say "waiting for another call that is $2 …"
  flock "$lock_fd"
}

release_lock() { exec {lock_fd}>&-; }

# logged LOG WHAT COMMAND…: one line instead of the output, which is shown only after a failure.
logged() {
  local log=$1 what=$2 start=$SECONDS
  shift 2
  say "$what …"
  if "$@" >"$log" 2>&1; then
    say "$what: done in $((SECONDS - start)) s"
    return
  fi
  tail -n 40 -- "$log" >&2
  say "$what: failed; all of its output is in $log"
  return 1
}
