#!/usr/bin/env bash
# install.sh BUILD: `cmake --install` of a build into a folder of its own.
set -euo pipefail
cd "$(dirname "$0")"
# shellcheck source=tests/packaging/installed.sh
. ./installed.sh

cmake --install "$1" --prefix "$work/usr" >"$work/log" || wrong "$(cat "$work/log")"
check_files "$work/usr"
check_run "$work/usr"
