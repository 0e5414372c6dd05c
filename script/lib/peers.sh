# shellcheck shell=bash disable=SC2154
# Where the programs are that ours is compared with: on the system itself or in a second root file
# system. That one can build and run the viewer too, so that all of them are measured in one place.

peers_packages=(kst gnuplot-nox python3-pandas python3-matplotlib libqcustomplot-dev locales)
peers_commands=(kst2 gnuplot python3 cmake)
peers_megabytes=3800

# Its recipe is the list above and that of the first one. It is made anew together with that one:
# programs built there must find libraries that are no older.
peers_key() {
  { printf '%s\n' "${peers_packages[@]}"; rootfs_key; } | sha256sum | cut -c1-16
}

peers_dir() { printf '%s/peers-%s\n' "$cache_dir" "$(peers_key)"; }

has_commands() {
  local name
  for name in "$@"; do command -v "$name" >/dev/null || return; done
}

# Trees of an older recipe go, unless a command is still running in them.
remove_outdated_peers() {
  local tree waste
  for tree in "$cache_dir"/peers-*/; do
    tree=${tree%/}
    [[ -d $tree && $tree != "$(peers_dir)" ]] || continue
    flock --nonblock "$cache_dir/use-${tree##*-}.lock" true || continue
    say "removing the outdated ${tree##*/}"
    # The name of what is left over: should this be interrupted, the next set-up goes on with it.
    waste=$cache_dir/new-${tree##*-}
    mv -T -- "$tree" "$waste" && remove_tree "$waste"
    rm -f -- "$cache_dir/use-${tree##*-}.lock"
  done
}

# The steps of the first root file system with another list of packages and another check.
# shellcheck disable=SC2016,SC2034,SC2317,SC2329 # those steps use what is set and defined here
set_up_peers() (
  rootfs_megabytes=$peers_megabytes
  rootfs_packages() {
    { wanted_packages build apt | cut -d' ' -f1; printf '%s\n' "${peers_packages[@]}"; } |
      paste -sd,
  }
  verify_rootfs() {
    in_rootfs "$1" bash -c 'for name; do command -v "$name" || exit; done' _ "${peers_commands[@]}"
  }
  take_lock "$cache_dir/setup.lock" "setting up the environment"
  [[ ! -d $(peers_dir) ]] || return 0
  remove_leftovers
  require_tools
  require_space
  say "the programs to compare with are fetched"
  make_rootfs "$(peers_dir)" && remove_outdated_peers
)

# Sets peers to "native" or the folder of the root file system. If there can be none, it stays empty.
peers=
prepare_peers() {
  if [[ $environment == native ]] && has_commands "${peers_commands[@]}"; then
    peers=native
    return
  fi
  [[ -z ${PLOT_KORIMO_ENVIRONMENT-} && $(package_manager) == apt && -n $(debian_mirror) ]] || return
  [[ -d $(peers_dir) ]] || set_up_peers || return
  peers=$(peers_dir)
}

# in_peers COMMAND…
in_peers() (
  environment=$peers
  in_environment "$@"
)
