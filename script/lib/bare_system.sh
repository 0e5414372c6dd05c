# shellcheck shell=bash disable=SC2154,SC2016
# A Debian with nothing on it, made for one trial and gone afterwards.

# try_out_package PACKAGE FOLDER: FOLDER is that of the build; the screenshots are left there.
try_out_package() {
  local package=$1 folder=$2 mode
  require_tools
  mode=$(bootstrap_mode)
  apt_policy >"$cache_dir/apt-policy"
  rm -rf -- "$folder/trial"
  mkdir -- "$folder/trial"
  cp -- "$package" "$folder/tests/tst_installed_road" "$project_dir/script/lib/try_out.sh" \
    "$folder/trial/"
  chmod -R a+rX -- "$folder/trial"
  local -a command=(mmdebstrap --mode="$mode" --format=null --variant=apt
    '--include=passwd,util-linux' --dpkgopt='force-unsafe-io' --aptopt="$cache_dir/apt-policy"
    --customize-hook="copy-in '$folder/trial' /opt"
    --customize-hook='chroot "$1" bash /opt/trial/try_out.sh'
    --customize-hook="copy-out /opt/trial/pictures '$folder'"
    "$rootfs_release" - "$(debian_mirror)")
  if [[ $mode == unshare ]]; then (cd / && "${command[@]}"); else as_root "${command[@]}"; fi
}
