#!/bin/sh
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The part of scripts/test-packages that runs in the clean system, as root: /older and /packages have the packages,
# /test this script and its helpers. It leaves the system as it was, but for what this script makes as people would.
set -eu

say() { printf 'clean system: %s\n' "$*" >&2; }

fail() {
    say "$*"
    exit 1
}

# expect TEXT COMMAND...: runs the command as a user without rights; its output must contain the text, and nothing
# may be said about errors.
expect() {
    text=$1
    shift
    runuser -u tester -- "$@" >/tmp/output 2>/tmp/errors </dev/null || {
        cat /tmp/output /tmp/errors >&2
        fail "\"$*\" has failed"
    }
    grep -qF -- "$text" /tmp/output || {
        cat /tmp/output /tmp/errors >&2
        fail "\"$*\" has not printed \"$text\""
    }
    [ ! -s /tmp/errors ] || {
        cat /tmp/errors >&2
        fail "\"$*\" has complained"
    }
}

# wait_for WHAT COMMAND...: until the command succeeds, for two minutes.
wait_for() {
    what=$1
    shift
    for _ in $(seq 120); do
        ! "$@" >/dev/null 2>&1 || return 0
        sleep 1
    done
    fail "$what has not come"
}

quietly() {
    "$@" >/tmp/log 2>&1 || {
        cat /tmp/log >&2
        fail "\"$*\" has failed"
    }
}

# What is in the system, with the kind and the rights of each file. Left out is what the package manager itself
# keeps, and what this script uses.
files() {
    find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /run -o -path /packages \
        -o -path /older -o -path /test -o -path /var/lib/dpkg -o -path /var/lib/apt -o -path /var/cache/apt \
        -o -path /var/log -o -path /var/cache/ldconfig -o -path /home/tester \) -prune -o -printf '%p %y %m\n' |
        # Accounts are kept: see packaging/debian/vxprintagent/postrm.
        grep -vE '^/etc/(passwd|group|shadow|gshadow)-? ' | sort
}

own_packages=$(for file in /packages/*.deb; do dpkg-deb -f "$file" Package; done)

say "installing what the packages need"
useradd --create-home tester
quietly apt-get -q update
# shellcheck disable=SC2086 # a list of words
needed=$(apt-get -s install --no-install-recommends /older/*.deb | sed -n 's/^Inst \([^ ]*\) .*/\1/p' |
    grep -vxF "$own_packages")
# The compiler and CMake are the choice of who builds hosts.
# shellcheck disable=SC2086
quietly apt-get -q install -y --no-install-recommends $needed g++ cmake make pkg-config qt6-l10n-tools qt6-tools-dev
files >/tmp/before

use_python() {
    say "Python"
    # The module finds the library by itself.
    expect 'vxprinterstatus is installed' python3 /test/packages/installed_python.py
    expect Shipping env VX_VIRTUAL_FLEET=built-in VX_VIRTUAL_SPEED=8 python3 "$@"
}

say "installing the Python package alone"
quietly apt-get -q install -y --no-install-recommends /older/python3-vxprinterstatus_*.deb \
    /older/libvxprinterstatus1_*.deb /older/libvxprinterstatuskit1_*.deb
! dpkg-query -W libvxprinterstatus-dev >/dev/null 2>&1 || fail "the Python package needs the development files"
use_python -c 'import vxprinterstatus
with vxprinterstatus.Session() as session:
    print(*(reading.name for reading in session.readings()))'

say "installing the older version"
quietly apt-get -q install -y --no-install-recommends /older/*.deb
older=$(dpkg-query -W -f '${Version}' libvxprinterstatus1)
examples=/usr/share/doc/vxprinterstatus-doc/examples

use() {
    say "using version $(dpkg-query -W -f '${Version}' vxprinterstatus-tools)"
    expect Stratamark vxprintmon list --virtual built-in
    expect Ready vxprintmon title 1
    # The name of a supply comes from the installed catalogue.
    expect Vinyl vxprintmon status --virtual built-in
    expect '"supplySKU":"VT-400-YL"' vxprintmon status --json --virtual built-in
    expect ': ok, 46 supplies' rolldb check /usr/share/VxPrinterStatus/roll.db
    quietly runuser -u tester -- rolldb build /usr/share/VxPrinterStatus/supplies /home/tester/roll.db
    cmp /home/tester/roll.db /usr/share/VxPrinterStatus/roll.db ||
        fail "rolldb makes another catalogue of the installed tables than the installed one"
    expect vxipc vxipc --help

    for tool in vxprintmon rolldb vxipc vxprintview vxprintagent; do
        [ -s "/usr/share/man/man1/$tool.1.gz" ] || fail "$tool has no manual page"
        [ -s "/usr/share/bash-completion/completions/$tool" ] || fail "$tool has no completions"
    done

    say "the window"
    quietly runuser -u tester -- env QT_QPA_PLATFORM=offscreen vxprintview --virtual built-in \
        --screenshot /home/tester/window.png --after 3
    [ "$(head -c 8 /home/tester/window.png | od -An -tx1 | tr -d ' \n')" = 89504e470d0a1a0a ] ||
        fail "the picture of the window is none"
    # A window that shows nothing compresses to much less.
    [ "$(wc -c </home/tester/window.png)" -gt 15000 ] ||
        fail "the picture of the window is nearly empty: $(wc -c </home/tester/window.png) bytes"

    use_python "$examples/python_host/python_host.py" --catalogue /usr/share/VxPrinterStatus/roll.db --changes 1
    # The name of a supply comes from the catalogue.
    grep -q 'Vinyl.* m;' /tmp/output || fail "the host in Python has found no supply in the catalogue"

    say "the reference"
    expect 'vxprinterstatus.qch' python3 /test/packages/installed_reference.py
    quietly python3 -B /test/check_links.py --html /usr/share/doc/vxprinterstatus-doc/html
    for file in VxKit.cs VxKitNative.cs; do
        [ -s "/usr/share/VxPrinterStatus/bindings/csharp/$file" ] || fail "the binding for C# has no $file"
    done

    say "the agent"
    quietly runuser -u vxprintagent -- vxprintagent check --config /etc/vxprintagent/agent.json
    install -d -o vxprintagent /tmp/agent
    printf '{ "site": "test", "dataFolder": "/tmp/agent/data", "metrics": { "textfile": "/tmp/agent/printers.prom" } }\n' \
        >/tmp/agent.json
    VX_VIRTUAL_FLEET=built-in runuser -u vxprintagent -- vxprintagent run --config /tmp/agent.json >/tmp/agent.log 2>&1 &
    agent=$!
    wait_for "what the agent publishes" grep -q '^vx_printer_info' /tmp/agent/printers.prom
    grep -q '^vx_supply_remaining_labels' /tmp/agent/printers.prom ||
        fail "the agent has not found the catalogue: no labels in its metrics"
    pkill -TERM -P "$agent" -x vxprintagent 2>/dev/null || kill -TERM "$agent"
    wait "$agent" || {
        cat /tmp/agent.log >&2
        fail "the agent has ended with status $?"
    }
    rm -rf /tmp/agent
    quietly systemd-analyze verify /usr/lib/systemd/system/vxprintagent.service
}
use

say "building hosts with CMake"
quietly runuser -u tester -- cp -rL "$examples" /home/tester/examples
for host in minimal_host kit_host widgets_host c_host; do
    quietly runuser -u tester -- cmake -S "/home/tester/examples/$host" -B "/tmp/cmake-$host" -DCMAKE_BUILD_TYPE=Release
    quietly runuser -u tester -- cmake --build "/tmp/cmake-$host"
done
say "building hosts with pkg-config"
for host in minimal_host:vxprinterstatus kit_host:vxprinterstatuskit; do
    # shellcheck disable=SC2046 # words
    quietly runuser -u tester -- g++ -std=c++20 -O1 -o "/tmp/pkg-config-${host%:*}" \
        "/home/tester/examples/${host%:*}/main.cpp" \
        $(pkg-config --cflags --libs "${host#*:}")
done
# shellcheck disable=SC2046
quietly runuser -u tester -- g++ -std=c++20 -O1 -o /tmp/pkg-config-widgets_host \
    /home/tester/examples/widgets_host/main.cpp $(pkg-config --cflags --libs vxprinterstatuswidgets)
# shellcheck disable=SC2046
quietly runuser -u tester -- gcc -std=c99 -pedantic-errors -o /tmp/pkg-config-c_host \
    /home/tester/examples/c_host/main.c $(pkg-config --cflags --libs vxprinterstatuskit)

run_hosts() {
    for host in /tmp/cmake-kit_host/kit_host /tmp/pkg-config-kit_host; do
        expect Shipping env VX_VIRTUAL_FLEET=built-in "$host" 3
    done
    for host in /tmp/cmake-c_host/c_host /tmp/pkg-config-c_host; do
        # It ends with its input.
        expect Shipping env VX_VIRTUAL_FLEET=built-in "$host" /usr/share/VxPrinterStatus/roll.db
        grep -q 'Vinyl.* m' /tmp/output || fail "$host has found no supply in the catalogue"
    done
    for host in /tmp/cmake-minimal_host/minimal_host /tmp/pkg-config-minimal_host; do
        VX_VIRTUAL_FLEET=built-in runuser -u tester -- "$host" >/tmp/output 2>&1 &
        running=$!
        wait_for "the printers of $host" grep -q Shipping /tmp/output
        pkill -TERM -P "$running" 2>/dev/null || kill -TERM "$running"
        wait "$running" || true
    done
    for host in /tmp/cmake-widgets_host/widgets_host /tmp/pkg-config-widgets_host; do
        ! ldd "$host" | grep 'not found' || fail "$host cannot start"
    done
}
run_hosts

say "upgrading, with a configuration that somebody has changed"
sed -i 's/"site": "site"/"site": "bremen"/' /etc/vxprintagent/agent.json
printf 'secret\n' >/etc/vxprintagent/mqtt-password
install -d -o vxprintagent -m 0700 /var/lib/vxprintagent
printf 'waiting\n' >/var/lib/vxprintagent/event
quietly systemctl enable vxprintagent
[ -L /etc/systemd/system/multi-user.target.wants/vxprintagent.service ] || fail "the service was not enabled"
quietly apt-get -q install -y --no-install-recommends /packages/*.deb
newer=$(dpkg-query -W -f '${Version}' libvxprinterstatus1)
dpkg --compare-versions "$older" lt "$newer" || fail "version $newer is no upgrade of $older"
for package in $own_packages; do
    [ "$(dpkg-query -W -f '${Version}' "$package")" = "$newer" ] || fail "$package was not upgraded"
done
grep -q '"site": "bremen"' /etc/vxprintagent/agent.json || fail "the changed configuration was lost"
[ "$(cat /var/lib/vxprintagent/event)" = waiting ] || fail "what waits for the broker was lost"
[ -L /etc/systemd/system/multi-user.target.wants/vxprintagent.service ] || fail "the service is no longer enabled"
[ -z "$(find /etc -name '*.dpkg-*')" ] || fail "the upgrade has left: $(find /etc -name '*.dpkg-*')"
use
# They were built with the older version.
run_hosts

say "removing: the configuration and the state stay"
# shellcheck disable=SC2086
quietly apt-get -q remove -y $own_packages
[ -f /etc/vxprintagent/agent.json ] || fail "a removal has removed the configuration"
[ -f /var/lib/vxprintagent/event ] || fail "a removal has removed the state"
! command -v vxprintmon || fail "vxprintmon is still there"

say "purging: only what people made stays"
# The others had no configuration, so nothing of them is known any more.
remaining=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' | sed -n 's/^rc  *//p' | grep -xF "$own_packages")
[ "$remaining" = "$(printf 'vxprintagent\nvxprinterstatus-web')" ] || fail "these have a configuration: $remaining"
# shellcheck disable=SC2086
quietly apt-get -q purge -y $remaining
files >/tmp/after
cat >/tmp/made_by_people <<END
/etc/vxprintagent d 755
/etc/vxprintagent/mqtt-password f 644
END
sort -m /tmp/before /tmp/made_by_people | diff - /tmp/after >/tmp/differences || {
    cat /tmp/differences >&2
    fail "the purge has left (>) or removed (<) these"
}
say "installed, used, upgraded and purged: $(echo "$own_packages" | wc -w) packages"
