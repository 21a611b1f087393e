#!/usr/bin/env bash
# manual-page.sh CLI PAGE: every option that a command of the command line offers stands in its manual page.
set -euo pipefail

cli=$1
page=$(sed 's/\\-/-/g' "$2")
count=0
for command in replay simulate preview "polar speed" "polar check" "polar convert" "polar targets" "polar best"; do
  # shellcheck disable=SC2086  # a command of two words
  for option in $("$cli" $command --help | grep -oE '^ *(-h,)?--[a-z-]+' | grep -oE '\-\-[a-z-]+'); do
    count=$((count + 1))
    if ! grep -qE -- "$option([^a-z-]|$)" <<<"$page"; then
      printf 'wrong: %s of "%s" is not in %s\n' "$option" "$command" "$2" >&2
      exit 1
    fi
  done
done
if ((count < 20)); then
  printf 'wrong: only %d options found\n' "$count" >&2
  exit 1
fi
