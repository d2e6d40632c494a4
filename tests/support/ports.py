# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Ports for the servers that tests start."""
import pathlib
import random
import socket

# Keeps the ports of free_ports until the process ends.
_reservations = []


def _ports_for_servers():
    """Ports that the system does not give to clients, in any order."""
    first, last = map(int, pathlib.Path("/proc/sys/net/ipv4/ip_local_port_range").read_text().split())
    ports = [port for port in range(10000, 65536) if not first <= port <= last]
    random.shuffle(ports)
    return ports


def free_ports(count):
    """Ports for servers that are started, ended and started again: nobody else gets them meanwhile. A client of another
    test cannot, and another test that looks for one sees that the UDP port of the same number is taken."""
    found = []
    for port in _ports_for_servers():
        if len(found) == count:
            break
        reservation = socket.socket(type=socket.SOCK_DGRAM)
        try:
            reservation.bind(("127.0.0.1", port))
            with socket.socket() as listener:
                listener.bind(("127.0.0.1", port))
        except OSError:
            reservation.close()
            continue
        _reservations.append(reservation)
        found.append(port)
    return found
