# shellcheck shell=bash disable=SC2034
# Where sources can be compiled for Windows: there is a compiler, but neither Qt nor Qwt for it.

lib_dir=${BASH_SOURCE[0]%/*}
# shellcheck source=script/lib/extra_rootfs.sh
source "$lib_dir/extra_rootfs.sh"

windows_packages=(g++-mingw-w64-x86-64-posix locales git ca-certificates)
windows_commands=(x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-windres cmake)
windows_megabytes=4000
windows_purpose="the compiler for Windows"

windows=
prepare_windows() { prepare_extra windows; }
in_windows() { in_extra windows "$@"; }
