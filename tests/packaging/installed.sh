# shellcheck shell=bash
# What both tests of an installation share. Sourced; the caller has set `set -euo pipefail`.

work=$(mktemp -d)
program=
end() {
  if [[ -n $program ]]; then kill -KILL "$program" 2>/dev/null || true; fi
  rm -rf "$work"
}
trap end EXIT

wrong() {
  printf 'wrong: %s\n' "$*" >&2
  exit 1
}


# takes_signals PROCESS: true when it is the program and no more the shell that starts it, and handles SIGTERM, number
# 15, itself.
takes_signals() {
  local handled
  [[ $(readlink "/proc/$1/exe") == */veerwatch ]] || return 1
  handled=$(sed -n 's/^SigCgt:[[:space:]]*//p' "/proc/$1/status") || wrong "it ended: $(cat "$work/said")"
  ((0x$handled >> 14 & 1))
}

# await COMMAND...: looks again and again until it is true, for half a minute.
await() {
  local left=600
  until "$@"; do
    ((--left > 0)) || wrong "never came true: $*"
    sleep 0.05
  done
}

# check_files PREFIX: everything lies where a desktop and its user look for it.
check_files() {
  local prefix=$1 size file
  for file in bin/veerwatch bin/veerwatch-cli share/applications/veerwatch.desktop \
    share/metainfo/io.github.veerwatch.Veerwatch.metainfo.xml share/doc/veerwatch/copyright share/icons/hicolor/scalable/apps/veerwatch.svg \
    "share/veerwatch/Fast Sled 60ft.pol" share/veerwatch/demo/Veerwatch.ini; do
    [[ -s $prefix/$file ]] || wrong "no $file"
  done
  for file in man/man1/veerwatch.1 man/man1/veerwatch-cli.1 doc/veerwatch/changelog; do
    gzip -dc "$prefix/share/$file.gz" | grep -q Veerwatch || wrong "no packed $file"
  done
  check_manual "$prefix/share/doc/veerwatch/html"
  for size in 16 22 24 32 48 64 128 256 512; do
    file=$prefix/share/icons/hicolor/${size}x${size}/apps/veerwatch.png
    # Width and height stand behind the heads of the file and of its first chunk, most significant byte first.
    [[ $(od -An -tu1 -j16 -N8 "$file" | tr -s ' ') == " 0 0 $((size / 256)) $((size % 256)) 0 0 $((size / 256)) $((size % 256))" ]] ||
      wrong "$file is not $size by $size"
  done
}

# check_manual FOLDER: the manual's pages are there, and each page and picture that one of them names.
check_manual() {
  local page link
  [[ -s $1/manual/README.html ]] || wrong "no first page of the manual"
  while read -r page; do
    while read -r link; do
      [[ -s ${page%/*}/${link%%#*} ]] || wrong "$page leads to $link, which is not there"
      [[ $link != *#* ]] || grep -q "id=\"${link#*#}\"" "${page%/*}/${link%%#*}" || wrong "$page: no heading $link"
    done < <(grep -oE '(href|src)="[^"]*"' "$page" | sed 's/^[^"]*"//; s/"$//' | grep -v '^[a-z]*:')
  done < <(find "$1" -name '*.html')
}

# sail PREFIX ARGUMENT...: starts the installed program, and closes it when it runs.
sail() {
  "$1/bin/veerwatch" "${@:2}" 2>"$work/said" &
  program=$!
  await takes_signals "$program"
  kill -TERM "$program" || wrong "it did not stay: $(cat "$work/said")"
  wait "$program" || wrong "it ended with $?: $(cat "$work/said")"
  program=
  if grep -v '^This plugin does not support' "$work/said"; then wrong "it said what is above"; fi
}

# check_run PREFIX: the installed program starts, finds its polar and keeps its settings with the user's, or where it
# is told to; the command line looks into that polar.
check_run() {
  local prefix=$1 profile=$work/config/veerwatch/Veerwatch.ini
  export QT_QPA_PLATFORM=offscreen HOME=$work XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
  # The toolkit's own leaks at the end are not the program's.
  export ASAN_OPTIONS=detect_leaks=0
  QT_QPA_PLATFORM=xcb DISPLAY='' WAYLAND_DISPLAY='' "$prefix/bin/veerwatch" --version | grep -q '^Veerwatch [0-9]' || wrong "no version"
  "$prefix/bin/veerwatch-cli" polar check "$prefix/share/veerwatch/Fast Sled 60ft.pol" >/dev/null ||
    wrong "the polar is not good"

  mkdir -p "${profile%/*}"
  { cat "$prefix/share/veerwatch/demo/Veerwatch.ini"; printf '[Polar Window]\nVisible=True\n'; } >"$profile"
  sail "$prefix"
  grep -q '^File 1=Fast Sled 60ft.pol' "$profile" || wrong "the polar was not found or not kept: $(cat "$profile")"
  grep -q '^Boat Speed=7.2' "$profile" || wrong "the settings were not read"
  [[ ! -e $prefix/bin/Veerwatch.ini ]] || wrong "settings beside the installed program"

  cp "$profile" "$work/before"
  sail "$prefix" --profile "$work/other.ini"
  grep -q '^Bandwidth=20' "$work/other.ini" || wrong "no settings in the file that was named"
  cmp "$profile" "$work/before" || wrong "another file's settings were changed"

  local status=0
  "$prefix/bin/veerwatch" nonsense 2>"$work/said" || status=$?
  [[ $status == 2 ]] || wrong "exit status $status for nonsense"
  grep -q 'unexpected argument nonsense' "$work/said" || wrong "nonsense was not told: $(cat "$work/said")"
}
