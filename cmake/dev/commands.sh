# The commands of ./dev (run_COMMAND), each a thin layer over a CMake preset, run where the compiler is.

build() {
    local preset=$1
    shift
    : "${CCACHE_DIR:=$cache/ccache}" "${CCACHE_BASEDIR:=$checkout}" "${CCACHE_NOHASHDIR:=1}"
    export CCACHE_DIR CCACHE_BASEDIR CCACHE_NOHASHDIR
    cd "$checkout"
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

run_skillbench_build() { build tools --target skillbench pump-station >&2; }

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
    cd "$checkout"
    mapfile -t files < <(git ls-files '*.cpp' '*.hpp')
    if [ "${1:-}" = --fix ]; then
        clang-format -i "${files[@]}"
    else
        clang-format --dry-run --Werror "${files[@]}"
    fi
    shellcheck -x dev cmake/dev/*.sh .ci/run
}
