# shellcheck shell=bash disable=SC2034
# Where the package is made and checked.

lib_dir=${BASH_SOURCE[0]%/*}
# shellcheck source=script/lib/extra_rootfs.sh
source "$lib_dir/extra_rootfs.sh"

packaging_packages=(dpkg-dev file lintian desktop-file-utils appstream man-db locales git
  ca-certificates)
packaging_commands=(dpkg-shlibdeps lintian desktop-file-validate appstreamcli man cmake)
packaging_megabytes=2800
packaging_purpose="the tools that make and check packages"

packaging=
prepare_packaging() { prepare_extra packaging; }
in_packaging() { in_extra packaging "$@"; }
