# shellcheck shell=bash
# What `run`, `test` and `.ci/run` share: the packages, the check of the system and the build. Sourced, never started;
# the caller has set `set -euo pipefail` and stands in the repository root.

# shellcheck disable=SC2034  # the lists are read by those who source this

# What builds and packs, whatever it builds for. "a|b" are two names of one thing: the one that is installed counts,
# else the first that apt knows.
kTools=(
  cmake
  ninja-build
  cmark-gfm                                    # makes the manual's pages
  dpkg-dev                                     # finds what the Debian package depends on
  qt6-l10n-tools                               # makes the catalogues of the languages
  file
)

# What it is built with.
kLibraries=(
  qt6-base-dev                                 # Core, Gui, Widgets, Network, Test; the xcb and offscreen platforms
  "qt6-serialport-dev|libqt6serialport6-dev"
  "qt6-svg-dev|libqt6svg6-dev"
  qt6-multimedia-dev                           # the tones of an alarm
  libcli11-dev
  nlohmann-json3-dev
  libbenchmark-dev
)

# What building and running need beyond the base system.
kPackages=(
  g++
  "${kTools[@]}"
  "${kLibraries[@]}"
  "qt6-svg-plugins|libqt6svg6"                 # reads the SVG icons at run time
  qt6-wayland                                  # for a desktop that offers Wayland only
  qt6-translations-l10n                        # the texts of Qt's own dialogs in other languages
  fonts-dejavu-core                            # without any font the windows show empty boxes
)

# What the tests are built with besides.
kTestLibraries=(
  libgtest-dev
  libgmock-dev
  libsm-dev                                    # a desktop's session, to log out of
)

# What `test` needs besides.
kTestPackages=(
  "${kTestLibraries[@]}"
  lintian                                      # looks the Debian package over
  appstream                                    # and what software centres show of it
  locales                                      # the sources of the languages that a test starts the program in
  xvfb                                         # a screen for the desktop's session
)

# What `script/arm64` needs on this system; all else goes into the systems that it makes, with the tools and libraries
# above.
kArm64Packages=(
  debootstrap
)
kCrossTools=(
  crossbuild-essential-arm64
  qemu-user-static
)

# What `.ci/run` needs besides.
kCheckPackages=(
  clang-format
  clang-tidy
  shellcheck
)

# say TEXT...: one line to the user.
say() {
  printf '%s\n' "$*"
}

# fail TEXT...: one line on standard error, exit status 1.
fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# The system's description.
kSystem=/etc/os-release

# os_field NAME: the value of a field of the system's description, empty without one.
os_field() {
  local line value
  [[ -r $kSystem ]] || return 0
  while read -r line; do
    [[ $line == "$1="* ]] || continue
    value=${line#*=}
    value=${value#[\"\']}
    printf '%s' "${value%[\"\']}"
  done <"$kSystem"
}

# derived_is_known: true on a system that is made from Debian or Ubuntu and names a release of theirs that is new enough.
# Its own version number says nothing about that.
derived_is_known() {
  local codename
  case " $(os_field ID_LIKE) " in
    *" ubuntu "*) codename=$(os_field UBUNTU_CODENAME) ;;
    *" debian "*) codename=$(os_field DEBIAN_CODENAME) ;;
    *) return 1 ;;
  esac
  codename=${codename:-$(os_field VERSION_CODENAME)}
  case $codename in
    "" | stretch | buster | bullseye) return 1 ;;
    xenial | bionic | focal | jammy | kinetic | lunar | mantic) return 1 ;;
  esac
}

# system_is_known: true on Debian 12 or newer, on Ubuntu 24.04 or newer and on what is made from them. Debian's testing
# and unstable name no version and are newer.
system_is_known() {
  local version major
  command -v dpkg-query >/dev/null && command -v apt-get >/dev/null || return 1
  version=$(os_field VERSION_ID)
  major=${version%%.*}
  case $(os_field ID) in
    debian) [[ -z $version ]] || { [[ $major =~ ^[0-9]+$ ]] && ((10#$major >= 12)); } ;;
    ubuntu) [[ $major =~ ^[0-9]+$ ]] && ((10#$major >= 24)) ;;
    *) derived_is_known ;;
  esac
}

# missing_of ENTRY...: prints those of the entries of which no alternative is installed, a line each.
missing_of() {
  local entry name state
  local -a names every=()
  local -A installed=()
  for entry in "$@"; do
    IFS='|' read -ra names <<<"$entry"
    every+=("${names[@]}")
  done
  while read -r name state; do
    if [[ $state == installed ]]; then installed[$name]=1; fi
  done < <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${every[@]}" 2>/dev/null || true)
  for entry in "$@"; do
    IFS='|' read -ra names <<<"$entry"
    for name in "${names[@]}"; do
      if [[ -n ${installed[$name]-} ]]; then continue 2; fi
    done
    printf '%s\n' "$entry"
  done
}

# apt_name ENTRY: prints the first alternative that apt can install; false when there is none.
apt_name() {
  local name candidate
  local -a names
  IFS='|' read -ra names <<<"$1"
  for name in "${names[@]}"; do
    candidate=$(LC_ALL=C apt-cache policy "$name" 2>/dev/null | awk '$1 == "Candidate:" { print $2 }')
    if [[ -n $candidate && $candidate != "(none)" ]]; then
      printf '%s\n' "$name"
      return 0
    fi
  done
  return 1
}

# as_root COMMAND...: runs it with the rights to install.
as_root() {
  if ((EUID == 0)); then
    env DEBIAN_FRONTEND=noninteractive "$@"
  else
    sudo env DEBIAN_FRONTEND=noninteractive "$@"
  fi
}

# ask_to_install ENTRY...: prints the one line that installs them, for whoever may not do it from here, and stops.
ask_to_install() {
  local entry line="apt-get install --no-install-recommends"
  for entry in "$@"; do
    line+=" $(apt_name "$entry" || printf '%s' "${entry%%|*}")"
  done
  say "Packages are missing, and installing them takes root. Paste this line as root, then start ${0##*/} again:"
  say "  $line"
  say "On a plain Debian, where root has a password of its own and there is no sudo:"
  say "  su -c '$line'"
  fail "nothing was installed."
}

# install_missing ENTRY...: sees to it that every entry is installed, or stops with a line that says what is not.
# Touches neither the network nor the system when nothing is missing.
install_missing() {
  local entry name
  local -a missing names=()
  if ! system_is_known; then
    say "Packages that Veerwatch needs, by their names on Debian (a|b: either one):"
    printf '  %s\n' "$@"
    fail "this is neither Debian 12 or newer nor Ubuntu 24.04 or newer nor made from one of them: install them yourself, then build" \
      "with 'cmake --preset release' and 'cmake --build --preset release'."
  fi
  mapfile -t missing < <(missing_of "$@")
  if ((${#missing[@]} == 0)); then return 0; fi
  if ((EUID != 0)) && ! command -v sudo >/dev/null; then ask_to_install "${missing[@]}"; fi
  say "Installing: ${missing[*]}"
  as_root apt-get -q -o DPkg::Lock::Timeout=120 update </dev/null ||
    fail "'apt-get update' failed; still missing: ${missing[*]}"
  for entry in "${missing[@]}"; do
    name=$(apt_name "$entry") || fail "apt offers no package $entry (is there a network? on Ubuntu: is 'universe' enabled?)."
    names+=("$name")
  done
  as_root apt-get -q -y -o DPkg::Lock::Timeout=120 install --no-install-recommends "${names[@]}" </dev/null ||
    fail "'apt-get install' failed; still missing: ${missing[*]}"
  mapfile -t missing < <(missing_of "$@")
  if ((${#missing[@]} != 0)); then fail "still missing after the installation: ${missing[*]}"; fi
}

# build_preset NAME: configures build/NAME when that was not done yet, in this place and with these presets, and
# builds it. Everything later is found out by the build itself.
build_preset() {
  local folder=build/$1
  local stamp=$folder/.configured
  if [[ ! -f $stamp || ! -f $folder/build.ninja || CMakePresets.json -nt $stamp || $(<"$stamp") != "$PWD" ]]; then
    rm -f "$stamp"
    cmake --fresh --preset "$1" || fail "configuring '$1' failed."
    printf '%s\n' "$PWD" >"$stamp"
  fi
  cmake --build --preset "$1" || fail "building '$1' failed."
}
