# shellcheck shell=bash disable=SC2154
# Chooses where the dependencies are: on the system itself or in the root file system.

lib_dir=${BASH_SOURCE[0]%/*}
# shellcheck source=script/lib/common.sh
source "$lib_dir/common.sh"
# shellcheck source=script/lib/privilege.sh
source "$lib_dir/privilege.sh"
# shellcheck source=script/lib/native.sh
source "$lib_dir/native.sh"
# shellcheck source=script/lib/rootfs.sh
source "$lib_dir/rootfs.sh"
# shellcheck source=script/lib/sandbox.sh
source "$lib_dir/sandbox.sh"

# Sets environment to "native" or the folder of the root file system, if one is ready for KIND.
environment_ready() {
  if [[ -n ${PLOT_KORIMO_ENVIRONMENT-} ]] || native_suffices "$1"; then
    environment=native
  elif [[ $(package_manager) == apt && -d $(rootfs_dir) ]] && command -v bwrap >/dev/null; then
    environment=$(rootfs_dir)
  else
    return 1
  fi
}

# Which way is open shows only once the lists of the package archive are there.
refresh_apt() {
  apt_has_lists && return
  can_become_root || die "the package lists are empty, and only root can fetch them" \
    "Run once as root, then call again: apt-get update"
  logged "$cache_dir/packages.log" "fetching the package lists" as_root apt-get update ||
    die "apt-get update failed" "See $cache_dir/packages.log; mend the network or the sources"
}

set_up_with_apt() {
  refresh_apt
  if apt_suffices; then
    native_set_up "$1"
  elif [[ -n $(debian_mirror) ]]; then
    rootfs_set_up
  else
    die "this system's packages are too old (Qt 6.6 and Qwt 6.2 are needed)" \
      "Use Debian 12 or later, Ubuntu 26.04 or later, Fedora or Arch"
  fi
}

set_up() {
  case $(package_manager) in
    apt) set_up_with_apt "$1" ;;
    dnf | pacman) native_set_up "$1" ;;
    *) die "the dependencies are missing ($(native_lacks "$1")) and so is a known package manager" \
      "Install them yourself, or use Debian, Ubuntu, Fedora or Arch" ;;
  esac
}

# prepare_environment KIND, "build" or "test".
prepare_environment() {
  prepare_cache_dir
  environment_ready "$1" && return
  take_lock "$cache_dir/setup.lock" "setting up the environment"
  if ! environment_ready "$1"; then
    remove_leftovers
    set_up "$1"
    environment_ready "$1" || die "the environment is still incomplete" "Call $caller again"
  fi
  release_lock
}

environment_id() { printf '%s\n' "${PLOT_KORIMO_ENVIRONMENT:-${environment##*/}}"; }

# in_environment COMMAND…: the command's exit code is that of the call.
in_environment() {
  local use
  if [[ $environment == native ]]; then
    "$@"
    return
  fi
  # Held while the command runs, so that nobody removes the environment meanwhile.
  exec {use}>>"$cache_dir/use-${environment##*-}.lock"
  flock --shared "$use"
  in_rootfs "$environment" "$@"
}

# exec_in_environment COMMAND…: as the last act of a script.
exec_in_environment() {
  [[ $environment != native ]] || exec "$@"
  in_environment "$@"
}
