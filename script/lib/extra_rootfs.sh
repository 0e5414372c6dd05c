# shellcheck shell=bash disable=SC2154
# Further environments for work that is not needed to build and test: on the system itself, or in a
# root file system of their own that can build and run the viewer too.
#
# An environment NAME is told by these variables: NAME_packages (on top of those to build with),
# NAME_commands (by which one knows it), NAME_megabytes and NAME_purpose.

# Its recipe is its list of packages and that of the first one. It is made anew together with that
# one: programs built there must find libraries that are no older.
extra_key() {
  local -n key_packages=$1_packages
  { printf '%s\n' "${key_packages[@]}"; rootfs_key; } | sha256sum | cut -c1-16
}

extra_dir() { printf '%s/%s-%s\n' "$cache_dir" "$1" "$(extra_key "$1")"; }

has_commands() {
  local name
  for name in "$@"; do command -v "$name" >/dev/null || return; done
}

# The steps of the first root file system with another list of packages and another check.
# shellcheck disable=SC2016,SC2034,SC2317,SC2329 # those steps use what is set and defined here
set_up_extra() (
  name=$1
  declare -n packages=$1_packages commands=$1_commands megabytes=$1_megabytes purpose=$1_purpose
  rootfs_megabytes=$megabytes
  rootfs_packages() {
    { wanted_packages build apt | cut -d' ' -f1; printf '%s\n' "${packages[@]}"; } | paste -sd,
  }
  verify_rootfs() {
    in_rootfs "$1" bash -c 'for name; do command -v "$name" || exit; done' _ "${commands[@]}"
  }
  take_lock "$cache_dir/setup.lock" "setting up the environment"
  [[ ! -d $(extra_dir "$name") ]] || return 0
  remove_leftovers
  require_tools
  require_space
  say "fetching $purpose"
  make_rootfs "$(extra_dir "$name")" && remove_outdated "$name" "$(extra_dir "$name")"
)

# prepare_extra NAME sets the variable of that name to "native" or the folder of the root file
# system. If there can be none, it is empty.
prepare_extra() {
  local -n place=$1 needed=$1_commands
  place=
  if [[ $environment == native ]] && has_commands "${needed[@]}"; then
    place=native
    return
  fi
  [[ -z ${PLOT_KORIMO_ENVIRONMENT-} && $(package_manager) == apt && -n $(debian_mirror) ]] || return
  [[ -d $(extra_dir "$1") ]] || set_up_extra "$1" || return
  place=$(extra_dir "$1")
}

# in_extra NAME COMMAND…
in_extra() (
  declare -n place=$1
  shift
  environment=$place
  in_environment "$@"
)
