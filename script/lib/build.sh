# shellcheck shell=bash disable=SC2154
# The build folders of this checkout: one user at a time, and never from two environments.

build_dir=$project_dir/build

# Objects of another compiler, or of this checkout at another place, do not mix with new ones.
clear_foreign_build() {
  local stamp
  stamp=$(printf '%s\n' "$(environment_id)" "$project_dir")
  [[ -f $build_dir/.environment && $(<"$build_dir/.environment") == "$stamp" ]] && return
  rm -rf -- "${build_dir:?}"/{release,dev,loopback,.examples}
  printf '%s\n' "$stamp" >"$build_dir/.environment"
}

# Ends with release_lock; until then the build folders are ours.
occupy_build_dir() {
  mkdir -p -- "$build_dir" 2>/dev/null || die "$build_dir cannot be written" \
    "Use a checkout that belongs to you"
  take_lock "$build_dir/.lock" "building or testing in this checkout"
  clear_foreign_build
}

# Ninja calls CMake again by itself when one of its files changes.
configure_and_build() {
  [[ -f $build_dir/$1/build.ninja ]] || cmake --preset "$1" || return
  cmake --build --preset "$1"
}
