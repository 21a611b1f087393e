#!/usr/bin/env bash
# run.sh BUILD: `run` and the check of the system, in a tree of their own, where nothing is installed or built.
# shellcheck disable=SC2016  # what is in single quotes is for shells that are started here
set -euo pipefail
cd "$(dirname "$0")"
# shellcheck source=tests/packaging/installed.sh
. ./installed.sh

mkdir -p "$work"/tree/{script,demo,build/release} "$work/bin"
cp ../../run "$work/tree"
cp ../../script/setup.sh "$work/tree/script"
cp ../../demo/Veerwatch.ini "$work/tree/demo"
ln -s "$1/veerwatch-cli" "$work/tree/build/release"

# fake NAME LINES: a command that stands before the system's own.
fake() {
  printf '#!/bin/bash\n%s\n' "$2" >"$work/bin/$1"
  chmod +x "$work/bin/$1"
}
PATH=$work/bin:$PATH
export QT_QPA_PLATFORM=xcb DISPLAY='' WAYLAND_DISPLAY=''

# `run` sees a system that it knows.
says_debian() {
  printf 'ID=debian\nVERSION_ID="12"\n' >"$work/debian"
  sed -i "s|^kSystem=.*|kSystem=$work/debian|" "$work/tree/script/setup.sh"
}

check_run_without_display() {
  fake dpkg-query 'for name in "${@:4}"; do echo "$name installed"; done'
  fake apt-get 'exit 1'
  fake cmake 'exit 0'
  sed -i 's/--ticks 20/--ticks 3/' "$work/tree/run"
  # Nothing of the profile is like the defaults.
  sed -i 's/^True Wind Speed=.*/True Wind Speed=33/' "$work/tree/demo/Veerwatch.ini"
  grep -q '^True Wind Speed=33' "$work/tree/demo/Veerwatch.ini" || wrong "the demo profile has no wind"
  "$work/tree/run" >"$work/said" 2>&1 || wrong "run ended with $?: $(cat "$work/said")"
  cmp "$work/tree/demo/Veerwatch.ini" "$work/tree/build/release/Veerwatch.ini" || wrong "another profile was copied"
  # Columns: tick, heading, boat speed, apparent angle and speed, true angle, true speed.
  local winds
  winds=$(awk '$1 ~ /^[0-9]+$/ { print ($7 >= 28 && $7 <= 38) }' "$work/said" | sort -u)
  [[ $winds == 1 ]] || wrong "it does not sail the profile: $(cat "$work/said")"
  [[ $(find "$work/tree/build/release" -name 'Veerwatch.ini*' | wc -l) == 1 ]] || wrong "something was left beside it"
}

# A user without sudo gets one line to paste.
check_the_line_to_paste() {
  fake dpkg-query 'for name in "${@:4}"; do [[ $name == cmake || $name == *svg-dev* ]] || echo "$name installed"; done'
  fake apt-cache 'case $2 in cmake | libqt6svg6-dev) printf "%s:\n  Candidate: 1\n" "$2" ;; esac'
  local line="apt-get install --no-install-recommends cmake libqt6svg6-dev" status=0
  bash -c '. "$1/script/setup.sh"; ask_to_install cmake "qt6-svg-dev|libqt6svg6-dev"' run "$work/tree" \
    >"$work/said" 2>&1 || status=$?
  [[ $status == 1 ]] || wrong "status $status"
  grep -qxF "  $line" "$work/said" || wrong "no line to paste: $(cat "$work/said")"
  grep -qxF "  su -c '$line'" "$work/said" || wrong "su is not named: $(cat "$work/said")"
}

# is_known yes|no LINES: whether the system of that description is known.
is_known() {
  local known=yes
  printf '%b\n' "$2" >"$work/system"
  bash -euc '. "$1/script/setup.sh"; kSystem=$2; system_is_known' run "$work/tree" "$work/system" || known=no
  [[ $known == "$1" ]] || wrong "known: $known, with $2"
}

check_systems() {
  is_known yes 'ID=debian\nVERSION_ID="12"'
  is_known yes 'ID=debian\nVERSION_CODENAME=sid'
  is_known no 'ID=debian\nVERSION_ID="11"'
  is_known yes 'ID=ubuntu\nID_LIKE=debian\nVERSION_ID="24.04"'
  is_known no 'ID=ubuntu\nID_LIKE=debian\nVERSION_ID="22.04"\nUBUNTU_CODENAME=jammy'
  is_known yes 'ID=raspbian\nID_LIKE=debian\nVERSION_ID="12"\nVERSION_CODENAME=bookworm'
  is_known no 'ID=raspbian\nID_LIKE=debian\nVERSION_ID="11"\nVERSION_CODENAME=bullseye'
  is_known yes 'ID=linuxmint\nID_LIKE="ubuntu debian"\nVERSION_ID="22"\nVERSION_CODENAME=wilma\nUBUNTU_CODENAME=noble'
  is_known no 'ID=linuxmint\nID_LIKE="ubuntu debian"\nVERSION_ID="21"\nVERSION_CODENAME=vanessa\nUBUNTU_CODENAME=jammy'
  is_known yes 'ID=linuxmint\nID_LIKE=debian\nVERSION_ID="6"\nVERSION_CODENAME=faye\nDEBIAN_CODENAME=bookworm'
  is_known no 'ID=fedora\nVERSION_ID=40'
  is_known no 'ID=other\nID_LIKE=debian'
  is_known no ''
}

says_debian
check_run_without_display
check_the_line_to_paste
check_systems
