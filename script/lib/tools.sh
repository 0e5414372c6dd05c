# shellcheck shell=bash disable=SC2034
# Where the tools are that look for defects: fuzzers, coverage, valgrind. All tests can be built and
# run there.

lib_dir=${BASH_SOURCE[0]%/*}
# shellcheck source=script/lib/extra_rootfs.sh
source "$lib_dir/extra_rootfs.sh"

tools_packages=(clang lld llvm libclang-rt-dev valgrind xvfb openbox xdotool locales git
  ca-certificates)
tools_commands=(clang++ ld.lld llvm-cov valgrind cmake)
tools_megabytes=4200
tools_purpose="the tools that look for defects"

tools=
prepare_tools() { prepare_extra tools; }
in_tools() { in_extra tools "$@"; }
