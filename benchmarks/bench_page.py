#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""How smoothly the page draws a large site while it changes, in a real Chromium on a real broker.

Two thousand printers of 40 agents change a hundred times a second: levels run down, every fifth change is one
of the status. The same messages are measured three times in one run: in a page that only receives them with
the same client (the floor), in the page, and in the page while it is scrolled. A frame is counted when the
browser asks the page to draw. The limit for the page is 30 frames a second; scrolling has none, because
without a graphics card it depends on threads that paint.

Usage: bench_page.py [--seconds SECONDS] [--printers NUMBER] [--rate CHANGES_A_SECOND]
"""
import argparse
import contextlib
import pathlib
import random
import statistics
import sys
import threading
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/web"))

from brokers import Nats, Publisher
from chromium import Chromium
from page_server import PageServer
from site_data import empty, level, payload, reading, ribbon, topic

SITE = "plant-1"
LIMIT = 30  # frames a second
SCROLLED_PER_SECOND = 1000  # pixels
COLOURS = ("#ffd100", "#ffffff", "#1f7a3c", "#0b57a4", "#f47a1f")
# Counts frames, and notes when a printer's name shows up on the page.
FRAMES = """
window.frameTimes = [];
let last = null;
const tick = now => {
    if (last !== null)
        frameTimes.push(now - last);
    last = now;
    requestAnimationFrame(tick);
};
requestAnimationFrame(tick);
"""
# Says when the printer "Watched" shows what a message told.
WATCH = """(() => {
    window.shownAt = [];
    let before = null;
    const look = () => {
        const tile = [...document.querySelectorAll('.tile')].find(one => one.querySelector('.name').textContent === '00 Watched');
        const now = tile?.querySelector('.value').textContent;
        if (now !== undefined && now !== before) {
            before = now;
            shownAt.push([now, performance.timeOrigin + performance.now()]);
        }
    };
    new MutationObserver(look).observe(document.querySelector('#canvas'), { subtree: true, childList: true, characterData: true });
})()"""
BARE = """<!doctype html><meta charset="utf-8"><link rel="icon" href="icon.svg"><title>bare</title><p id="count">0</p>
<script type="module">
import { connect } from "./vendor/mqtt.js";
const { broker, sites } = await (await fetch("config.json")).json();
const client = connect(broker, { protocolVersion: 4, timerVariant: "native" });
window.received = 0;
client.on("message", (topic, payload) => {
    ++window.received;
    JSON.parse(new TextDecoder().decode(payload));
});
client.on("connect", () => client.subscribe(`vxprint/v1/${sites[0]}/+/printer/+`, () => { window.isLive = true; }));
</script>"""


class Plant:
    """The printers, and the changes that happen to them."""

    def __init__(self, publisher, count):
        self.publisher = publisher
        self.chance = random.Random(18)
        self.names = [f"Printer {number}" for number in range(count)]
        self.published = 0

    def place(self, number):
        return topic(SITE, f"pc-{number % 40}", "printer", self.names[number])

    def value(self, number, status=1):
        chance = self.chance
        return payload(reading(
            self.names[number], status, chance.choice(("CedarMax", "AlderMax")),
            supply=empty() if status == 2 else level(chance.random(), (chance.choice(COLOURS),),
                                                     seconds=chance.uniform(1000, 900000)),
            ribbon1=ribbon(chance.random(), seconds=chance.uniform(1000, 900000))))

    def publish_all(self):
        messages = [self.publisher.publish(self.place(number), self.value(number)) for number in range(len(self.names))]
        for agent in range(40):
            messages.append(self.publisher.publish(topic(SITE, f"pc-{agent}", "state"), "online"))
        for message in messages:
            message.wait_for_publish(120)

    def change(self):
        number = self.chance.randrange(len(self.names))
        status = self.chance.choice((2, 4, 0, 19)) if self.chance.random() < 0.2 else 1
        self.publisher.publish(self.place(number), self.value(number, status), qos=0)
        self.published += 1


class Changes(threading.Thread):
    """Changes at a rate until it is stopped; and one printer, at the top of the page, each half second."""

    def __init__(self, plant, rate):
        super().__init__(daemon=True)
        self._plant = plant
        self._rate = rate
        self._ended = threading.Event()
        self.told_at = {}
        self.start()

    def run(self):
        began = time.monotonic()
        count = watched = 0
        while not self._ended.wait(0.002):
            passed = time.monotonic() - began
            while count < passed * self._rate:
                self._plant.change()
                count += 1
            if watched < passed * 2:
                watched += 1
                self.tell(watched)

    def tell(self, number):
        percentage = 1 + number % 99
        self.told_at[f"{percentage}%"] = time.time() * 1000
        self._plant.publisher.publish(topic(SITE, "00", "printer", "00 Watched"), payload(
            reading("00 Watched", 4, supply=level(percentage / 100))))

    def stop(self):
        self._ended.set()
        self.join()


def metrics(page):
    return {entry["name"]: entry["value"] for entry in page.send("Performance.getMetrics")["metrics"]}


def measure(page, plant, seconds, rate, scrolled=False):
    page.send("Performance.enable", timeDomain="threadTicks")
    if page.value("document.querySelector('#canvas') !== null"):
        page.value(WATCH)
    changes = Changes(plant, rate)
    time.sleep(2)
    page.value("void (frameTimes.length = 0)")
    scroll = threading.Thread(target=lambda: page.send(
        "Input.synthesizeScrollGesture", x=600, y=600, yDistance=-SCROLLED_PER_SECOND * int(seconds),
        speed=SCROLLED_PER_SECOND, gestureSourceType="mouse"))
    if scrolled:
        scroll.start()
    before, began = metrics(page), time.monotonic()
    time.sleep(seconds)
    passed, after = time.monotonic() - began, metrics(page)
    frames = page.value("frameTimes")
    changes.stop()
    if scrolled:
        scroll.join()
    shown = page.value("window.shownAt ?? []")
    delays = [at - changes.told_at[text] for text, at in shown if text in changes.told_at and at >= changes.told_at[text]]
    busy = {name: (after[name] - before[name]) / passed * 100 for name in
            ("TaskDuration", "ScriptDuration", "LayoutDuration", "RecalcStyleDuration")}
    return {"frames": len(frames) / passed, "longest": max(frames), "p99": sorted(frames)[int(len(frames) * 0.99)],
            "busy": busy, "heap": after["JSHeapUsedSize"] / 1048576, "delays": delays}


def report(title, result):
    busy = result["busy"]
    print(f"{title:24} {result['frames']:6.1f} frames/s, 99 % within {result['p99']:5.1f} ms, longest {result['longest']:6.1f} ms; "
          f"main thread {busy['TaskDuration']:4.1f} % (script {busy['ScriptDuration']:.1f}, style "
          f"{busy['RecalcStyleDuration']:.1f}, layout {busy['LayoutDuration']:.1f}), heap {result['heap']:.1f} MiB")
    if result["delays"]:
        delays = sorted(result["delays"])
        print(f"{'':24} a change is shown after {statistics.median(delays):.0f} ms, at most {delays[-1]:.0f} ms ({len(delays)} changes)")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seconds", type=float, default=15)
    parser.add_argument("--printers", type=int, default=2000)
    parser.add_argument("--rate", type=float, default=100)
    arguments = parser.parse_args()
    with contextlib.ExitStack() as stack:
        broker = stack.enter_context(contextlib.closing(Nats()))
        configuration = {"broker": broker.address, "sites": [SITE]}
        server = stack.enter_context(contextlib.closing(PageServer(configuration, {"/bare.html": BARE})))
        publisher = stack.enter_context(contextlib.closing(Publisher(broker.mqtt)))
        browser = stack.enter_context(contextlib.closing(Chromium()))
        plant = Plant(publisher, arguments.printers)
        plant.publish_all()

        results = {}
        for title, address, ready in (
                ("bare client", "bare.html", f"window.received >= {arguments.printers}"),
                ("page", "", f"document.querySelector('.class[data-class=ok] .count')?.textContent.replace(/\\D/g, '') >= {arguments.printers * 0.7}"),
                ("page, scrolled", "", "document.querySelector('.tile') !== null")):
            page = browser.open(f"{server.address}{address}", width=1920, height=1080, script=FRAMES)
            began = time.monotonic()
            page.until(ready)
            if title == "page":
                print(f"{arguments.printers} retained readings are shown after {time.monotonic() - began:.2f} s")
            results[title] = measure(page, plant, arguments.seconds, arguments.rate, title.endswith("scrolled"))
            report(title, results[title])
            for fault in page.take_faults():
                print(f"{title}: {fault}", file=sys.stderr)
            page.close()
    floor, page = results["bare client"]["frames"], results["page"]["frames"]
    print(f"page / bare client: {page / floor:.2f}; limit {LIMIT} frames/s: {'kept' if page > LIMIT else 'MISSED'}")
    sys.exit(0 if page > LIMIT else 1)


if __name__ == "__main__":
    main()
