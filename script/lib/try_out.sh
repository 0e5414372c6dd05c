#!/usr/bin/env bash
# Run by root on a Debian that has nothing but apt: installs the package that lies beside this file,
# tries it out as a user does, and removes it again. Leaves screenshots in the folder pictures.
set -euo pipefail
here=$(dirname -- "$(realpath -- "$0")")
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

die() { echo "FAILED: $*" >&2; exit 1; }
add() { apt-get -qq -y --no-install-recommends install "$@" >/dev/null; }

no_development_packages() {
  ! dpkg-query -W -f '${Package}\n' | grep -E -- '-dev$|^(gcc|g\+\+|clang|cmake)(-[0-9]+)?$' ||
    die "packages for development are here"
}

# What the package brings must find its libraries without any package that is installed for the trial.
libraries_are_there() {
  local file
  while read -r file; do
    head -c 4 "$file" 2>/dev/null | grep -qa ELF || continue
    echo "$file"
    ! ldd "$file" | grep 'not found' || die "$file lacks libraries"
  done < <(dpkg -L plot-korimo)
}

starts_without_a_screen() {
  local status=0
  QT_QPA_PLATFORM=offscreen as_user 'timeout 3 plot_korimo' || status=$?
  ((status == 124)) || die "the program ended by itself with code $status"
}

as_user() { runuser -u guest -- sh -c "cd && $1"; }

kind_of() { as_user "gio info --attributes=standard::content-type $1" | sed -n 's/.*content-type: //p'; }

kinds_are_known() {
  local ending
  for ending in bek dkl; do
    [[ $(kind_of /usr/share/plot_korimo/examples/Erlenbach.$ending) == application/x-korimo-$ending ]] ||
      die "the kind of $ending files is not known"
  done
  [[ $(kind_of /usr/share/plot_korimo/examples/Erlenbach_K1.wel) == application/x-korimo-wel ]] ||
    die "the kind of wel files is not known"
}

icons_are_there() {
  local size
  for size in 16 22 24 32 48 64 128 256 512; do
    [[ -s /usr/share/icons/hicolor/${size}x$size/apps/plot_korimo.png ]] ||
      die "there is no icon of $size pixels"
  done
}

man_page_is_readable() {
  local faults
  faults=$(as_user 'man --warnings plot_korimo' 2>&1 >/dev/null)
  [[ -z $faults ]] || die "the man page has faults: $faults"
  as_user 'man plot_korimo' | grep -q QT_LOGGING_RULES || die "there is no man page"
}

road_can_be_gone() {
  add xvfb openbox xdotool libglib2.0-bin libqt6test6 shared-mime-info man-db fonts-dejavu-core
  kinds_are_known
  icons_are_there
  man_page_is_readable
  install -d -o guest "$here/pictures"
  as_user "cd $here/pictures && KORIMO_SCREENSHOTS=1 timeout 300 $here/tst_installed_road" ||
    die "the road cannot be gone"
}

nothing_is_left() {
  local rest
  apt-get -qq -y purge plot-korimo >/dev/null
  rest=$(find / -xdev \( -path "$here" -o -path /proc -o -path /sys -o -path /home \) -prune -o \
    -iname '*korimo*' -print
    grep -rIil --exclude-dir=log --exclude-dir=lists --exclude-dir=archives korimo /etc /usr /var || true
    grep -ril korimo /usr/share/{mime,icons,applications} || true)
  [[ -z $rest ]] || die "left behind: $rest"
}

no_development_packages
add "$here"/plot-korimo_*.deb
useradd --create-home guest
libraries_are_there
starts_without_a_screen
road_can_be_gone
nothing_is_left
echo "the package can be installed, used and removed"
