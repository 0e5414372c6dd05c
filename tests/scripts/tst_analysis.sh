#!/usr/bin/env bash
# What is analysed, and what is known to be clean already.
set -euo pipefail
here=$(cd -P -- "${BASH_SOURCE[0]%/*}" && pwd -P)
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
export XDG_CACHE_HOME=$scratch/cache
# shellcheck source=script/lib/common.sh
source "$here/../../script/lib/common.sh"
# shellcheck source=script/lib/analysis.sh
source "$here/../../script/lib/analysis.sh"
failures=0

# A checker that writes down what it sees, and finds the word "fault".
checker=$scratch/checker
# shellcheck disable=SC2016 # the checker expands it
printf '%s\n' '#!/bin/bash' \
  '[[ $1 != --version ]] || exit 0' \
  'echo "${*: -1}" >>"${0%/*}/seen"; ! grep -q fault "${@: -1}"' >"$checker"
chmod +x "$checker"

# expect_analysed WHAT FILES: those that the checker has seen.
expect_analysed() {
  local seen
  : >"$scratch/seen"
  printf '%s\n' "$PWD"/{one,two}.cpp | analyse "$checker" --option || true
  seen=$(sed 's:.*/::' "$scratch/seen" | sort | paste -sd' ')
  [[ $seen == "$2" ]] && return
  printf '%s: analysed "%s", expected "%s"\n' "$1" "$seen" "$2"
  failures=$((failures + 1))
}

checkout() {
  mkdir -p "$scratch/$1"
  cd "$scratch/$1"
  # shellcheck disable=SC2034 # analyse uses it
  project_dir=$PWD
  echo 'int one;' >one.cpp
  echo 'int two;' >two.cpp
  echo 'int of_both;' >of_both.h
}

checkout here
expect_analysed "for the first time" "one.cpp two.cpp"
expect_analysed "nothing changed" ""
echo 'int more;' >>one.cpp
expect_analysed "a file changed" "one.cpp"
echo 'int more;' >>of_both.h
expect_analysed "a header changed" "one.cpp two.cpp"
echo 'int fault;' >>two.cpp
expect_analysed "a fault comes in" "two.cpp"
expect_analysed "a fault stays" "two.cpp"
checkout elsewhere
expect_analysed "the same in another checkout" ""
echo 'set(x)' >CMakeLists.txt
expect_analysed "built otherwise" "one.cpp two.cpp"
((failures == 0))
