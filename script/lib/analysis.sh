# shellcheck shell=bash disable=SC2154
# Analysing all source files, by checkers that take far longer than a compiler. What was found to be clean is
# not analysed again, in this or another checkout, until it changes, or one of the things it depends on.

clean_dir=$cache_dir/clean

# All that a source file can include, and how it is built.
fingerprint_of_sources() {
  find . \( -path ./build -o -path ./.git \) -prune -o -type f \
    \( -name '*.h' -o -name '*.ui' -o -name '*.qrc' -o -name '*.cmake' -o -name '*.in' -o -name CMakeLists.txt \
    -o -name CMakePresets.json -o -name .clang-tidy \) -print0 | sort -z | xargs -0 sha256sum
}

# fingerprint CHECKER…: of all but the source file itself.
fingerprint() {
  { printf '%s\n' "$@"
    "$1" --version
    "${CXX:-c++}" --version
    pkg-config --modversion Qt6Core Qt6Qwt6
    fingerprint_of_sources
  } | sha256sum
}

# Lines of a source file and of the mark that tells that it is clean, one after the other; only what has none.
# Marks that nobody has asked for in a month go.
not_yet_clean() {
  local common file mark
  common=$(fingerprint "$@")
  mkdir -p -- "$clean_dir"
  find "$clean_dir" -type f -mtime +30 -delete
  while read -r file; do
    mark=$clean_dir/$({ echo "$common ${file#"$project_dir"/}"; cat -- "$file"; } | sha256sum | cut -c1-40)
    if [[ -e $mark ]]; then touch -- "$mark"; else printf '%s\n' "$file" "$mark"; fi
  done
}

# analyse CHECKER…: runs it on the source files that standard input names, as many at once as there are cores.
# shellcheck disable=SC2016 # the inner bash expands it
analyse() {
  not_yet_clean "$@" | xargs --no-run-if-empty -d '\n' -n 2 -P "$(nproc)" \
    bash -c '"${@:1:$#-2}" "${@: -2:1}" && touch -- "${@: -1}"' _ "$@"
}
