#!/usr/bin/env bash
# deb.sh BUILD: makes the Debian package of a build and installs it into a system tree of its own.
set -euo pipefail
cd "$(dirname "$0")"
# shellcheck source=tests/packaging/installed.sh
. ./installed.sh

(cd "$work" && cpack --config "$1/CPackConfig.cmake" -B "$work/package") >"$work/log" 2>&1 || wrong "$(cat "$work/log")"
package=$(echo "$work"/package/veerwatch_*.deb)
[[ -s $package ]] || wrong "no package: $(ls "$work/package")"

depends=$(dpkg-deb --field "$package" Depends)
for library in libc6 libqt6serialport6 libqt6widgets6 libqt6svg6 libqt6multimedia6; do
  [[ $depends == *$library* ]] || wrong "it does not depend on $library: $depends"
done
[[ -n $(dpkg-deb --field "$package" Maintainer) && -n $(dpkg-deb --field "$package" Description) ]] ||
  wrong "an empty field"

lintian --allow-root --tag-display-limit 0 --fail-on error "$package" >"$work/log" 2>&1 || wrong "$(cat "$work/log")"
mkdir -p "$work/metainfo"
dpkg-deb --fsys-tarfile "$package" | tar -x -C "$work/metainfo"
appstreamcli validate --no-net "$work"/metainfo/usr/share/metainfo/*.xml >"$work/log" || wrong "$(cat "$work/log")"

mkdir -p "$work/root/var/lib/dpkg/"{info,updates}
touch "$work/root/var/lib/dpkg/status"
# The tree holds nothing else, so what the package depends on is not there; and the user need not be root.
dpkg --root="$work/root" --log=/dev/null --force-not-root --force-depends --force-bad-path \
  --install "$package" >"$work/log" 2>&1 || wrong "$(cat "$work/log")"
[[ $(dpkg-query --admindir="$work/root/var/lib/dpkg" -W -f '${Status}' veerwatch) == "install ok installed" ]] ||
  wrong "not installed: $(cat "$work/log")"
check_files "$work/root/usr"
check_run "$work/root/usr"
