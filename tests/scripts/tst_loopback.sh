#!/usr/bin/env bash
# A program that listens on all addresses of the machine is kept to 127.0.0.1.
set -euo pipefail
here=$(cd -P -- "${BASH_SOURCE[0]%/*}" && pwd -P)
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT

cc -shared -fPIC -o "$scratch/libloopback_only.so" "$here/../../script/lib/loopback_only.c"
cc -o "$scratch/listener" "$here/listener.c"

listens_on() {
  LD_LIBRARY_PATH=$scratch LD_PRELOAD=libloopback_only.so "$scratch/listener" "$1"
}

failures=0
expect() {
  [[ $2 == "$3" ]] && return
  printf '%s: listens on "%s", expected "%s"\n' "$1" "$2" "$3"
  failures=$((failures + 1))
}

expect "without the library" "$("$scratch/listener" 0.0.0.0)" 0.0.0.0
expect "IPv4" "$(listens_on 0.0.0.0)" 127.0.0.1
expect "an address of its own" "$(listens_on 127.0.0.2)" 127.0.0.2
if [[ -e /proc/net/if_inet6 ]]; then
  expect "both families" "$(listens_on ::)" ::ffff:127.0.0.1
fi
((failures == 0))
