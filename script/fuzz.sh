#!/bin/sh
# Runs a fuzz target under libFuzzer for a while. Needs clang.
#   script/fuzz.sh [helm|profile] [SECONDS]
# New inputs go to build/fuzz/corpus-*, what broke the target to build/fuzz.
set -eu
cd "$(dirname "$0")/.."
target=${1:-helm}
seconds=${2:-60}
case $target in
  helm) source=tests/fuzz/HelmFuzz.cpp ;;
  profile) source=tests/fuzz/ProfileFuzz.cpp ;;
  *) echo "fuzz.sh: no target \"$target\": helm or profile" >&2; exit 2 ;;
esac
mkdir -p "build/fuzz/corpus-$target"
core=$(printf '%s\n' platform/*.cpp instruments/*.cpp nmea/*.cpp control/*.cpp app/Helm.cpp app/SettingsProfile.cpp |
  grep -v 'Qt\.cpp$' | grep -v '/frm')
# shellcheck disable=SC2086
clang++ -std=c++20 -O1 -g -I. -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=all \
  -o "build/fuzz/$target" "$source" $core
exec "build/fuzz/$target" -max_total_time="$seconds" -artifact_prefix="build/fuzz/$target-" -print_final_stats=1 \
  "build/fuzz/corpus-$target" "tests/fuzz/corpus/$target"
