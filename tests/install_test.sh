#!/usr/bin/env bash
# The ways in which a host gets at the library, each from a scratch directory.
# Usage: install_test.sh SOURCE-TREE BUILD-TREE COMPILER
set -euo pipefail
source=$1 build=$2
export CXX=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# says NAME PROGRAM: the example, however it was built, says what it should.
says() {
    "$2" | grep -q 'It is  ten   thirty' || { echo "FAILED: $1"; exit 1; }
    echo "ok: $1"
}

# cmake_host NAME LINES [OPTIONS...]: a host's own CMake project around the example.
cmake_host() {
    local name=$1 lines=$2
    shift 2
    mkdir "$name"
    cp "$source/examples/link_the_engine.cpp" "$name"
    cat >"$name/CMakeLists.txt" <<TXT
cmake_minimum_required(VERSION 3.25)
project(host CXX)
$lines
add_executable(host link_the_engine.cpp)
target_link_libraries(host PRIVATE kavi::host kavi::services)
get_directory_property(leaked COMPILE_OPTIONS)
get_target_property(options host COMPILE_OPTIONS)
if(leaked OR options OR KAVI_BUILD_TESTS OR TARGET kavi_tests)
    message(FATAL_ERROR "leaks into the host's build: \${leaked} \${options}")
endif()
TXT
    cmake -S "$name" -B "$name/build" "$@" >/dev/null
    cmake --build "$name/build" >/dev/null
    says "$name" "$name/build/host"
}

# pkg_config_host NAME: a host that knows nothing but pkg-config.
pkg_config_host() {
    local flags
    mapfile -t flags < <(pkg-config --cflags --libs kavi | xargs printf '%s\n') # a blank has a backslash before it
    $CXX -std=c++17 "$source/examples/link_the_engine.cpp" "${flags[@]}" -o "$1"
    says "$1" "./$1"
}

# What the README has, for the build and the prefix that are tried.
line=$(grep -oE '^    cmake --install .*' "$source/README.md")
line=${line/build\/release/'"$build"'}
eval "${line/\~\/.local/'"$work/prefix"'}" >/dev/null
cmake_host installed 'find_package(kavi 0.1 CONFIG REQUIRED)' "-DCMAKE_PREFIX_PATH=$work/prefix"
cmake_host build-tree 'find_package(kavi 0.1 CONFIG REQUIRED)' "-Dkavi_DIR=$build"
cmake_host subdirectory "add_subdirectory([=[$source]=] kavi)"
cmake_host shared "add_subdirectory([=[$source]=] kavi)" -DBUILD_SHARED_LIBS=ON
ln -s "$source" source # FetchContent has no brackets in a name
cmake_host fetched "include(FetchContent)
FetchContent_Declare(kavi SOURCE_DIR $work/source)
FetchContent_MakeAvailable(kavi)"
PKG_CONFIG_PATH=$(dirname "$(find prefix -name kavi.pc)") pkg_config_host pkg-config-installed
PKG_CONFIG_PATH=$build pkg_config_host pkg-config-build-tree

# c_host NAME OPTION...: a program in C, by pkg-config.
c_host() {
    local name=$1 flags
    shift
    mapfile -t flags < <(PKG_CONFIG_PATH=$(dirname "$(find prefix -name kavi-c.pc)") pkg-config "$@" --cflags --libs kavi-c |
        xargs printf '%s\n')
    cc "$source/examples/speakable.c" "${@/#--static/-static}" "${flags[@]}" -o "$name"
    [ "$(LD_LIBRARY_PATH=$(dirname "$(find prefix -name libkavi.so)") "./$name")" = 'It is ten thirty, ok?' ]
    echo "ok: $name"
}
c_host c-shared
c_host c-static --static
if command -v clang >/dev/null; then
    echo '@import kavi; const char* version(void) { return kavi_version(); }' >module.m
    clang -fmodules -fmodules-cache-path="$work/modules" -fsyntax-only "-I$source/tts-text/tts-c/inc" module.m
    echo 'ok: module.modulemap'
fi
# What the README has without a build system.
line=$(sed -n 's/^    \(g++ .*\)/\1/p' "$source/README.md")
(cd "$source" && shopt -s globstar && eval "${line/%program.cpp/examples\/link_the_engine.cpp -o '$work/plain'}")
says 'plain g++' ./plain

# The shared libraries show the public interface alone.
for library in engine host services; do
    nm -DC --defined-only "shared/build/kavi/libkavi_$library.so" | cut -d' ' -f3- | sed "s/^/$library: /"
done | sort -u | diff "$source/tests/symbols.txt" - || { echo 'FAILED: other symbols'; exit 1; }

for file in share/man/man1/kavi-tn.1.gz share/bash-completion/completions/kavi-tn \
    share/zsh/site-functions/_kavi-tn share/fish/vendor_completions.d/kavi-tn.fish; do
    [ -s "prefix/$file" ] || { echo "FAILED: no $file"; exit 1; }
done
# completed WORDS...: what bash offers for the last of them.
completed() {
    (
        # shellcheck disable=SC1091
        source prefix/share/bash-completion/completions/kavi-tn
        # shellcheck disable=SC2034
        COMP_WORDS=(kavi-tn "$@") COMP_CWORD=$#
        _kavi_tn
        echo "${COMPREPLY[@]}"
    )
}
[ "$(completed --format = j)/$(completed --fields line,pl)/$(completed --pl)" = jsonl/line,plain/--plain ] ||
    { echo 'FAILED: completion'; exit 1; }
options() { sed 's/Fl Fl /--/g' | grep -oE -- '--[a-z]+' | sort -u; }
for file in tools/kavi-tn/kavi-tn.1 tools/kavi-tn/completions/{kavi-tn.bash,_kavi-tn}; do
    diff <(prefix/bin/kavi-tn --help | options) <(options <"$source/$file") ||
        { echo "FAILED: $file and --help differ"; exit 1; }
done

cmake --build "$build" --target uninstall >/dev/null
[ -z "$(find prefix -type f)" ] || { echo 'FAILED: the uninstall target leaves files'; exit 1; }
echo 'ok: uninstalled'
