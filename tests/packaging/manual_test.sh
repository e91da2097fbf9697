#!/usr/bin/env bash
# Looks at the three forms of the manual.  manual_test.sh ROOT MANUAL    ROOT of the project, MANUAL as it was built
set -euo pipefail
root=$1
manual=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
fail() {
    echo "manual: $1"
    failed=1
}

# No page is forgotten, and the help file holds what the browser gets, with a table of contents and an index.
for page in "$root"/docs/manual/*.html; do
    [ -e "$manual/help/$(basename "$page")" ] || fail "$(basename "$page") is no page of it"
    ! grep -n '<h2>' "$page" || fail "a section of $(basename "$page") is not in the contents"
done
extract_chmLib "$manual/help.chm" "$work/chm" >/dev/null
for file in "$manual"/help/*; do
    cmp -s "$file" "$work/chm/$(basename "$file")" || fail "$(basename "$file") is not whole in help.chm"
done
for list in help.hhc help.hhk; do
    [ "$(grep -c sitemap "$work/chm/$list")" -gt 50 ] || fail "$list has no list"
done
grep -aq index.html "$work/chm/#SYSTEM" || fail "help.chm does not begin at its contents"

# All sections stand in the book, and all keys on one page of it.
pdftotext -layout "$manual/handleiding.pdf" "$work/book.txt"
sed -n 's|.*<h2 id="[^"]*">\(.*\)</h2>.*|\1|p' "$root"/docs/manual/*.html | while read -r title; do
    grep -qF "$title" "$work/book.txt" || echo "$title"
done >"$work/missing"
[ ! -s "$work/missing" ] || fail "not in the book: $(tr '\n' ';' <"$work/missing")"
awk 'BEGIN { RS = "\f" } /Alle toetsen/ && /Ctrl/ && /Alt/ { pages++ } END { exit pages != 1 }' "$work/book.txt" ||
    fail "the keys are not on one page"

# What is bold is a word of a screen, in the spelling of the program's messages.
tr '\n' ' ' <"$root/src/resources/MessageTable.cpp" | sed 's/"  *"//g' | grep -o '"[^"]*"' | tr -d '"&' >"$work/words"
cat "$root"/src/*/Words.h | tr '\n' ' ' | grep -o '( *"[^"]*")' | tr -d '()"&' | sed 's/^ *//; s/\.\.\.$//' >>"$work/words"
echo "Zandolin Lomert" >>"$work/words"
cat "$root"/docs/manual/*.html | tr '\n' ' ' | grep -o '<b>[^<]*</b>' | sed 's|</*b>||g' | sort -u | while read -r word; do
    grep -qixF "$word" "$work/words" || echo "$word"
done >"$work/unknown"
[ ! -s "$work/unknown" ] || fail "no word of the program: $(tr '\n' ';' <"$work/unknown")"
exit $failed
