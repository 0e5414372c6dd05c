#!/usr/bin/env bash
# The parts of script/ that can be tested without a bare machine.
set -euo pipefail
here=$(cd -P -- "${BASH_SOURCE[0]%/*}" && pwd -P)
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
export XDG_CACHE_HOME=$scratch/cache
# shellcheck source=script/lib/environment.sh
source "$here/../../script/lib/environment.sh"
# shellcheck source=script/lib/extra_rootfs.sh
source "$here/../../script/lib/extra_rootfs.sh"
# shellcheck source=script/lib/build.sh
source "$here/../../script/lib/build.sh"
# shellcheck source=script/lib/table.sh
source "$here/../../script/lib/table.sh"
# shellcheck source=script/lib/display.sh
source "$here/../../script/lib/display.sh"
prepare_cache_dir
failures=0

expect() {
  [[ $2 == "$3" ]] && return
  printf '%s: got "%s", expected "%s"\n' "$1" "$2" "$3"
  failures=$((failures + 1))
}

succeeds() { if "$@" >/dev/null 2>&1; then echo yes; else echo no; fi; }

test_locales() {
  expect "own locale" "$(inner_locale de_DE.UTF-8)" de_DE.UTF-8
  expect "another German" "$(inner_locale de_AT.UTF-8)" de_DE.UTF-8
  expect "another language" "$(inner_locale fr_FR.UTF-8)" C.UTF-8
  expect "no locale" "$(inner_locale '')" C.UTF-8
}

test_only_own_trees_are_removed() {
  mkdir -p "$scratch/precious" "$cache_dir/new-old/etc" "$cache_dir/other"
  expect "a strange folder" "$(succeeds remove_tree "$scratch/precious")" no
  expect "another folder of the cache" "$(succeeds remove_tree "$cache_dir/other")" no
  expect "what is left of an environment" "$(succeeds remove_tree "$cache_dir/new-old")" yes
  expect "what is left" "$(cd "$scratch" && echo precious cache/plot_korimo/{other,new-*})" \
    "precious cache/plot_korimo/other cache/plot_korimo/new-*"
}

test_outdated_trees_wait_for_their_users() {
  local use
  mkdir -p "$cache_dir"/rootfs-{used,idle}
  exec {use}>>"$cache_dir/use-used.lock"
  flock --shared "$use"
  remove_outdated rootfs "$(rootfs_dir)" 2>/dev/null
  expect "in use" "$(succeeds test -d "$cache_dir/rootfs-used")" yes
  expect "idle" "$(succeeds test -d "$cache_dir/rootfs-idle")" no
  exec {use}>&-
  remove_outdated rootfs "$(rootfs_dir)" 2>/dev/null
  expect "no longer in use" "$(succeeds test -d "$cache_dir/rootfs-used")" no
}

# shellcheck disable=SC2034 # they are used by name
test_further_environments() {
  local one_packages=(a b) two_packages=(a c) one_commands=(no-such-command) one=left
  expect "another list" "$(succeeds test "$(extra_key one)" = "$(extra_key two)")" no
  expect "another first recipe" \
    "$(before=$(extra_key one); rootfs_key() { echo other; }
      succeeds test "$(extra_key one)" = "$before")" no
  expect "its folder" "$(extra_dir one)" "$cache_dir/one-$(extra_key one)"
  expect "no way to have it" \
    "$(PLOT_KORIMO_ENVIRONMENT=inside environment=native succeeds prepare_extra one)" no
  one_commands=(bash)
  environment=native prepare_extra one
  expect "on the system itself" "$one" native
}

# shellcheck disable=SC2034 # they are used by name
test_outdated_further_environments_go() {
  local one_packages=(a) use
  mkdir -p "$cache_dir"/{one-used,one-idle,two-idle} "$(extra_dir one)"
  exec {use}>>"$cache_dir/use-used.lock"
  flock --shared "$use"
  remove_outdated one "$(extra_dir one)" 2>/dev/null
  exec {use}>&-
  expect "what is left" "$(cd "$cache_dir" && echo {one,two,new}-*)" \
    "$(printf '%s\n' "one-$(extra_key one)" one-used | sort | paste -sd' ') two-idle new-*"
}

test_a_changed_list_asks_for_a_new_tree() {
  local before project_dir=$scratch/project
  mkdir -p "$project_dir"/script/{lib,packages}
  cp "$here"/../../script/packages/apt "$project_dir/script/packages/"
  cp "$here"/../../script/lib/rootfs.sh "$project_dir/script/lib/"
  before=$(rootfs_key)
  expect "nothing changed" "$(rootfs_key)" "$before"
  echo "build another-package" >>"$project_dir/script/packages/apt"
  expect "list changed" "$(succeeds test "$(rootfs_key)" = "$before")" no
}

test_package_kinds() {
  expect "tools only for tests" "$(wanted_packages build apt | grep -c xvfb || true)" 0
  expect "tests need both" "$(wanted_packages test apt | grep -cE '^(xvfb|cmake) ')" 2
  expect "a tool of the tree" "$(rootfs_packages | grep -cw clang-tidy-22)" 1
  expect "which no system must have" "$(wanted_packages test apt | grep -c clang-tidy-22 || true)" 0
  expect "lowest version" "$(wanted_packages build apt | grep libqwt)" "libqwt-qt6-dev 6.2"
}

test_locks_exclude() {
  take_lock "$scratch/lock" "testing"
  expect "while held" "$(succeeds flock --nonblock "$scratch/lock" true)" no
  release_lock
  expect "after release" "$(succeeds flock --nonblock "$scratch/lock" true)" yes
}

test_foreign_builds_are_cleared() {
  local build_dir=$scratch/build environment=native PLOT_KORIMO_ENVIRONMENT=
  mkdir -p "$build_dir/release"
  clear_foreign_build
  expect "unknown origin" "$(succeeds test -d "$build_dir/release")" no
  mkdir "$build_dir/release"
  clear_foreign_build
  expect "same origin" "$(succeeds test -d "$build_dir/release")" yes
  environment=/elsewhere/rootfs-1
  clear_foreign_build
  expect "another environment" "$(succeeds test -d "$build_dir/release")" no
}

test_fuzzers_are_built_apart() {
  local build_dir=$scratch/build PLOT_KORIMO_ENVIRONMENT=
  mkdir -p "$build_dir/fuzz" "$build_dir/release"
  occupy_fuzz_dir /cache/tools-1
  release_lock
  expect "unknown origin" "$(succeeds test -d "$build_dir/fuzz")" no
  expect "of the others" "$(succeeds test -d "$build_dir/release")" yes
  mkdir "$build_dir/fuzz"
  occupy_fuzz_dir /cache/tools-1
  release_lock
  expect "same origin" "$(succeeds test -d "$build_dir/fuzz")" yes
}

test_tables() {
  expect "columns" "$(printf 'a\tlong\tc\nlonger\tb\td\n' | aligned | paste -sd'|')" \
    "a       long  c|longer  b     d"
}

test_displays() {
  expect "no display" "$(DISPLAY='' WAYLAND_DISPLAY='' succeeds has_x11)" no
  expect "nobody behind it" "$(DISPLAY=:9999 succeeds has_x11)" no
  expect "of another machine" "$(DISPLAY=elsewhere:10.0 succeeds has_x11)" yes
  expect "no compositor" "$(WAYLAND_DISPLAY=none XDG_RUNTIME_DIR=$scratch succeeds has_wayland)" no
}

for each in $(compgen -A function test_); do "$each"; done
((failures == 0))
