#!/usr/bin/env bash
# Makes the three forms of the manual from its one source.  tools/manual.sh SOURCE PICTURES TARGET
#   TARGET/help/index.html   pages for the browser
#   TARGET/help.chm          the same pages in one file for a help viewer
#   TARGET/handleiding.pdf   a book
# A page of the source is what stands between <body> and </body>: one h1, and an id at each h2.
set -euo pipefail
source=$(realpath "$1")
pictures=$(realpath "$2")
target=$3
readonly PAGES=(welkom installeren hoofdscherm tafel gereedmaken teksten beheren stick uitwisselen struikelblokken toetsen)
readonly NAME="Zandolin Lomert"

title_of() {
    sed -n 's|.*<h1>\(.*\)</h1>.*|\1|p' "$source/$1.html"
}
# sections_of PAGE FORMAT: prints the format with id and title of each section.
sections_of() {
    local id title
    while IFS=$'\t' read -r id title; do
        # shellcheck disable=SC2059  # the format is the caller's
        printf "$2" "$id" "$title"
    done < <(sed -n 's|.*<h2 id="\([^"]*\)">\(.*\)</h2>.*|\1\t\2|p' "$source/$1.html")
}
head_of() {
    echo '<!DOCTYPE html>'
    echo '<html lang="nl"><head><meta http-equiv="Content-Type" content="text/html; charset=utf-8">'
    echo "<title>$1</title>"
    printf '<link rel="stylesheet" href="%s">\n' "${@:2}"
    echo '</head><body>'
}
link_to() {
    [ -z "$1" ] || printf '%s<a href="%s.html">%s</a>' "$2" "$1" "$(title_of "$1")"
}

# contents LINK: a list of all chapters and sections; LINK makes the target of PAGE and perhaps a section.
contents() {
    local page
    echo '<ul class="inhoud">'
    for page in "${PAGES[@]}"; do
        printf '<li><a href="%s">%s</a><ul>\n' "$("$1" "$page")" "$(title_of "$page")"
        sections_of "$page" "<li><a href=\"$("$1" "$page" %s)\">%s</a></li>\n"
        echo '</ul></li>'
    done
    echo '</ul>'
}
in_pages() { echo "$1.html${2:+#$2}"; }
in_book() { echo "#$1${2:+-$2}"; }

pages() {
    local page i
    mkdir -p "$target/help"
    cp "$source/manual.css" "$target/help/"
    grep -oh 'src="[^"]*"' "$source"/*.html | cut -d'"' -f2 | sort -u | while read -r picture; do
        cp "$pictures/$picture" "$target/help/"
    done
    for i in "${!PAGES[@]}"; do
        page=${PAGES[$i]}
        local before="" after=${PAGES[$((i + 1))]:-}
        [ "$i" = 0 ] || before=${PAGES[$((i - 1))]}
        {
            head_of "$(title_of "$page") - $NAME" manual.css
            echo "<div class=\"pad\"><a href=\"index.html\">Inhoud</a>$(link_to "$before" ' | Vorige: ')</div>"
            cat "$source/$page.html"
            echo "<div class=\"pad onder\"><a href=\"index.html\">Inhoud</a>$(link_to "$after" ' | Volgende: ')</div>"
            echo '</body></html>'
        } >"$target/help/$page.html"
    done
    {
        head_of "Handleiding $NAME" manual.css
        echo "<h1>Handleiding $NAME</h1>"
        contents in_pages
        echo '</body></html>'
    } >"$target/help/index.html"
}

# entry TITLE TARGET: a line of the viewer's own contents and index, which are in Windows-1252.
entry() {
    printf '<LI><OBJECT type="text/sitemap"><param name="Name" value="%s"><param name="Local" value="%s"></OBJECT>\n' \
        "$1" "$2"
}
entries_of() {
    local id title
    sections_of "$1" '%s\t%s\n' | while IFS=$'\t' read -r id title; do entry "$title" "$1.html#$id"; done
}
site_map() {
    echo '<HTML><HEAD><meta http-equiv="Content-Type" content="text/html; charset=windows-1252"></HEAD><BODY><UL>'
    "$1"
    echo '</UL></BODY></HTML>'
}
chapters() {
    local page
    for page in "${PAGES[@]}"; do
        entry "$(title_of "$page")" "$page.html"
        echo '<UL>'
        entries_of "$page"
        echo '</UL>'
    done
}
keywords() {
    local page
    for page in "${PAGES[@]}"; do
        entry "$(title_of "$page")" "$page.html"
        entries_of "$page"
    done | sort -f
}

chm() {
    local work=$target/help
    site_map chapters | iconv -f utf-8 -t cp1252 >"$work/help.hhc"
    site_map keywords | iconv -f utf-8 -t cp1252 >"$work/help.hhk"
    {
        printf '[OPTIONS]\nCompatibility=1.1 or later\nCompiled file=help.chm\nContents file=help.hhc\n'
        printf 'Index file=help.hhk\nDefault topic=index.html\nFull-text search=Yes\nLanguage=0x413 Dutch\n'
        printf 'Title=%s\n[FILES]\n' "$NAME"
        (cd "$work" && ls ./*.html ./*.css ./*.png) | sed 's|^\./||'
    } >"$work/help.hhp"
    (cd "$work" && chmcmd --no-html-scan help.hhp >help.log) || { cat "$work/help.log"; exit 1; }
    mv "$work/help.chm" "$target/"
    rm "$work"/help.*
}

book() {
    local page
    {
        head_of "Handleiding $NAME" manual.css book.css
        echo "<div class=\"omslag\"><p>$NAME</p><p class=\"onder\">Handleiding</p><img src=\"table.png\" alt=\"\"></div>"
        echo '<h1>Inhoud</h1>'
        contents in_book
        for page in "${PAGES[@]}"; do
            echo "<div class=\"hoofdstuk-$page\">"
            sed -e "s|id=\"\([^\"]*\)\"|id=\"$page-\1\"|" -e "s|<h1>|<h1 id=\"$page\">|" \
                -e 's|href="\([a-z]*\)\.html#\([^"]*\)"|href="#\1-\2"|g' -e 's|href="\([a-z]*\)\.html"|href="#\1"|g' \
                "$source/$page.html"
            echo '</div>'
        done
        echo '</body></html>'
    } >"$target/help/book.html"
    cp "$source/book.css" "$target/help/"
    weasyprint "$target/help/book.html" "$target/handleiding.pdf" 2>"$target/book.log"
    ! grep -i 'error' "$target/book.log" >&2 || exit 1  # a link that leads nowhere
    rm "$target"/help/book.* "$target/book.log"
}

rm -rf "$target/help" "$target/help.chm" "$target/handleiding.pdf"
pages
chm
book
