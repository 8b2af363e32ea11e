#!/bin/sh
# Usage: consumers.sh CASE SOURCES BUILD WORK [Qt]
# What other projects do with the library: the case `install` installs what is built and moves it to WORK/moved, from
# where the others use it.
set -eu
case=$1
sources=$2
build=$3
work=$4
qt=${5:-}
moved=$work/moved
mkdir -p "$work"
cd "$work"

fail() {
    echo "$case: $*" >&2
    exit 1
}

# configure PROJECT OPTION...
configure() {
    project=$1
    shift
    rm -rf "$project"
    cmake -G Ninja -S "$sources/tests/consumers/$project" -B "$project" -DSOURCES="$sources" "$@" >/dev/null
}

# runs LAST_LINE COMMAND...
runs() {
    last=$1
    shift
    [ "$("$@" | tail -n 1)" = "$last" ] || fail "$* does not end with: $last"
}

case $case in
install)
    rm -rf installed parts moved
    cmake --install "$build" --prefix "$work/installed" >/dev/null
    for part in Runtime Development Tools ${qt:+Qt QtDevelopment Drill}; do
        cmake --install "$build" --prefix "$work/parts" --component "$part" >/dev/null
    done
    diff -r installed parts || fail 'the parts are not the whole'
    rm -r parts
    for before in '"' "'" ' ' '=' ';' ':' -I -L; do # a path of one folder, like /zilvo, may well be part of another's
        ! grep -rIlF -e "$before$sources/" -e "$before$work/" installed || fail 'these files say where they lie'
    done
    mv installed moved
    cd /
    env -i "$moved/bin/zilvo" list | grep -q '^ssOKCancel ' || fail 'the component is not found'
    ;;
find_package)
    configure find_package -DCMAKE_PREFIX_PATH="$moved" -DWITH="$qt"
    cmake --build find_package >/dev/null
    runs '2 settings saved' find_package/okcancel-host
    runs 'NumberOfDecks is 8' env -i find_package/by-identifier
    "$moved/bin/zilvo" validate find_package/Gallery.Ocx >validated || fail "$(cat validated)"
    [ -z "$qt" ] || QT_QPA_PLATFORM=offscreen find_package/qt-form --screenshot form.png
    ;;
pkg_config)
    export PKG_CONFIG_PATH="$moved/lib/pkgconfig"
    pkg-config --print-errors --exists zilvo-platform zilvo-buttons ${qt:+zilvo-qt}
    # shellcheck disable=SC2046
    g++ -std=c++20 "$sources/demos/okcancel_host.cpp" $(pkg-config --cflags --libs zilvo-buttons) -o okcancel-host
    runs '2 settings saved' env LD_LIBRARY_PATH="$moved/lib" ./okcancel-host
    ;;
add_subdirectory)
    # All is there to be built; building the library once more would take too long.
    configure add_subdirectory -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
    ! grep -e -Werror -e -Wall add_subdirectory/compile_commands.json || fail 'our warnings are forced on it'
    ninja -C add_subdirectory -n >/dev/null
    ninja -C add_subdirectory -n _deps/zilvo-build/zilvo/platform/zilvo/ZilvoButtons-445.Ocx >/dev/null
    ninja -C add_subdirectory "CMakeFiles/typed-host.dir$sources/demos/okcancel_host.cpp.o" >/dev/null
    ;;
headers)
    # All at once, and each by itself, unless a source does so or it only leads to another.
    flags="-std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Werror -I$moved/include"
    [ -z "$qt" ] || flags="$flags -fPIC $(pkg-config --cflags Qt6Widgets)"
    (cd "$moved/include" && find -- * -name '*.h') >all
    while read -r header; do
        include="#include \"$header\""
        source=$sources/${header%.h}.cpp
        [ -e "$source" ] && [ "$(grep -m 1 '^#include' "$source")" = "$include" ] ||
            [ "$(grep -vc -e '^//' -e '^#pragma' -e '^$' "$moved/include/$header")" -eq 1 ] ||
            echo "$header"
    done <all >alone
    compile="sed 's/.*/#include \"&\"/' | g++ $flags -x c++ -"
    sh -c "$compile" <all
    xargs -P 2 -I '{}' sh -c "echo '{}' | $compile" <alone
    ;;
esac
