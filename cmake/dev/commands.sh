# shellcheck shell=bash disable=SC2154 # ./dev sets checkout, cache and root
# The commands of ./dev (run_COMMAND), each a thin layer over a CMake preset, run where the compiler is,
# in the checkout.

build() {
    local preset=$1
    shift
    : "${CCACHE_DIR:=$cache/ccache}" "${CCACHE_BASEDIR:=$checkout}" "${CCACHE_NOHASHDIR:=1}"
    export CCACHE_DIR CCACHE_BASEDIR CCACHE_NOHASHDIR
    configure "$preset"
    cmake --build --preset "$preset" "$@"
}

# Configuring prints a page that nobody reads unless it fails.
configure() {
    local log=build/$1/configure.log compiler
    mkdir -p "build/$1"
    if [ ! -e "build/$1/build.ninja" ] && [ -z "${CXX:-}" ] && compiler=$(find_compiler); then
        export CXX=$compiler
    fi
    say "Configuring $1"
    cmake --preset "$1" >"$log" 2>&1 || {
        cat "$log" >&2
        return 1
    }
}

run_skillbench_build() { build tools --target skillbench pump-station first-skill by-hand >&2; }

run_demo() {
    build tools --target pump-station-demo pump-station >&2
    "$checkout/build/tools/bin/pump-station-demo" "$@"
}

ctest_of() {
    local preset=$1
    shift
    ctest --preset "$preset" --test-dir "$checkout/build/$preset" --progress "$@"
}

run_test() {
    build release
    ctest_of release ${1:+-R "$1"}
}

run_sanitize() {
    build debug
    ctest_of debug ${1:+-R "$1"}
}

run_lint() {
    local files
    mapfile -t files < <(find bench examples fuzz host include kit platform src testing tests tools -name '*.[ch]pp' -not -path '*/templates/*' | sort)
    [ ${#files[@]} -gt 0 ] || fail "no sources found"
    if [ "${1:-}" = --fix ]; then
        clang-format -i "${files[@]}"
    else
        clang-format --dry-run --Werror "${files[@]}"
    fi
    shellcheck -x dev cmake/dev/*.sh .ci/run
}

# Static analysis of the sources as the release build compiles them; what was clean and is unchanged is skipped.
run_tidy() {
    configure release
    python3 -B cmake/dev/tidy.py build/release "$cache/ccache/tidy" "$@"
}

run_mutate() {
    CCACHE_DIR=${CCACHE_DIR:-$cache/ccache} python3 -B cmake/dev/mutate/mutate.py "$@"
}

# The release build for Linux is there for its list of tests; it is built already when `test` ran.
run_windows() {
    export WINEPREFIX=$checkout/build/windows/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
    export LC_ALL=C.UTF-8 # Wine's file names are those of the locale
    build windows
    say "Starting Wine"
    wine wineboot --init >build/windows/wineboot.log 2>&1
    ctest_of windows ${1:+-R "$1"}
    [ $# -eq 0 ] || return 0
    say "Comparing the demonstration with the other platform's"
    wine build/windows/bin/pump-station-demo.exe | diff -u --label expected --label windows \
        examples/pump-station/demo.expected - || fail "the demonstration shows something else on Windows"
    build release
    say "Comparing the tests with the other platform's"
    compare_platforms build/release build/windows
}

# Writes the lists of exported names, which the tests compare, for both platforms.
run_exports() {
    build release --target write-exports
    build windows --target write-exports
}

# The tests with the other compiler; then the other language mode, compiled only.
run_clang() {
    build clang
    ctest_of clang
    build clang-cxx23
    build gcc-cxx23
}

run_fuzz() {
    local seconds=${1:-60} target name
    build fuzz
    for target in "$checkout"/build/fuzz/bin/*_fuzz; do
        name=$(basename "$target")
        say "$name for $seconds s"
        mkdir -p "build/fuzz/corpus/$name"
        "$target" -max_total_time="$seconds" -print_final_stats=1 "build/fuzz/corpus/$name" \
            "fuzz/corpus/$name" 2>"build/fuzz/$name.log" || {
            tail -n 40 "build/fuzz/$name.log"
            fail "$name found something"
        }
        grep -E 'number_of_executed_units' "build/fuzz/$name.log"
    done
}

run_bench_build() { build bench >&2; }
run_bench_all() { python3 -B cmake/dev/bench/all.py build/bench/bin "$@"; }
run_figures() { python3 -B cmake/dev/bench/page.py "${1:?the file that bench --json has written}" docs/performance.md; }

run_coverage() {
    build coverage
    find build/coverage -name '*.gcda' -delete
    ctest_of coverage
    gcovr --root . --filter include/ --filter src/ --filter kit/ --filter host/ --filter testing/ \
        --filter platform/ --exclude-throw-branches --print-summary \
        build/coverage --html-details build/coverage/report.html
}

run_docs() {
    mkdir -p build/docs
    doxygen docs/Doxyfile
}
