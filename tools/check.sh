#!/usr/bin/env bash
# Looks through the sources: layout, clang-tidy (.clang-tidy) and cppcheck. What was clean once is looked at again only
# when it, a header or the choice of checks has changed.  tools/check.sh BUILD      BUILD has compile_commands.json
set -euo pipefail
build=$1
stamps=build/check
mkdir -p "$stamps"

git ls-files '*.h' '*.cpp' | xargs clang-format-14 --dry-run -Werror

# Warnings that cppcheck 2.10 has of code that is right: it takes a reference to what a unique_ptr holds for one to the
# pointer, a cast index of an array of words for the word, and stops at a few lines of C++20.
cppcheck --enable=warning,performance,portability --std=c++20 --language=c++ --quiet --error-exitcode=1 -j "$(nproc)" \
    -I src --suppress=missingIncludeSystem --suppress=danglingLifetime --suppress=returnReference \
    --suppress=CastIntegerToAddressAtReturn --suppress=syntaxError \
    --suppress=internalAstError --suppress=useStlAlgorithm --cppcheck-build-dir="$stamps" src

headers=$(git ls-files 'src/*.h' .clang-tidy | xargs cat | sha256sum)
check() {
    local file=$1 stamp
    stamp=$stamps/$(echo "$file" | tr / -)-$({ cat "$file"; echo "$headers"; } | sha256sum | cut -c1-20)
    [ -e "$stamp" ] && return 0
    clang-tidy-14 -p "$build" --quiet "$file" 2>/dev/null && touch "$stamp"
}
export -f check
export headers stamps build
# The windows' own sources take clang-tidy minutes for Qt's headers; the compilers' warnings and the tests have them.
# Those for Windows are not compiled here.
git ls-files 'src/*.cpp' ':!src/desktop' ':!src/script_desktop' ':!src/paper' ':!src/deals_desktop' ':!src/*_windows.cpp' | xargs -P "$(nproc)" -I{} bash -c 'check {}'
