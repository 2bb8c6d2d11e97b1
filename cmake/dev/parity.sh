# shellcheck shell=bash disable=SC2154 # ./dev sets checkout, cache and root
# Whether the same tests run on Linux and on Windows. Sourced by ./dev.
# What runs on one of them only is named, with its reason, in tests/windows-differences.txt.

# Prints "program Suite.Test" for every test in the programs of a build.
tests_of() {
    local folder=$1 runner=$2 program name
    for program in "$folder"/test-*; do
        name=$(basename "$program" .exe)
        if [ ! -f "$program" ] || [ ! -x "$program" ]; then continue; fi
        $runner "$program" --gtest_list_tests 2>/dev/null | tr -d '\r' | awk -v program="$name" '
            /^[^ ].*\.( |$)/ { suite = $1; next }
            /^  / { print program " " suite $1 }'
    done | LC_ALL=C sort
}

# Prints the tests that the programs of a test run skipped, as "program Suite.Test".
skipped_in() {
    tr -d '\r' <"$1/Testing/Temporary/LastTest.log" | awk '
        /^Command: / { match($0, /test-[a-z-]+\.exe/); program = substr($0, RSTART, RLENGTH - 4) }
        /^\[  SKIPPED \] [^ ]+\.[^ ]+ \(/ { print program " " $4 }' | LC_ALL=C sort -u
}

# compare_platforms LINUX_BUILD WINDOWS_BUILD, after the tests have run on Windows.
compare_platforms() {
    local linux=$1 windows=$2 list=$checkout/tests/windows-differences.txt place=$2/parity status=0
    mkdir -p "$place"
    tests_of "$linux/bin" "" >"$place/linux"
    tests_of "$windows/bin" wine >"$place/built"
    skipped_in "$windows" >"$place/skipped"
    LC_ALL=C comm -23 "$place/built" "$place/skipped" >"$place/windows"
    if [ ! -s "$place/linux" ] || [ ! -s "$place/windows" ]; then fail "there are no tests to compare"; fi

    {
        LC_ALL=C comm -23 "$place/linux" "$place/windows" | sed 's/^/linux /'
        LC_ALL=C comm -13 "$place/linux" "$place/windows" | sed 's/^/windows /'
    } | LC_ALL=C sort >"$place/found"
    awk '/^#/ { reason = 1; next }
         /^$/ { reason = 0; next }
         !reason { print "no reason stands above: " $0 >"/dev/stderr"; bad = 1 }
         { print }
         END { exit bad }' "$list" | LC_ALL=C sort >"$place/listed" || status=1

    LC_ALL=C comm -23 "$place/found" "$place/listed" | sed 's/^/runs on one platform, but is not listed: /'
    LC_ALL=C comm -13 "$place/found" "$place/listed" | sed 's/^/is listed, but is no difference: /'
    cmp -s "$place/found" "$place/listed" || status=1
    printf '%s tests on Linux, %s on Windows; %s on Linux only and %s on Windows only, all listed: %s\n' \
        "$(wc -l <"$place/linux")" "$(wc -l <"$place/windows")" "$(grep -c '^linux ' "$place/found")" \
        "$(grep -c '^windows ' "$place/found")" "$([ $status -eq 0 ] && echo yes || echo NO)"
    return $status
}
