# shellcheck shell=bash disable=SC2034
# Where the programs are that ours is compared with. The viewer can be built and run there too, so
# that all of them are measured in one place.

lib_dir=${BASH_SOURCE[0]%/*}
# shellcheck source=script/lib/extra_rootfs.sh
source "$lib_dir/extra_rootfs.sh"

peers_packages=(kst gnuplot-nox python3-pandas python3-matplotlib libqcustomplot-dev locales)
peers_commands=(kst2 gnuplot python3 cmake)
peers_megabytes=3800
peers_purpose="the programs to compare with"

peers=
prepare_peers() { prepare_extra peers; }
in_peers() { in_extra peers "$@"; }
