# shellcheck shell=bash disable=SC2154
# The dependencies on the system itself: are they there, and if not, its package manager gets them.

package_manager() {
  local name
  for name in apt-get dnf pacman; do
    command -v "$name" >/dev/null && { printf '%s\n' "${name%-get}"; return; }
  done
  echo none
}

# Changes whenever a package comes or goes, or the probe itself does.
native_fingerprint() {
  stat -c '%n %y' /var/lib/dpkg/status /usr/lib/sysimage/rpm/* /var/lib/rpm/* \
    /var/lib/pacman/local /usr/lib/locale 2>/dev/null || true
  printf '%s\n' "$PATH" "${CXX-}" "${CMAKE_PREFIX_PATH-}"
  cat "$project_dir"/script/{lib/probe.sh,packages/commands,packages/locales,probe/CMakeLists.txt} \
    "$project_dir"/cmake/*.cmake
}

# native_suffices KIND: the answer is kept until the fingerprint changes.
native_suffices() {
  local kept=$cache_dir/native-$1 fingerprint answer
  fingerprint=$(native_fingerprint | sha256sum | cut -c1-16)
  if [[ ! -f $kept || $(head -n 1 "$kept") != "$fingerprint" ]]; then
    answer=$(bash "$project_dir/script/lib/probe.sh" "$1" 2>/dev/null) || true
    printf '%s\n' "$fingerprint" "$answer" >"$kept.$$"
    mv -- "$kept.$$" "$kept"
  fi
  [[ -z $(tail -n +2 "$kept") ]]
}

native_lacks() { tail -n +2 "$cache_dir/native-$1" | paste -sd, | sed 's/,/, /g'; }

# wanted_packages KIND MANAGER: lines of package and, where one is set, lowest version.
wanted_packages() {
  awk -v kind="$1" '$1 == "build" || $1 == kind { print $2, $3 }' "$project_dir/script/packages/$2"
}

wanted_locales() { grep -v '^#' "$project_dir/script/packages/locales"; }

apt_candidate() {
  LC_ALL=C apt-cache policy "$1" 2>/dev/null | sed -n 's/^ *Candidate: //p' | grep -vx '(none)'
}

apt_has_lists() { [[ -n $(apt_candidate apt) && -n $(apt_candidate build-essential) ]]; }

# Whether the system's own archive has every package, new enough.
apt_suffices() {
  local name lowest candidate
  while read -r name lowest; do
    candidate=$(apt_candidate "$name") || return
    dpkg --compare-versions "$candidate" ge "${lowest:-0}" || return
  done < <(wanted_packages test apt)
}

missing_packages() {
  local name _
  while read -r name _; do
    case $2 in
      apt) dpkg-query -W -f '${db:Status-Status}\n' "$name" 2>/dev/null | grep -qx installed ;;
      dnf) rpm -q --quiet --whatprovides "$name" ;;
      pacman) pacman -T "$name" >/dev/null ;;
    esac || printf '%s\n' "$name"
  done < <(wanted_packages "$1" "$2")
}

apt_install() {
  local -a command=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300
    install --yes --no-install-recommends "$@")
  apt_has_lists && as_root "${command[@]}" && return
  # The lists may be missing or older than what the mirror still holds.
  as_root apt-get update && as_root "${command[@]}"
}

install_command() {
  case $1 in
    apt) echo 'apt-get update && apt-get install --no-install-recommends' ;;
    dnf) echo 'dnf install' ;;
    pacman) echo 'pacman -S --needed' ;;
  esac
}

run_install() {
  local manager=$1
  shift
  case $manager in
    apt) apt_install "$@" ;;
    dnf) as_root dnf install -y "$@" ;;
    pacman) as_root pacman -S --needed --noconfirm "$@" ;;
  esac
}

# install_packages PACKAGE…: installs them, or names the command that does.
install_packages() {
  local manager line
  manager=$(package_manager)
  line="$(install_command "$manager") $*"
  can_become_root || die "packages are missing and root is needed to install them" \
    "Run once as root, then call again: $line"
  logged "$cache_dir/packages.log" "installing $# packages ($*)" run_install "$manager" "$@" ||
    die "the packages could not be installed" "Mend the package manager, or run as root: $line"
}

# Debian generates locales on demand; the other systems ship them or have their sources.
native_locales() {
  local name there
  [[ $1 == test ]] || return 0
  there=$(locale -a 2>/dev/null)
  while read -r name; do
    grep -qix "$name\.utf-\?8" <<<"$there" ||
      as_root_or_die "generating the locale $name.UTF-8" \
        localedef -i "$name" -f UTF-8 "$name.UTF-8"
  done < <(wanted_locales)
}

# native_set_up KIND
native_set_up() {
  local -a packages
  mapfile -t packages < <(missing_packages "$1" "$(package_manager)")
  ((${#packages[@]} == 0)) || install_packages "${packages[@]}"
  native_locales "$1"
  native_suffices "$1" || die "this system still lacks: $(native_lacks "$1")" \
    "Use Debian 12 or later, Ubuntu 26.04 or later, or a current Fedora or Arch"
}
