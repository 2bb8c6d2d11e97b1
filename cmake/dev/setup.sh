# shellcheck shell=bash disable=SC2154 # ./dev sets checkout, cache and root
# Finds out what this machine lacks and installs it. Sourced by ./dev.

say() { printf '\033[1m==>\033[0m %s\n' "$*" >&2; }
fail() {
    printf './dev: %s\n' "$*" >&2
    exit 1
}

# What each command needs beyond the compiler: PACKAGE:PROBE, where the probe is a command name, a
# header (by its suffix), an absolute path, or the start of a file name below /usr/lib (behind "@").
needs_of() {
    local base="cmake:cmake ninja-build:ninja ccache:ccache
        libexpected-dev:tl/expected.hpp libfast-float-dev:fast_float/fast_float.h
        libicu-dev:unicode/ucol.h libcxxopts-dev:cxxopts.hpp"
    local tests="libgtest-dev:gtest/gtest.h libgmock-dev:gmock/gmock.h
        nlohmann-json3-dev:nlohmann/json.hpp libsimdjson-dev:simdjson.h"
    case $1 in
        demo) echo "$base" ;;
        test | sanitize) echo "$base $tests" ;;
        windows | exports)
            echo "$base $tests googletest:/usr/src/googletest/CMakeLists.txt
                g++-mingw-w64-x86-64-posix:x86_64-w64-mingw32-g++-posix wine64:/usr/lib/wine/wine64
                wine:wine"
            ;;
        clang) echo "$base $tests clang:clang++" ;;
        fuzz) echo "$base $tests clang:clang++ libclang-rt-dev:@libclang_rt.fuzzer" ;;
        figures) echo "python3:python3" ;;
        bench)
            echo "$base python3:python3 libbenchmark-dev:benchmark/benchmark.h nlohmann-json3-dev:nlohmann/json.hpp
                rapidjson-dev:rapidjson/document.h libboost-json-dev:@libboost_json.so
                libjsoncons-dev:jsoncons/json.hpp libsimdjson-dev:simdjson.h libyyjson-dev:yyjson.h
                pkgconf:pkg-config libsigc++-3.0-dev:sigc++-3.0/sigc++/sigc++.h
                libboost-dev:boost/signals2.hpp"
            ;;
        coverage) echo "$base $tests gcovr:gcovr" ;;
        lint) echo "clang-format:clang-format shellcheck:shellcheck" ;;
        docs) echo "doxygen:doxygen graphviz:dot" ;;
        package)
            echo "$base $tests pkgconf:pkg-config dpkg-dev:dpkg-shlibdeps file:file patch:patch
                g++-mingw-w64-x86-64-posix:x86_64-w64-mingw32-g++-posix wine64:/usr/lib/wine/wine64
                wine:wine googletest:/usr/src/googletest/CMakeLists.txt"
            ;;
        tidy) echo "$base $tests clang:clang++ clang-tidy:clang-tidy python3:python3" ;;
        mutate) echo "$base $tests python3:python3" ;;
        abi) echo "$base abigail-tools:abidiff xz-utils:xz" ;;
    esac
}

# A compiler with <format> and floating-point <charconv>; prints its name.
find_compiler() {
    local compiler
    for compiler in ${CXX:+"$CXX"} c++ g++ g++-15 g++-14 g++-13 clang++ clang++-19; do
        command -v "$compiler" >/dev/null 2>&1 || continue
        if "$compiler" -std=c++20 -x c++ -fsyntax-only - >/dev/null 2>&1 <<'CODE'; then
#include <charconv>
#include <format>
int main() {
    double value = 0;
    std::from_chars(nullptr, nullptr, value);
    return static_cast<int>(std::format("{}", value).size());
}
CODE
            echo "$compiler"
            return 0
        fi
    done
    return 1
}

# Whether the probe of one need succeeds on this machine.
present() {
    case $1 in
        /*) [ -e "$1" ] ;;
        @*) [ -n "$(find /usr/lib -name "${1#@}*" -print -quit)" ] ;;
        *.h | *.hpp) compgen -G "/usr/include/$1" >/dev/null || compgen -G "/usr/local/include/$1" >/dev/null ||
            compgen -G "/usr/include/*-linux-gnu*/$1" >/dev/null ;;
        *) command -v "$1" >/dev/null 2>&1 ;;
    esac
}

# Prints the packages that the given commands lack.
missing_packages() {
    local need command
    find_compiler >/dev/null || echo g++
    for command in "$@"; do
        for need in $(needs_of "$command"); do
            present "${need#*:}" || echo "${need%%:*}"
        done
    done | sort -u
}

# Runs a command with its output in a log; on a terminal one line shows what it does.
quietly() {
    local log=$cache/setup.log status=0
    mkdir -p "$cache"
    if [ -t 2 ]; then
        "$@" 2>&1 </dev/null | tee "$log" | while IFS= read -r line; do
            printf '\r\033[K    %.70s' "$line" >&2
        done || status=${PIPESTATUS[0]}
        printf '\r\033[K' >&2
    else
        "$@" >"$log" 2>&1 </dev/null || status=$?
    fi
    [ "$status" -eq 0 ] || tail -n 15 "$log" >&2
    return "$status"
}

install_with_apt() {
    export DEBIAN_FRONTEND=noninteractive
    quietly apt-get update || true # one broken source must not stop the others
    quietly apt-get install -y --no-install-recommends -o Dpkg::Use-Pty=0 "$@"
}

# Makes this machine fit for the given commands: as it is, with apt, or through a Debian 13 root.
require_packages_for() {
    local packages
    [ -n "${CORVANE_IN_ROOT:-}" ] && return 0
    if ! find_compiler >/dev/null && ! apt_offers_compiler; then
        prepare_root "$@"
        return
    fi
    packages=$(missing_packages "$@" | tr '\n' ' ')
    [ -z "$packages" ] && return 0
    if ! command -v apt-get >/dev/null 2>&1; then
        fail "this system has no apt, and these are missing (by their Debian names): $packages
Install them with this system's own package manager, then run the command again."
    fi
    if [ "$(id -u)" -ne 0 ]; then
        fail "these packages are missing: $packages
Install them, then run the command again:  sudo apt-get install --no-install-recommends $packages"
    fi
    say "Installing $packages"
    # shellcheck disable=SC2086 # a list of words
    install_with_apt $packages ||
        fail "the packages could not be installed (is there a network?). By hand:  apt-get install --no-install-recommends $packages"
}

# Whether this system's own packages hold a compiler that is new enough.
apt_offers_compiler() {
    command -v apt-get >/dev/null 2>&1 || return 0 # no apt: nothing better than to name what is missing
    local version
    version=$(. /etc/os-release && echo "${ID:-}:${VERSION_ID:-}")
    case $version in
        debian:1[0-2] | ubuntu:1* | ubuntu:2[0-3]*) return 1 ;;
    esac
    return 0
}
