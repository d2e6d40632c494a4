# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Pictures of the page with a plant of 96 printers, in a real Chromium on a real broker.

Usage: pictures.py FOLDER
"""
import contextlib
import pathlib
import random
import sys

from brokers import Nats, Publisher
from chromium import Chromium
from page_server import PageServer
from site_data import empty, event, level, payload, reading, ribbon, time_text, topic

PLACES = ["goods-in", "packing-1", "packing-2", "laboratory", "shipping", "warehouse-north", "warehouse-south",
          "labels-office"]
COLOURS = [(["#ffd100"], "Vinyl, yellow"), (["#ffffff"], "Paper, white"), (["#1f7a3c"], "Vinyl, green"),
           (["#0b57a4"], "Polyester, blue"), (["#e8e8e8"], "Polyester, silver"), (["#f47a1f"], "Vinyl, orange")]
RIBBONS = [(["#101010"], "Ribbon, black"), (["#d01818"], "Ribbon, red"),
           (["#101010", "#d01818", "#ffd100"], "Ribbon, three colours")]
# (width, height, options): what readers use.
SCREENS = {
    "desk-light": (1440, 900, {}),
    "desk-dark": (1440, 900, {"dark": True}),
    "desk-de": (1440, 900, {"language": "de"}),
    "desk-ja": (1440, 900, {"language": "ja"}),
    "phone-light": (390, 844, {"mobile": True}),
    "phone-de-dark": (360, 740, {"mobile": True, "dark": True, "language": "de"}),
    "wall-dark": (3840, 2160, {"dark": True}),
}


def publish_plant(publisher):
    chance = random.Random(18)
    for number, place in enumerate(PLACES):
        publisher.publish(topic("plant-7", place, "state"), "online")
        for count in range(1, 13):
            colours, name = chance.choice(COLOURS)
            ribbon_colours, ribbon_name = chance.choice(RIBBONS)
            ratio = chance.random() ** 0.7
            known = chance.random() > 0.1
            printer = f"{place.replace('-', ' ').title()} {count}"
            values = {
                "model": chance.choice(["CedarMax", "AlderMax", "BirchMax"]),
                "supply": level(ratio if known else None, colours, name=name,
                                seconds=ratio * chance.uniform(3e4, 9e5) if known and chance.random() > 0.3 else None),
                "ribbon1": ribbon(chance.random(), ribbon_colours, ribbon_name)}
            status = 1
            draw = chance.random()
            if draw < 0.04:
                status, values["supply"] = 2, empty()
            elif draw < 0.06:
                status, values["ribbon1"] = 3, empty()
            elif draw < 0.08:
                status = 4
            elif draw < 0.12:
                status = 0
            elif draw < 0.14:
                status = 255
            publisher.publish(topic("plant-7", place, "printer", printer), payload(reading(printer, status, **values)))
    publisher.publish(topic("plant-7", "goods-in", "printer", "Goods In 3"), payload(reading(
        "Goods In 3", 4, "AlderMax", supply=level(0.04, seconds=2400), ribbon1=ribbon(0.09, seconds=5200))))
    publisher.publish(topic("plant-7", "laboratory", "state"), "offline")
    for host, happened in [
            ("shipping", event("level_10", "warning", "level", "Shipping 4", 900, slot="supply", mark=10,
                               after={"ratio": 0.1})),
            ("packing-1", event("ribbon_empty", "warning", "ribbon", "Packing 1 2", 700, slot="ribbon1",
                                after={"state": "empty"})),
            ("packing-1", event("supply_loaded", "information", "supply", "Packing 1 5", 420, slot="supply",
                                after={"name": "Vinyl, yellow", "ratio": 1})),
            ("warehouse-north", event("spooler_running", "ok", "spooler_running", None, 300)),
            ("warehouse-south", event("printer_added", "information", "printer_added", "Returns", 200)),
            ("packing-2", event("labels_jammed", "error", "status", "Packing 2 7", 90, code=5, historical=True)),
            ("goods-in", event("cover_open", "error", "status", "Goods In 3", 20, code=4))]:
        publisher.put(topic("plant-7", host, "event"), payload(happened), retain=False)


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    with contextlib.ExitStack() as stack:
        broker = stack.enter_context(contextlib.closing(Nats()))
        server = stack.enter_context(contextlib.closing(
            PageServer({"title": "Plant 7", "broker": broker.address, "sites": ["plant-7"], "user": ""})))
        publisher = stack.enter_context(contextlib.closing(Publisher(broker.mqtt)))
        browser = stack.enter_context(contextlib.closing(Chromium()))
        pages = {}
        for name, (width, height, options) in SCREENS.items():
            page = browser.open(server.address, width=width, height=height, **options)
            page.until("document.documentElement.dataset.state === 'live'")
            pages[name] = page
        publish_plant(publisher)
        for name, page in pages.items():
            page.until("document.querySelectorAll('#events-list li').length === 7")
            page.until("Number(document.querySelector('.class[data-class=ok] .count').textContent) > 60")
            page.value("new Promise(done => setTimeout(done, 800))")
            page.picture(folder / f"{name}.png")
            if name in ("desk-light", "phone-de-dark"):
                page.value("[...document.querySelectorAll('.tile')].find(tile => tile.ariaLabel.startsWith('Goods In 3')).click()")
                page.value("new Promise(done => setTimeout(done, 500))")
                page.picture(folder / f"{name}-details.png")
            if name == "phone-light":
                for pane in ("ends", "agents", "events"):
                    page.click(f"#tabs [data-pane={pane}]")
                    page.value("new Promise(done => setTimeout(done, 300))")
                    page.picture(folder / f"{name}-{pane}.png")
            if name == "desk-dark":
                page.value("document.querySelector('#group').value = 'place'; document.querySelector('#group').dispatchEvent(new Event('change'))")
                page.value("new Promise(done => setTimeout(done, 500))")
                page.picture(folder / f"{name}-place.png")
            for fault in page.take_faults():
                print(f"{name}: {fault}", file=sys.stderr)


if __name__ == "__main__":
    main()
