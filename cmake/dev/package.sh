# shellcheck shell=bash disable=SC2154 # ./dev sets checkout, cache and root
# The packages, and projects of their own that use them as a skill author's would. Sourced by ./dev.

package_place=build/package

run_package() {
    rm -rf "$package_place"
    mkdir -p "$package_place"
    build tools
    cpack --config build/tools/CPackConfig.cmake >"$package_place/cpack.log" || fail "see $package_place/cpack.log"
    package_archives_hold_everything
    package_is_found "$checkout/$package_place/installed"
    package_skill_is_built find-package "" "-DCMAKE_PREFIX_PATH=$checkout/$package_place/installed"
    package_skill_is_built add-subdirectory "" "-Dcorvane_source=$checkout"
    package_subproject_adds_nothing build/package-add-subdirectory
    package_new_skill_is_built new "-DCMAKE_PREFIX_PATH=$checkout/$package_place/installed"
    package_guide_is_followed
    package_works_on_windows
    say "The packages are in build/tools/packages and build/windows/packages; installed: $package_place/installed"
}

# The commands of the first guide, and the changes that it makes to the skill.
package_guide_is_followed() {
    local tank=$package_place/guide/tank
    play_guide docs/first-skill.md "$package_place/guide"
    patch --directory "$tank" --strip 1 <tests/guides/height.patch
    cmake --build "$tank/build/release"
    ctest --test-dir "$tank/build/release" --output-on-failure --no-tests=error
}

# Unpacks both archives for Linux and lets their programs run where they lie.
package_archives_hold_everything() {
    local archives=build/tools/packages place=$package_place folder
    say "Unpacking the archives"
    mkdir -p "$place/installed" "$place/deb"
    tar -xzf "$archives"/*.tar.gz -C "$place/installed" --strip-components=1
    dpkg-deb -x "$archives"/*.deb "$place/deb"
    dpkg-deb -f "$archives"/*.deb Depends | grep -q libexpected-dev || fail "the .deb lacks a dependency"
    for folder in "$place/installed" "$place/deb/usr"; do
        "$folder/bin/skillbench" check --skill "$folder/lib/corvane-workbench/skills/pump-station.so" \
            "$folder/share/corvane-workbench/examples/pump-station/configurations/plant.json"
    done
    diff -r "$place/installed" "$place/deb/usr" || fail "the archives differ"
}

# CMake and pkg-config find the package; what it does not have is refused in words.
package_is_found() {
    local prefix=$1 place=$package_place/program
    say "A program that finds the package"
    cmake -S tests/package/program -B "$place" -G Ninja "-DCMAKE_PREFIX_PATH=$prefix" -DCMAKE_BUILD_TYPE=Release \
        "-Dwanted_components=Kit;Host;Testing;Tools" >/dev/null
    cmake --build "$place"
    "$place/consumer"
    package_is_refused "$prefix" 'There is no component "Kitt"; there are Kit, Host, Testing, Tools.' \
        -Dwanted_components=Kitt
    package_is_refused "$prefix" 'version: 0.1' -Dwanted_version=0.2
    package_is_refused "$prefix" 'version: 0.1' -Dwanted_version=0.0
    mv "$prefix/lib/cmake/CorvaneWorkbenchPlugin/CorvaneWorkbenchPluginKitTargets.cmake" "$place/kit"
    package_is_refused "$prefix" 'The component "Kit" is not installed in ' -Dwanted_components=Kit
    mv "$place/kit" "$prefix/lib/cmake/CorvaneWorkbenchPlugin/CorvaneWorkbenchPluginKitTargets.cmake"

    say "The same with pkg-config"
    package_compile "$prefix" corvane-workbench-plugin tests/package/program/consumer.cpp "$place/by-pkg-config"
    package_compile "$prefix" corvane-skill-testing tests/package/skill/tankTest.cpp "$place/test-by-pkg-config" \
        '-DSKILL_LIBRARY=""'
}

# package_compile PREFIX PACKAGE SOURCE PROGRAM FLAG...
package_compile() {
    local prefix=$1 package=$2 source=$3 program=$4 flags
    shift 4
    read -ra flags <<<"$(PKG_CONFIG_PATH=$prefix/lib/pkgconfig pkg-config --cflags --libs "$package")"
    "$(find_compiler)" -std=c++20 "$@" "$source" "${flags[@]}" "-Wl,-rpath,$prefix/lib" -o "$program"
    [ "$package" != corvane-workbench-plugin ] || "$program"
}

# package_is_refused PREFIX SENTENCE OPTION...
package_is_refused() {
    local prefix=$1 sentence=$2 log=$package_place/refused.log
    shift 2
    rm -rf "$package_place/refused"
    if cmake -S tests/package/program -B "$package_place/refused" -G Ninja "-DCMAKE_PREFIX_PATH=$prefix" "$@" \
        >"$log" 2>&1; then
        fail "a package was found with $*"
    fi
    tr -s ' \n' '  ' <"$log" | grep -qF "$sentence" || fail "the refusal with $* does not say: $sentence; see $log"
}

# package_skill_is_built NAME EMULATOR OPTION...: a skill outside of the tree, built, tested, installed.
# The folder is as deep as those of the presets, so that the compiler cache knows the library's files.
package_skill_is_built() {
    local place=build/package-$1 emulator=$2
    rm -rf "$place"
    say "A skill outside of the tree: $1"
    cmake -S tests/package/skill -B "$place" -G Ninja -DCMAKE_BUILD_TYPE=Release -Werror=dev \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCORVANE_WARNINGS_AS_ERRORS=ON "${@:3}" \
        >"$package_place/$1.log" 2>&1 || {
        cat "$package_place/$1.log" >&2
        return 1
    }
    cmake --build "$place"
    ctest --test-dir "$place" --output-on-failure --no-tests=error
    cmake --install "$place" --prefix "$place/installed" >/dev/null
    $emulator "${package_skillbench:-$package_place/installed/bin/skillbench}" show \
        --skill "$(find "$place/installed" -name 'tank.*')" tests/package/skill/plant.json
}

# package_new_skill_is_built NAME OPTION...: what `skillbench new` writes is built and tested by its own
# script, as it stands.
package_new_skill_is_built() {
    local place=$package_place/$1
    shift
    say "A skill that skillbench has written"
    "$package_place/installed/bin/skillbench" new line-mixer --class Mixer --in "$place"
    "$place/line-mixer/ci/run" "$@"
}

# As part of another project: no tool, no test and no example is built, nothing of ours installed.
package_subproject_adds_nothing() {
    local place=$1
    find "$place/installed" -type f | grep -v '/tank\.so$' && fail "a subproject installs more than the skill"
    find "$place" \( -name 'skillbench*' -o -name 'pump-station*' -o -name 'test-*' \) -type f -perm -u+x | grep . &&
        fail "a subproject builds more than the libraries"
    return 0
}

# The archive for Windows, used by a project that is cross-built and run in Wine.
package_works_on_windows() {
    local place=$package_place/windows
    local toolchain=$checkout/$place/lib/cmake/CorvaneWorkbenchPlugin/mingw-w64.cmake
    export WINEPREFIX=$checkout/build/windows/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
    export LC_ALL=C.UTF-8
    build windows --target skillbench corvane-skill-kit corvane-skill-testing pump-station first-skill
    cpack --config build/windows/CPackConfig.cmake >"$place.log" || fail "see $place.log"
    mkdir -p "$place"
    cmake -E chdir "$place" cmake -E tar xf "$(find "$checkout/build/windows/packages" -maxdepth 1 -name '*.zip')"
    mv "$place"/*/* "$place"
    wine wineboot --init >/dev/null 2>&1
    wine "$place/bin/skillbench.exe" check --skill "$place/lib/corvane-workbench/skills/pump-station.dll" \
        "$place/share/corvane-workbench/examples/pump-station/configurations/plant.json"
    package_skillbench=$place/bin/skillbench.exe package_skill_is_built windows-zip wine \
        "-DCMAKE_PREFIX_PATH=$checkout/$place" "-DCMAKE_TOOLCHAIN_FILE=$toolchain"
    package_googletest_for_windows
    package_new_skill_is_built new-for-windows "-DCMAKE_TOOLCHAIN_FILE=$toolchain" \
        "-DCMAKE_PREFIX_PATH=$checkout/$place;$checkout/$package_place/googletest"
}

# There is no package of it for the cross compiler.
package_googletest_for_windows() {
    cmake -S /usr/src/googletest -B "$package_place/googletest-build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        "-DCMAKE_TOOLCHAIN_FILE=$toolchain" "-DCMAKE_INSTALL_PREFIX=$checkout/$package_place/googletest" >/dev/null
    cmake --build "$package_place/googletest-build" --target install >/dev/null
}
