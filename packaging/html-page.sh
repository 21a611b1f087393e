#!/bin/sh
# html-page.sh IN.md OUT.html: a page of the documents as a page for a browser, with its links to the others.
set -eu

title=$(sed -n 's/^# //p;T;q' "$1")
{
  cat <<END
<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>$title</title>
<style>
:root { color-scheme: light dark; }
body { font: 1.1em/1.5 sans-serif; max-width: 52em; margin: 2em auto; padding: 0 1em; }
img { max-width: 100%; height: auto; }
table { border-collapse: collapse; }
td, th { border: 1px solid gray; padding: 0.3em 0.6em; text-align: left; vertical-align: top; }
pre { overflow-x: auto; }
</style>
</head>
<body>
END
  # A heading gets the name by which other pages call it: its words in small letters with hyphens between them.
  cmark-gfm --extension table "$1" | sed -E 's/(href="[^":]*)\.md(#[^"]*)?"/\1.html\2"/g' | awk '
    match($0, /^<h[1-6]>.*<\/h[1-6]>$/) {
      name = tolower(substr($0, 5, length($0) - 9))
      gsub(/<[^>]*>|&[a-z]*;|[^a-z0-9 -]/, "", name)
      gsub(/ /, "-", name)
      $0 = substr($0, 1, 3) " id=\"" name "\"" substr($0, 4)
    }
    { print }'
  printf '</body>\n</html>\n'
} >"$2.new"
mv "$2.new" "$2"
