# shellcheck shell=bash disable=SC2154
# Build folders of the scripts that look for defects. Each is built apart in the environment of these
# tools, so it does not keep others out of the usual build folders.

# shellcheck disable=SC2034 # clear_if_foreign uses it
occupy_tool_dir() (
  environment=$tools
  clear_if_foreign "$build_dir/.$1_environment" "${build_dir:?}/$1"
)

# prepare_tool_build NAME WHAT: sets tools, and keeps build/NAME for this call.
prepare_tool_build() {
  prepare_environment build
  prepare_tools || true
  [[ -n $tools ]] || die "${tools_purpose} are missing" "Install ${tools_commands[*]}"
  make_build_dir
  take_lock "$build_dir/.$1_lock" "$2 in this checkout"
  occupy_tool_dir "$1"
  mkdir -p -- "$build_dir/$1"
}
