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
    local quiet=(-qq -o Dpkg::Use-Pty=0)
    {
        as_root apt-get "${quiet[@]}" update
        as_root env DEBIAN_FRONTEND=noninteractive apt-get "${quiet[@]}" install -y \
            --no-install-recommends "${missing[@]}"
    } >&2 || fail "apt-get could not install: ${missing[*]}"
}

native_packages=(ca-certificates ccache cmake g++ libgl1-mesa-dev libjsoncpp-dev libsqlite3-dev
    libqt6sql6-sqlite ninja-build pkg-config python3 qt6-base-dev qt6-l10n-tools qt6-tools-dev
    qt6-tools-dev-tools)

seconds_since() { echo $((SECONDS - $1)); }

# build_preset NAME [TARGET]: configures and builds, telling how far it is; the whole output is shown
# only when it fails.
build_preset() {
    local preset=$1 target=${2:-all} began=$SECONDS log
    log=$(mktemp)
    say "configuring $preset"
    (cd "$root" && cmake --preset "$preset") >"$log" 2>&1 || {
        cat "$log" >&2
        fail "cmake could not configure the preset $preset"
    }
    say "building $preset${2:+ ($2)}"
    if [ -t 2 ]; then
        cmake --build "$root/build/$preset" --target "$target" --parallel "$jobs" >&2 ||
            fail "the build of $preset failed"
    else
        cmake --build "$root/build/$preset" --target "$target" --parallel "$jobs" >"$log" 2>&1 || {
            cat "$log" >&2
            fail "the build of $preset failed"
        }
    fi
    rm -f "$log"
    say "built $preset in $(seconds_since $began) s"
}
