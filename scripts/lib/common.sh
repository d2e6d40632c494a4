# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Sourced by the scripts of this folder: where things are, what is said, and how packages come.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
script=$(basename "$0")
cache=${VX_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/vxprinterstatus}
jobs=$(nproc)

say() { printf '%s: %s\n' "$script" "$*" >&2; }

fail() {
    say "$*"
    exit 1
}

wrong_usage() {
    say "$*"
    exit 2
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

installed() { dpkg-query -W -f '${Status}\n' "$1" 2>/dev/null | grep -q ' installed$'; }

# need_packages NAME...: installs those that are missing and says which; does nothing, quickly, when
# none is.
need_packages() {
    local missing=() package
    for package in "$@"; do
        installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return
    command -v apt-get >/dev/null ||
        fail "these packages are missing, and without apt-get they have to be installed by hand: ${missing[*]}"
    say "installing the packages that are missing: ${missing[*]}"
    local quiet=(-qq -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=600)
    mkdir -p "$cache"
    {
        # Two runs at once take turns: apt-get itself does not wait for lists that are being fetched.
        flock 8
        as_root apt-get "${quiet[@]}" update
        as_root env DEBIAN_FRONTEND=noninteractive apt-get "${quiet[@]}" install -y \
            --no-install-recommends "${missing[@]}"
    } >&2 8>"$cache/packages.lock" || fail "apt-get could not install: ${missing[*]}"
}

# shellcheck disable=SC2034 # the scripts that source this file use it
native_packages=(ca-certificates ccache cmake g++ libgl1-mesa-dev libjsoncpp-dev libsqlite3-dev
    libqt6sql6-sqlite ninja-build pkg-config python3 qt6-base-dev qt6-l10n-tools qt6-tools-dev
    qt6-tools-dev-tools)

seconds_since() { echo $((SECONDS - $1)); }

# follow_build PID LOG: waits for a build whose output goes to a file, and tells every half minute how
# far it is; the exit status is the build's.
follow_build() {
    local pid=$1 log=$2 began=$SECONDS next=30
    while kill -0 "$pid" 2>/dev/null; do
        sleep 1
        if [ "$(seconds_since "$began")" -ge $next ]; then
            say "  $(grep -o '^\[[0-9/]*\]' "$log" | tail -n 1) after $(seconds_since "$began") s"
            next=$((next + 30))
        fi
    done
    wait "$pid"
}

# build_preset NAME [TARGETS [HOW_LONG]]: configures and builds, telling how far it is and how long it
# usually takes; the whole output is shown only when it fails. CMake gets configure_options too. Several
# targets are one text with blanks between.
configure_options=()
build_preset() {
    local preset=$1 targets usual=${3:-} began=$SECONDS log
    read -ra targets <<<"${2:-all}"
    # Clones in other folders find in the compiler's cache what this one has compiled.
    export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
    log=$(mktemp)
    say "configuring $preset"
    (cd "$root" && cmake --preset "$preset" "${configure_options[@]}") >"$log" 2>&1 || {
        cat "$log" >&2
        fail "cmake could not configure the preset $preset"
    }
    say "building $preset${2:+ (${#targets[@]} targets)}${usual:+: $usual}"
    if [ -t 2 ]; then
        cmake --build "$root/build/$preset" --target "${targets[@]}" --parallel "$jobs" >&2 ||
            fail "the build of $preset failed"
    else
        cmake --build "$root/build/$preset" --target "${targets[@]}" --parallel "$jobs" >"$log" 2>&1 &
        follow_build $! "$log" || {
            cat "$log" >&2
            fail "the build of $preset failed"
        }
    fi
    rm -f "$log"
    say "built $preset in $(seconds_since $began) s"
}

build_windows() { build_preset windows all "about 6 minutes on two cores, less what ccache has"; }

# shellcheck disable=SC2034 # the scripts that source this file use it
windows_packages=(ca-certificates ccache cmake g++-mingw-w64-x86-64-posix ninja-build python3
    qt6-base-dev qt6-base-dev-tools qt6-l10n-tools qt6-tools-dev qt6-tools-dev-tools)

# Where MinGW's run-time DLLs are: GCC's and the threads'.
mingw_dll_folders() {
    local name
    for name in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
        dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name="$name")"
    done | sort -u
}

# use_wine PREFIX: makes a Wine prefix if there is none, and lets Windows programs find the DLLs.
use_wine() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
    export QT_FORCE_STDERR_LOGGING=1
    local dll_folders
    mapfile -t dll_folders < <(mingw_dll_folders)
    WINEPATH=$(windows_paths "$root/build/windows/bin" "$VX_QT_MINGW/bin" "${dll_folders[@]}")
    export WINEPATH
    # What a run that was killed left running: its services would be in a state of their own.
    end_wine
    # A service that is started holds on to the outputs of who started it, and these may be a pipe.
    if [ ! -f "$WINEPREFIX/ready" ]; then
        say "making a Wine prefix (about 5 seconds)"
        mkdir -p "$WINEPREFIX"
        wine wineboot -i >/dev/null 2>&1 </dev/null ||
            fail "wine could not make a prefix in $WINEPREFIX"
        # On Windows always there, and what the current control set is a link to.
        wine reg add 'HKLM\System\ControlSet001\Control\DeviceClasses' /f >/dev/null 2>&1 </dev/null ||
            fail "wine could not add a key to its registry"
        wineserver -w
        touch "$WINEPREFIX/ready"
    fi
    # Kept up for all the tests: each would otherwise start Wine's services anew.
    wineserver -p >/dev/null 2>&1 </dev/null || fail "wine could not start its server"
}

# While Wine starts its own services it refuses to start any other.
start_spooler() {
    local try
    for try in {1..30}; do
        wine net start Spooler >/dev/null 2>&1 </dev/null && return
        sleep 1
    done
    fail "wine could not start its print spooler in $try s"
}

# Without a server there is nothing to end.
end_wine() {
    wineserver -k 2>/dev/null || true
    wineserver -w 2>/dev/null || true
}

# windows_paths FOLDER...: as Windows programs under Wine see them.
windows_paths() {
    local folder paths=()
    for folder in "$@"; do paths+=("Z:${folder//\//\\}"); done
    (IFS=';' && echo "${paths[*]}")
}
