# shellcheck shell=bash disable=SC2154
# The build folders of this checkout: one user at a time, and never from two environments.

build_dir=$project_dir/build

# Objects of another compiler, or of this checkout at another place, do not mix with new ones.
# clear_if_foreign STAMP FOLDER…: the stamp tells where the folders were built.
clear_if_foreign() {
  local file=$1 stamp
  shift
  stamp=$(printf '%s\n' "$(environment_id)" "$project_dir")
  [[ -f $file && $(<"$file") == "$stamp" ]] && return
  rm -rf -- "$@"
  printf '%s\n' "$stamp" >"$file"
}

clear_foreign_build() {
  clear_if_foreign "$build_dir/.environment" "${build_dir:?}"/{release,dev,loopback,.examples}
}

make_build_dir() {
  mkdir -p -- "$build_dir" 2>/dev/null || die "$build_dir cannot be written" \
    "Use a checkout that belongs to you"
}

# Ends with release_lock; until then the build folders are ours.
occupy_build_dir() {
  make_build_dir
  take_lock "$build_dir/.lock" "building or testing in this checkout"
  clear_foreign_build
}

# occupy_fuzz_dir ENVIRONMENT: fuzzing takes long and is built apart, so it does not keep others out.
occupy_fuzz_dir() {
  make_build_dir
  take_lock "$build_dir/.fuzz_lock" "fuzzing in this checkout"
  environment=$1 clear_if_foreign "$build_dir/.fuzz_environment" "${build_dir:?}/fuzz"
}

# configure_and_build PRESET [TARGET…], all targets if none is named, in the folder of the project. Ninja calls
# CMake again by itself when one of its files changes.
configure_and_build() {
  [[ -f build/$1/build.ninja ]] || cmake --preset "$1" || return
  cmake --build --preset "$1" ${2:+--target "${@:2}"}
}

# shellcheck disable=SC2016 # the inner bash expands it
build_preset() {
  cd -- "$project_dir" || return
  in_environment bash -c 'source "$0"; configure_and_build "$@"' "$lib/build.sh" "$@"
}
