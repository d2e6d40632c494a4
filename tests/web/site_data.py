# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Readings and events as agents publish them, in the form of docs/schema."""
import datetime
import json
import urllib.parse

STATUSES = {1: ("ready", "ok"), 2: ("out_of_labels", "error"), 3: ("ribbon_ran_out", "error"),
            4: ("cover_open", "error"), 0: ("disconnected", "warning"), 19: ("paused", "warning"),
            21: ("firmware_updating", "information"), 255: ("unknown", "information"),
            254: ("spooler_not_running", "error"), 5: ("labels_jammed", "error"), 8: ("print_head_too_hot", "warning"),
            777: ("printer_error", "error")}


def time_text(seconds_ago=0):
    moment = datetime.datetime.now(datetime.timezone.utc) - datetime.timedelta(seconds=seconds_ago)
    return moment.isoformat(timespec="milliseconds")


def encoded(level):
    return urllib.parse.quote(level, safe="").replace(".", "%2E")


def topic(site, host, *rest):
    return "/".join(["vxprint/v1", encoded(site), encoded(host), *map(encoded, rest)])


def level(ratio=0.6, colors=("#ffd100",), total=30.0, labels=1000, seconds=None, name="Vinyl, yellow", **values):
    remaining = seconds and {"p10": seconds * 0.7, "p50": seconds, "p90": seconds * 1.5}
    known = ratio is not None
    return {"state": "loaded", "identifier": "000000641000030000A7", "sku": "VT-400-YL", "name": name,
            "material": "Vinyl", "colorName": "Yellow", "colors": list(colors), "totalMeters": total,
            "meters": ratio * total if known else None, "ratio": ratio,
            "labels": int(ratio * labels) if known and labels else None,
            "labelPitchMeters": 0.03 if labels else None, "labelsAcross": 1 if labels else None, "coarse": False,
            "mileage": 15240 if known else None, "mileageUnit": "millimeters",
            "estimatedSecondsRemaining": remaining or None, **values}


def empty(state="empty"):
    return {"state": state, "identifier": None, "sku": None, "name": None, "material": None, "colorName": None,
            "colors": [], "totalMeters": None, "meters": None, "ratio": None, "labels": None,
            "labelPitchMeters": None, "labelsAcross": None, "coarse": False, "mileage": None,
            "mileageUnit": "millimeters", "estimatedSecondsRemaining": None}


def ribbon(ratio=0.5, colors=("#101010",), name="Ribbon, black", **values):
    return level(ratio, colors, 300.0, None, name=name, identifier="2001", sku="RB-100-BK", material="Resin",
                 colorName="Black", **values)


def reading(name, status=1, model="CedarMax", supply=None, ribbon1=None, ribbon2=None, **values):
    key, severity = STATUSES[status]
    with_two = model in ("Alder", "AlderMax")
    return {"name": name, "model": model, "driver": f"Stratamark {model}", "port": "001",
            "serialNumber": "C0417", "presence": "present", "goneSince": None, "watching": "watched",
            "statusCode": status, "statusKey": key, "severity": severity, "online": status not in (0, 257),
            "active": False, "firmwareVersion": "4.2.1", "bootVersion": None, "updateProgress": None,
            "updateError": None, "ethernetConfig": None, "lastReport": time_text(2),
            "supply": supply or level(), "ribbon1": ribbon1 or ribbon(),
            "ribbon2": (ribbon2 or ribbon(0.8, ("#d01818",), "Ribbon, red")) if with_two else None, **values}


def event(key, severity="information", kind="status", printer=None, ago=0, **values):
    return {"time": time_text(ago), "severity": severity, "kind": kind, "key": key,
            **({"printer": printer} if printer else {}), "session": "a1b2c3", "seq": next(_numbers),
            "historical": False, **values}


def _count():
    number = 0
    while True:
        yield number
        number += 1


_numbers = _count()


def payload(value):
    return json.dumps(value, ensure_ascii=False).encode()
