# shellcheck shell=bash disable=SC2154
# Running a command as root: directly, or through sudo where that needs no unanswered question.

is_root() { [[ $EUID -eq 0 ]]; }

has_terminal() { [[ -t 0 && -t 2 ]]; }

can_become_root() {
  is_root && return
  command -v sudo >/dev/null || return
  sudo -n true 2>/dev/null || has_terminal
}

# sudo drops the environment, but a proxy named there must reach the package manager.
proxy_settings() { env | grep -E '^(https?|ftp|no)_proxy=' || true; }

as_root() {
  local -a proxies
  mapfile -t proxies < <(proxy_settings)
  if is_root; then "$@"; else sudo env "${proxies[@]}" "$@"; fi
}

# Says how a person becomes root by hand, for commands that are printed.
root_prefix() {
  if is_root; then return; fi
  command -v sudo >/dev/null && printf 'sudo '
  return 0
}

# as_root_or_die WHY COMMAND…
as_root_or_die() {
  local why=$1
  shift
  can_become_root || die "$why needs root, and sudo does not give it without a password" \
    "Run once as root: $*"
  as_root "$@"
}
