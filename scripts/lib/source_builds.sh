# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Sourced by the scripts that build what no package has from the distribution's source packages, each
# in a folder of the cache of its own: taking turns, steps that are done only once, and fetching.
# shellcheck shell=bash
# shellcheck disable=SC2154 # common.sh sets $cache and $root, the script itself $place

# wait_for_turn IS_READY PLACE PREFIX: lets only one run at a time build in the folder. If another run
# has built it meanwhile, which the command IS_READY tells, the prefix is printed and the script ends.
wait_for_turn() {
    local is_ready=$1 place=$2 prefix=$3
    mkdir -p "$place"
    exec 9>"$place/lock"
    if ! flock -n 9; then
        say "another run is building the same: waiting for it"
        flock 9
        if "$is_ready"; then
            echo "$prefix"
            exit
        fi
    fi
}

# step STAMP TEXT COMMAND...: runs a step unless an earlier run has completed it. Its output goes to a
# log, whose end is shown if the step fails.
step() {
    local stamp=$place/$1 text=$2 log=$place/$1.log start=$SECONDS
    shift 2
    [ -f "$stamp" ] && return
    say "$text"
    if ! "$@" >"$log" 2>&1; then
        tail -n 30 "$log" >&2
        fail "failed: $text (the complete output is in $log)"
    fi
    touch "$stamp"
    say "  done in $(seconds_since "$start") s"
}

# build_step TEXT COMMAND...: the same for a build that prints its progress. The build inherits the
# lock, so if the script is killed, the next run waits until the build ends.
build_step() {
    local text=$1 log=$place/built.log start=$SECONDS
    shift
    [ -f "$place/built" ] && return
    say "$text"
    "$@" >"$log" 2>&1 &
    if ! follow_build $! "$log"; then
        tail -n 30 "$log" >&2
        fail "failed: $text (the complete output is in $log)"
    fi
    touch "$place/built"
    say "  done in $(seconds_since "$start") s"
}

# Source packages are looked up in a copy of the system's package lists with sources enabled. The
# system's own lists are not changed, and root is not needed. apt compares what it fetches with the
# checksums of these lists, which the distribution has signed.
apt_home=$cache/apt
private_apt() {
    local command=$1
    shift
    "$command" -o "Dir::Etc::sourcelist=$apt_home/sources.list" -o "Dir::Etc::sourceparts=-" \
        -o "Dir::State::lists=$apt_home/lists" -o "Dir::Cache=$apt_home/cache" \
        -o APT::Get::List-Cleanup=0 -o APT::Sandbox::User=root "$@"
}

write_source_list() {
    mkdir -p "$apt_home/lists/partial" "$apt_home/cache/archives/partial" &&
        python3 "$root/scripts/lib/apt_sources.py" >"$apt_home/sources.list"
}

# fetch_source PACKAGE[=VERSION]: without a version it is the newest that can be fetched. The lists may
# name a version that the server does not have any more.
fetch_source() {
    local package=$1 versions version
    [[ $package != *=* ]] || {
        private_apt apt-get source --download-only "$package"
        return
    }
    versions=$(private_apt apt-cache showsrc --only-source "$package" |
        sed -n 's/^Version: //p' | sort --version-sort --reverse --unique)
    for version in $versions; do
        private_apt apt-get source --download-only "$package=$version" && return
        rm -f "${package}_${version%%-*}"[.-]*
    done
    echo "no version of the source package $package can be fetched" >&2
    return 1
}

# A step runs as a condition, where "set -e" has no effect, so its commands are joined by &&.
fetch_source_packages() {
    local package
    mkdir -p "$apt_home" &&
        (
            # The builds share the lists, and may run at the same time.
            flock 8 && write_source_list && private_apt apt-get update && cd "$place" || exit
            for package in "$@"; do
                fetch_source "$package" || exit
            done
        ) 8>"$apt_home/lock"
}
