#!/usr/bin/env bash
# Tells whether everything is here that is needed for "build" or "test".
# Usage: bash probe.sh KIND; names on standard output what is missing.
set -euo pipefail

here=$(cd -P -- "${BASH_SOURCE[0]%/*}/.." && pwd -P)
kind=$1

missing_commands() {
  local for_kind name
  while read -r for_kind name; do
    [[ $for_kind == build || $for_kind == "$kind" ]] || continue
    command -v "$name" >/dev/null || printf 'the command %s\n' "$name"
  done < <(grep -v '^#' "$here/packages/commands")
}

missing_locales() {
  local name there
  [[ $kind == test ]] || return 0
  there=$(locale -a 2>/dev/null)
  while read -r name; do
    grep -qix "$name\.utf-\?8" <<<"$there" || printf 'the locale %s.UTF-8\n' "$name"
  done < <(grep -v '^#' "$here/packages/locales")
}

# CMake's own search is the only judge that agrees with the later build on every system.
missing_libraries() {
  local scratch
  scratch=$(mktemp -d)
  cmake -G Ninja -S "$here/probe" -B "$scratch" -DPROBE_MODULES="$here/../cmake" \
    >"$scratch/log" 2>&1 || {
    echo 'Qt 6.6 with Qt PDF, Qwt 6.2 for Qt 6 or a C++20 compiler'
    cat "$scratch/log" >&2
  }
  rm -rf -- "$scratch"
}

lacking=$(missing_commands; missing_locales)
[[ -n $lacking ]] || lacking=$(missing_libraries)
[[ -z $lacking ]] || { printf '%s\n' "$lacking"; exit 1; }
