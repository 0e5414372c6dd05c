# shellcheck shell=bash disable=SC2154
# A root file system with the dependencies, for a Debian whose own Qt and Qwt are too old.
# shellcheck disable=SC2016 # apt and the hooks expand these themselves
# Its recipe is this file, packages/apt and packages/locales: when one of them changes, it is made anew.

rootfs_release=forky
rootfs_megabytes=2600

rootfs_key() {
  { cat "$project_dir"/script/lib/rootfs.sh "$project_dir"/script/packages/{apt,locales}
    dpkg --print-architecture; } 2>/dev/null | sha256sum | cut -c1-16
}

rootfs_dir() { printf '%s/rootfs-%s\n' "$cache_dir" "$(rootfs_key)"; }

# The site of the machine's main Debian archive, whatever other sources it has.
debian_mirror() {
  local site
  site=$(apt-get indextargets --format '$(ORIGIN)|$(LABEL)|$(COMPONENT)|$(CREATED_BY)|$(SITE)' |
    sed -n 's/^Debian|Debian|main|Packages|//p' | grep -v '^cdrom:' | head -n 1) || return
  if [[ $site == mirror+file:* ]]; then
    site=$(grep -oE '^[a-z]+://[^[:space:]]+' "/${site#mirror+file:/}" | head -n 1)
  fi
  printf '%s\n' "$site"
}

# The machine's policy for its mirror holds for this one too: it is the same mirror.
apt_policy() {
  apt-config dump | grep -E '^Acquire::(Check-|Allow|Retries|ForceIPv|https?[: ])' || true
  echo 'Acquire::Languages "none";'
  echo 'APT::Install-Recommends "false";'
}

rootfs_packages() {
  { wanted_packages test apt; wanted_packages tree apt; } | cut -d' ' -f1 | sort -u | paste -sd,
}

# Things inside the tree that the sandbox later covers with the system's own must exist.
rootfs_hooks=(
  --customize-hook="for name in $(wanted_locales | paste -sd' '); do
    chroot \"\$1\" localedef -i \$name -f UTF-8 \$name.UTF-8 || exit; done"
  --customize-hook='cd "$1/etc" && rm -f localtime resolv.conf apt/apt.conf.d/99mmdebstrap'
  --customize-hook='cd "$1/etc" && touch localtime resolv.conf hosts machine-id passwd group'
)

rootfs_options=(
  --variant=apt
  --dpkgopt='force-unsafe-io'
  --dpkgopt='path-exclude=/usr/share/doc/*'
  --dpkgopt='path-exclude=/usr/share/man/*'
  --dpkgopt='path-exclude=/usr/share/info/*'
  "${rootfs_hooks[@]}"
)

# Without sudo the tree is unpacked from an archive, so that it belongs to the user all the same.
bootstrap_mode() {
  if is_root || sudo -n true 2>/dev/null; then echo root; return; fi
  if grep -q "^$(id -un):" /etc/subuid 2>/dev/null && command -v newuidmap >/dev/null; then
    echo unshare
  elif can_become_root; then echo root
  else echo none; fi
}

bootstrap() {
  local mode=$1 target=$2 mirror=$3 policy=$4
  local -a command=(mmdebstrap --mode="$mode" "${rootfs_options[@]}" --aptopt="$policy"
    --include="$(rootfs_packages)" "$rootfs_release")
  if [[ $mode == unshare ]]; then
    mkdir -- "$target"
    (cd / && "${command[@]}" - "$mirror") |
      tar -x -C "$target" --no-same-owner --exclude='./dev/*'
  else
    # sudo closes our own lock's descriptor: this one lives as long as the last child.
    as_root flock "$cache_dir/bootstrap.lock" "${command[@]}" "$target" "$mirror"
  fi
}

unmount_inside() {
  local point
  while read -r point; do
    point=$(printf '%b' "$point")
    [[ $point != "$1"/* ]] || as_root umount --lazy "$point"
  done < <(cut -d' ' -f5 /proc/self/mountinfo | sort -r)
}

# Removes an environment of ours and nothing else.
remove_tree() {
  [[ $1 == "$cache_dir"/new-* ]] || return
  [[ -e $1 ]] || return 0
  unmount_inside "$1"
  if [[ -O $1 ]]; then
    rm -rf --one-file-system -- "$1"
  else
    as_root rm -rf --one-file-system -- "$1"
  fi
}

remove_leftovers() {
  local tree
  # What an interrupted call has left running must end before its tree can go.
  flock "$cache_dir/bootstrap.lock" true
  for tree in "$cache_dir"/new-*; do
    [[ -e $tree ]] || continue
    say "removing the rest of an interrupted set-up"
    remove_tree "$tree"
  done
}

# remove_outdated NAME TREE: all trees of that name but this one go, unless a command is still running in them.
remove_outdated() {
  local tree waste
  for tree in "$cache_dir/$1"-*/; do
    tree=${tree%/}
    [[ -d $tree && $tree != "$2" ]] || continue
    flock --nonblock "$cache_dir/use-${tree##*-}.lock" true || continue
    say "removing the outdated ${tree##*/}"
    # The name of what is left over: should this be interrupted, the next set-up goes on with it.
    waste=$cache_dir/new-${tree##*-}
    mv -T -- "$tree" "$waste" && remove_tree "$waste"
    rm -f -- "$cache_dir/use-${tree##*-}.lock"
  done
}

require_space() {
  local free
  free=$(df --output=avail -m -- "$cache_dir" | tail -n 1)
  ((free >= rootfs_megabytes)) || die \
    "$cache_dir has $((free)) MB left, and the environment needs $rootfs_megabytes MB" \
    "Make room, or point XDG_CACHE_HOME to another disk"
}

require_tools() {
  local -a lacking=()
  command -v mmdebstrap >/dev/null || lacking+=(mmdebstrap)
  command -v bwrap >/dev/null || lacking+=(bubblewrap)
  can_become_root || command -v newuidmap >/dev/null || lacking+=(uidmap)
  ((${#lacking[@]} == 0)) || install_packages "${lacking[@]}"
}

verify_rootfs() {
  in_rootfs "$1" bash "$project_dir/script/lib/probe.sh" test
}

make_rootfs() {
  local target=$1 mode mirror fresh
  fresh=$cache_dir/new-${target##*-}
  mode=$(bootstrap_mode)
  [[ $mode != none ]] || die "root is needed once, or a range of user numbers in /etc/subuid" \
    "Run as root: usermod --add-subuids 100000-165535 --add-subgids 100000-165535 $(id -un)"
  mirror=$(debian_mirror)
  apt_policy >"$cache_dir/apt-policy"
  logged "$cache_dir/rootfs.log" \
    "setting up Debian $rootfs_release with Qt and Qwt in $target (once, a few minutes)" \
    bootstrap "$mode" "$fresh" "$mirror" "$cache_dir/apt-policy" ||
    die "the environment could not be set up" "Check that the mirror $mirror answers; call again"
  logged "$cache_dir/verify.log" "checking the new environment" verify_rootfs "$fresh" ||
    die "the new environment does not work" "See $cache_dir/verify.log; call again"
  mv -T -- "$fresh" "$target"
}

rootfs_set_up() {
  require_tools
  require_space
  make_rootfs "$(rootfs_dir)"
  remove_outdated rootfs "$(rootfs_dir)"
}
