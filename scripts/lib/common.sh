# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Sourced by all shell scripts: paths, messages, packages, builds and Wine.
# shellcheck shell=bash

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
script=$(basename "$0")
cache=${VX_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/vxprinterstatus}
jobs=$(nproc)
# Many tests wait most of the time, for processes or for intervals that the product waits.
# shellcheck disable=SC2034 # the scripts that source this file use it
test_jobs=$((2 * jobs))

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

# without_services COMMAND...: runs it so that the packages that it installs do not start their services:
# brokers and Prometheus are needed as programs only, and would take their usual ports.
without_services() (
    policy=/usr/sbin/policy-rc.d
    if ! [ -e "$policy" ]; then
        trap 'as_root rm -f "$policy"' EXIT
        printf '#!/bin/sh\nexit 101\n' | as_root tee "$policy" >/dev/null
        as_root chmod 755 "$policy"
    fi
    "$@"
)

# keep_services_off PACKAGE...: does what without_services cannot: the services of the packages do not start with
# the system either, and one that an administrator's own policy let start is stopped.
keep_services_off() {
    local services now=()
    command -v systemctl >/dev/null || return 0
    mapfile -t services < <(dpkg-query -L "$@" |
        sed -nE 's,^(/usr)?/lib/systemd/system/([^/@]+\.(service|socket|timer))$,\2,p' | sort -u)
    [ ${#services[@]} != 0 ] || return 0
    [ ! -d /run/systemd/system ] || now=(--now)
    say "not needed as services, and switched off: ${services[*]}"
    as_root systemctl disable --quiet "${now[@]}" "${services[@]}" 2>/dev/null ||
        say "systemctl could not switch them off"
}

# need_packages NAME...: installs missing packages and prints their names. Returns quickly if none is
# missing.
need_packages() {
    local missing=() package
    for package in "$@"; do
        installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return
    command -v apt-get >/dev/null ||
        fail "apt-get was not found; install these packages by hand: ${missing[*]}"
    say "installing missing packages: ${missing[*]}"
    local quiet=(-qq -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=600)
    mkdir -p "$cache"
    {
        # Only one run at a time: apt-get does not wait while another run fetches the lists.
        flock 8
        as_root apt-get "${quiet[@]}" update
        without_services as_root env DEBIAN_FRONTEND=noninteractive apt-get "${quiet[@]}" install -y \
            --no-install-recommends "${missing[@]}" && keep_services_off "${missing[@]}"
    } >&2 8>"$cache/packages.lock" || fail "apt-get could not install: ${missing[*]}"
}

# shellcheck disable=SC2034 # the scripts that source this file use it
native_packages=(ca-certificates ccache cmake g++ libgl1-mesa-dev libjsoncpp-dev libmosquitto-dev
    libqt6sql6-sqlite libsqlite3-dev mono-mcs mono-runtime mosquitto mypy ninja-build nodejs openssl
    pkg-config python3 python3-jsonschema python3-markdown-it python3-pyte python3-setuptools python3-wheel
    qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-window
    qt6-base-dev qt6-declarative-dev qt6-l10n-tools qt6-tools-dev qt6-tools-dev-tools)

# A broker with WebSockets for the page, and what rings alerts.
# shellcheck disable=SC2034 # the scripts that source this file use it
site_packages=(nats-server prometheus prometheus-alertmanager python3-paho-mqtt)

# shellcheck disable=SC2034
test_packages=(bash fish groff man-db mandoc prometheus prometheus-alertmanager python3-prometheus-client
    shellcheck valgrind zsh)

# Ubuntu has Chromium as a snap only; there the page is not tested.
chromium_packages=()
if grep -qs '^ID=debian$' /etc/os-release; then
    chromium_packages=(chromium)
fi
# For the page and the brokers' configurations.
# shellcheck disable=SC2034
page_packages=(mosquitto mosquitto-clients nats-server openssl python3-paho-mqtt
    "${chromium_packages[@]}")

# For the Debian packages.
# shellcheck disable=SC2034
release_packages=(appstream binutils desktop-file-utils dpkg-dev file git lintian xz-utils)

# use_time_of_sources: has everything that is built bear the time of the last commit, not that of the build.
use_time_of_sources() {
    [ -z "${SOURCE_DATE_EPOCH:-}" ] || return 0
    SOURCE_DATE_EPOCH=$(git -C "$root" log -1 --format=%ct 2>/dev/null) ||
        fail "$root is no clone of the repository; set SOURCE_DATE_EPOCH to the time of the sources in seconds"
    export SOURCE_DATE_EPOCH
}

seconds_since() { echo $((SECONDS - $1)); }

# follow_build PID LOG: waits for a build whose output goes to a file, and prints its progress every 30
# seconds. Returns the build's exit status.
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

# fail_build NAME LOG: ends the script and says why a build failed, after its output.
fail_build() {
    cat "$2" >&2
    if grep -q 'No space left on device' "$2"; then
        fail "the build of $1 failed because the disk is full" \
            "($(df --output=avail -h "$root" | tail -n 1 | tr -d ' ') are free in $root)"
    fi
    fail "the build of $1 failed"
}

# build_preset NAME [TARGETS [HOW_LONG]]: configures and builds, and prints the progress and how long it
# usually takes. The complete output is shown only if it fails. configure_options are passed to CMake.
# TARGETS is one argument with names separated by spaces.
configure_options=()
build_preset() {
    local preset=$1 targets usual=${3:-} began=$SECONDS log
    read -ra targets <<<"${2:-all}"
    # Clones in other folders can reuse what this one has compiled, through ccache.
    export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
    # Embedded files have a time. That of the files, or SOURCE_DATE_EPOCH, would not be the same in every clone and
    # after every commit, because only what has changed is embedded anew.
    export QT_RCC_SOURCE_DATE_OVERRIDE=1
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
        follow_build $! "$log" || fail_build "$preset" "$log"
    fi
    rm -f "$log"
    say "built $preset in $(seconds_since $began) s"
}

# find_windows_libraries: builds what the Windows build stands on, unless that has been done, and exports
# the prefixes.
find_windows_libraries() {
    VX_QT_MINGW=$("$root/scripts/build-qt" mingw) || fail "Qt for MinGW is not available"
    VX_MQTT_MINGW=$("$root/scripts/build-mqtt") || fail "libmosquitto for MinGW is not available"
    export VX_QT_MINGW VX_MQTT_MINGW
}

build_windows() { build_preset windows all "about 6 minutes on two cores, less with a filled ccache"; }

# shellcheck disable=SC2034 # the scripts that source this file use it
windows_packages=(ca-certificates ccache cmake g++-mingw-w64-x86-64-posix ninja-build python3
    qt6-base-dev qt6-base-dev-tools qt6-l10n-tools qt6-tools-dev qt6-tools-dev-tools)

# make_reference BUILD_FOLDER: makes the reference where cmake --install finds it.
make_reference() {
    say "making the reference (about half a minute)"
    "$root/scripts/docs" --output "$1/reference" --no-picture >&2
}

# make_python_package BUILD_FOLDER: makes the files of the Python package where cmake --install finds them.
make_python_package() {
    local build=$1 wheel
    rm -rf "$build/wheel" "$build/python"
    wheel=$("$root/scripts/python-wheel" "$build/wheel")
    python3 -m zipfile -e "$wheel" "$build/python"
    rm -rf "$build/wheel"
}

# For the installer for Windows.
# shellcheck disable=SC2034
installer_packages=(librsvg2-bin nsis)

# stage_installer: builds for Windows and stages what the installer installs. Sets staged (a folder), assignment (which
# file belongs to which component) and version.
# shellcheck disable=SC2034 # the scripts that source this file use them
stage_installer() {
    local build=$root/build/windows
    need_packages "${windows_packages[@]}" "${installer_packages[@]}"
    find_windows_libraries
    build_windows
    # Not before: Qt would give it to embedded files, which are embedded anew only when they change.
    use_time_of_sources
    version=$(sed -n 's/^CMAKE_PROJECT_VERSION:[^=]*=//p' "$build/CMakeCache.txt")
    staged=$build/installer/files
    assignment=$build/installer/assignment.txt
    rm -rf "$build/installer"
    mkdir -p "$build/installer"
    make_reference "$build"
    say "staging"
    "$root/scripts/lib/stage-windows" "$staged" "$build" "$VX_QT_MINGW" "$VX_MQTT_MINGW"
    python3 -B "$root/scripts/lib/installer_files.py" assign "$build" "$staged" >"$assignment" ||
        fail "the staged files could not be assigned to components"
}

# Prints the folders of MinGW's run-time DLLs: those of GCC and of its thread library.
mingw_dll_folders() {
    local name
    for name in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
        dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name="$name")"
    done | sort -u
}

# Starts an X display that nobody sees, on which Wine shows the windows of the tests that need one
# (scripts/lib/run-under-wine).
start_display() {
    local number
    exec {display_pipe}< <(exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp 2>/dev/null)
    display_server=$!
    read -r -t 60 number <&"$display_pipe" || fail "Xvfb did not start"
    export VX_TEST_DISPLAY=:$number
}

end_display() {
    kill "$display_server" 2>/dev/null || true
}

# use_wine PREFIX [SET_UP]: creates the Wine prefix if it does not exist, where it runs the script SET_UP,
# and sets the path on which Windows programs find their DLLs.
use_wine() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
    export QT_FORCE_STDERR_LOGGING=1
    local dll_folders
    mapfile -t dll_folders < <(mingw_dll_folders)
    WINEPATH=$(windows_paths "$root/build/windows/bin" "$VX_QT_MINGW/bin" \
        ${VX_MQTT_MINGW:+"$VX_MQTT_MINGW/bin"} "${dll_folders[@]}")
    export WINEPATH
    # A run that was killed may have left its services running, in an unknown state.
    end_wine
    # A service keeps the outputs of the program that started it open. If these were a pipe, its reader
    # would wait forever.
    if [ ! -f "$WINEPREFIX/ready" ]; then
        say "creating a Wine prefix (about 5 seconds)"
        mkdir -p "$WINEPREFIX"
        wine wineboot -i >/dev/null 2>&1 </dev/null ||
            fail "wine could not create a prefix in $WINEPREFIX"
        # This key always exists on Windows, where CurrentControlSet is a link to ControlSet001.
        wine reg add 'HKLM\System\ControlSet001\Control\DeviceClasses' /f >/dev/null 2>&1 </dev/null ||
            fail "wine could not add a key to its registry"
        [ $# -lt 2 ] || "$2" || fail "$2 failed"
        wineserver -w
        touch "$WINEPREFIX/ready"
    fi
    # The server stays up for all tests; otherwise each test would start Wine's services again.
    wineserver -p >/dev/null 2>&1 </dev/null || fail "wine could not start its server"
}

# Tries repeatedly, because Wine refuses to start a service while it starts its own.
start_spooler() {
    local try
    for try in {1..30}; do
        wine net start Spooler >/dev/null 2>&1 </dev/null && return
        sleep 1
    done
    fail "wine could not start its print spooler within $try s"
}

# Errors are ignored, because there may be no server to end.
end_wine() {
    wineserver -k 2>/dev/null || true
    wineserver -w 2>/dev/null || true
}

# windows_paths FOLDER...: prints the folders as a Windows PATH for programs under Wine.
windows_paths() {
    local folder paths=()
    for folder in "$@"; do paths+=("Z:${folder//\//\\}"); done
    (IFS=';' && echo "${paths[*]}")
}
