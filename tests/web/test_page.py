# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The page in a real Chromium on a real broker.

test_page.py
"""
import json
import sys
import unittest

from brokers import Nats, Publisher, find_program
from chromium import Chromium, PageError, find_chromium
from page_server import PageServer, WEB
from relay import Relay
from site_data import empty, encoded, event, level, payload, reading, ribbon, time_text, topic

LANGUAGES = ("de", "en", "es", "fr", "it", "ja", "zh_CN")
HOSTILE_NAMES = (
    "<img src=x onerror=window.pwned=1>",
    "<script>window.pwned=1</script>",
    "\"><svg onload=window.pwned=1>",
    "javascript:window.pwned=1",
    "{name} ${window.pwned=1} %s $& $1",
    "__proto__",
    "\u202egpj.exe\u2066\u200b",
    "N" * 3000,
    "line\u2028separator",
)

TILE = "[...document.querySelectorAll('.tile')].find(tile => tile.querySelector('.name').textContent === {})"


def js(value):
    return json.dumps(value)


def tile(name):
    return TILE.format(js(name))


class PageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.nats = Nats()
        cls.addClassCleanup(cls.nats.close)
        cls.browser = Chromium()
        cls.addClassCleanup(cls.browser.close)
        cls.sites = 0

    def setUp(self):
        # Each test has a site of its own, so that what one publishes does not disturb another.
        PageTest.sites += 1
        self.site = f"plant-{PageTest.sites}"
        self.pages = []
        self.publisher = self.new_publisher()

    def tearDown(self):
        print(self.id(), flush=True)

    def new_publisher(self, **options):
        publisher = Publisher(self.nats.mqtt, **options)
        self.addCleanup(publisher.close)
        return publisher

    def open(self, address=None, sites=None, user="", **options):
        configuration = {"title": "", "broker": address or self.nats.address,
                         "sites": [self.site] if sites is None else sites, "user": user}
        server = PageServer(configuration)
        self.addCleanup(server.close)
        return self.open_at(server, **options)

    def open_at(self, server, **options):
        page = self.browser.open(server.address, **options)
        self.addCleanup(page.close)
        self.addCleanup(lambda: self.assertEqual(page.take_faults(), []))
        return page

    def open_live(self, *arguments, **options):
        page = self.open(*arguments, **options)
        page.until("document.documentElement.dataset.state === 'live'")
        return page

    def put(self, host, name, value, publisher=None):
        (publisher or self.publisher).put(topic(self.site, host, "printer", name), payload(value))

    def put_event(self, host, value):
        self.publisher.put(topic(self.site, host, "event"), payload(value), retain=False)

    # What the page shows

    def test_retained_readings_are_shown_when_the_page_opens(self):
        self.put("pc-1", "Shipping", reading("Shipping", 4))
        page = self.open_live()
        page.until(f"{tile('Shipping')}.querySelector('.status').textContent === 'The cover is open'")
        self.assertEqual(page.value(f"{tile('Shipping')}.dataset.class"), "error")
        self.assertEqual(page.value(f"{tile('Shipping')}.querySelector('.place').textContent"), "pc-1")
        self.assertEqual(page.value("document.title"), "(1) Label printers")

    def test_a_change_is_shown_without_reloading(self):
        self.put("pc-1", "Shipping", reading("Shipping"))
        page = self.open_live()
        page.until(f"{tile('Shipping')}.dataset.class === 'ok'")
        self.put("pc-1", "Shipping", reading("Shipping", 2, supply=empty()))
        page.until(f"{tile('Shipping')}.querySelector('.status').textContent === 'The printer is out of labels'")
        page.until("document.querySelector('.heading .words').textContent === 'Error'")
        self.put("pc-1", "Shipping", reading("Shipping", supply=level(1)))
        page.until(f"{tile('Shipping')}.dataset.class === 'ok'")

    def test_levels_have_the_colours_of_what_is_loaded(self):
        self.put("pc-1", "Two", reading("Two", model="AlderMax", supply=level(0.42, ("#1f7a3c",)),
                                        ribbon1=ribbon(0.5, ("#101010", "#d01818"))))
        page = self.open_live()
        page.until(tile("Two"))
        slots = page.value(f"[...{tile('Two')}.querySelectorAll('.slot')].map(slot => [slot.hidden, "
                           "slot.querySelector('.value').textContent, "
                           "getComputedStyle(slot.querySelector('.fill')).backgroundColor, "
                           "getComputedStyle(slot.querySelector('.fill')).backgroundImage, "
                           "slot.querySelector('.fill').style.width])")
        self.assertEqual(slots[0][:3], [False, "42%", "rgb(31, 122, 60)"])
        self.assertEqual(slots[0][4], "42%")
        self.assertIn("rgb(208, 24, 24)", slots[1][3])
        self.assertEqual(slots[2][:3], [False, "80%", "rgb(208, 24, 24)"])

    def test_unknown_is_not_shown_as_zero(self):
        self.put("pc-1", "Unknown", reading("Unknown", supply=level(None), ribbon1=empty("notKnown")))
        self.put("pc-1", "Empty", reading("Empty", supply=empty(), ribbon1=ribbon(0.001)))
        page = self.open_live()
        page.until(f"{tile('Unknown')} && {tile('Empty')}")
        values = "[...{}.querySelectorAll('.slot:not([hidden]) .value')].map(value => value.textContent)"
        self.assertEqual(page.value(values.format(tile("Unknown"))), ["–", "–"])
        self.assertEqual(page.value(values.format(tile("Empty"))), ["empty", "1%"])
        self.assertIn("Supply: not known", page.value(f"{tile('Unknown')}.ariaLabel"))

    def test_a_printer_whose_message_is_emptied_is_no_longer_shown(self):
        self.put("pc-1", "Stays", reading("Stays"))
        self.put("pc-1", "Goes", reading("Goes"))
        page = self.open_live()
        page.until(f"{tile('Stays')} && {tile('Goes')}")
        self.publisher.put(topic(self.site, "pc-1", "printer", "Goes"), b"")
        page.until(f"!{tile('Goes')}")
        self.assertTrue(page.value(f"{tile('Stays')} !== undefined"))

    def test_an_agent_that_is_killed_is_offline_and_so_are_its_printers(self):
        agent = Publisher(self.nats.mqtt, will=topic(self.site, "pc-1", "state"))
        agent.put(topic(self.site, "pc-1", "state"), "online")
        self.put("pc-1", "Shipping", reading("Shipping"), agent)
        self.publisher.put(topic(self.site, "pc-2", "state"), "online")
        self.put("pc-2", "Returns", reading("Returns"))
        page = self.open_live()
        page.until(f"{tile('Shipping')}.dataset.class === 'ok'")
        page.until("document.querySelector('#agents-summary').textContent === '2 agents are online'")
        agent.die()
        page.until(f"{tile('Shipping')}.dataset.class === 'offline'")
        page.until("document.querySelector('#agents-list .name').textContent === 'pc-1'")
        self.assertEqual(page.value(f"{tile('Shipping')}.querySelector('.status').textContent"), "Last known: Ready")
        self.assertEqual(page.value(f"{tile('Returns')}.dataset.class"), "ok")
        self.assertEqual(page.value("document.querySelector('#agents-summary').textContent"), "1 agent is online")
        self.publisher.put(topic(self.site, "pc-1", "state"), "online")
        page.until(f"{tile('Shipping')}.dataset.class === 'ok'")

    def test_what_ends_first_comes_first(self):
        self.put("pc-1", "Long", reading("Long", supply=level(0.1, seconds=90000)))
        self.put("pc-1", "Short", reading("Short", supply=level(0.8, seconds=5000)))
        self.put("pc-1", "Low", reading("Low", supply=level(0.03)))
        self.put("pc-1", "Full", reading("Full", supply=level(1)))
        self.put("pc-1", "Ended", reading("Ended", 2, supply=empty()))
        page = self.open_live()
        page.until("document.querySelectorAll('#ends-list li').length === 3")
        self.assertEqual(
            page.value("[...document.querySelectorAll('#ends-list li')].map(line => [line.querySelector('.name').textContent, line.querySelector('.time').textContent])"),
            [["Short", "about 83 min"], ["Long", "about 25 hr"], ["Low", "3%"]])

    def test_events_are_in_the_order_of_their_time_and_each_is_shown_once(self):
        page = self.open_live()
        second = event("cover_open", "error", printer="Shipping", code=4, ago=60)
        first = event("paused", "warning", printer="Shipping", code=19, ago=3600, historical=True)
        for value in (second, first, second):
            self.put_event("pc-1", value)
        self.put_event("pc-1", event("spooler_stopped", "error", "spooler_stopped"))
        page.until("document.querySelector('#events-list .what').textContent === 'The print spooler has stopped'")
        lines = page.value("[...document.querySelectorAll('#events-list li')].map(line => "
                           "[line.querySelector('.name').textContent, line.querySelector('.what').textContent, line.querySelector('.place').textContent])")
        self.assertEqual(lines, [["pc-1", "The print spooler has stopped", ""],
                                 ["Shipping", "The cover is open", "pc-1"],
                                 ["Shipping", "The printer is paused", "pc-1 · delivered late"]])

    def test_details_tell_everything_and_follow_changes(self):
        self.put("pc-1", "Shipping", reading("Shipping", 4, supply=level(0.5, seconds=7200)))
        page = self.open_live()
        page.until(tile("Shipping"))
        page.value(f"{tile('Shipping')}.click()")
        page.until("document.querySelector('#details').open")
        text = page.value("document.querySelector('#details').innerText")
        for part in ("Shipping", "The cover is open", "Close the cover and press it down", "500 labels · 15 m", "Lasts",
                     "VT-400-YL", "pc-1", self.site, "CedarMax", "C0417", "4.2.1"):
            self.assertIn(part, text)
        self.put("pc-1", "Shipping", reading("Shipping"))
        page.until("!document.querySelector('#details').innerText.includes('The cover is open')")
        self.publisher.put(topic(self.site, "pc-1", "printer", "Shipping"), b"")
        page.until("document.querySelector('#details').innerText.includes('no longer reported')")
        page.press("Escape")
        page.until("!document.querySelector('#details').open")

    # Finding printers

    def test_printers_are_grouped_by_severity_or_place_and_can_be_searched(self):
        self.put("pc-1", "Good", reading("Good"))
        self.put("pc-1", "Bad", reading("Bad", 4))
        self.put("pc-2", "Paused", reading("Paused", 19))
        page = self.open_live(sites=[])
        headings = "[...document.querySelectorAll('.heading .words')].map(words => words.textContent)"
        search = "document.querySelector('#search')"

        def find(text):
            page.value(f"{search}.value = {js(text)}; {search}.dispatchEvent(new Event('input'))")

        find(self.site)
        page.until(f"document.querySelectorAll('.tile').length === 3")
        self.assertEqual(page.value(headings), ["Error", "Warning", "Ready"])
        page.value("(group => { group.value = 'place'; group.dispatchEvent(new Event('change')) })(document.querySelector('#group'))")
        self.assertEqual(page.value(headings), [f"{self.site} › pc-1", f"{self.site} › pc-2"])
        self.assertEqual(page.value("[...document.querySelectorAll('.tile .name')].map(name => name.textContent).sort()"),
                         ["Bad", "Good", "Paused"])
        for text, found in ((f"{self.site} cover OPEN", ["Bad"]), (f"{self.site} pc-2", ["Paused"]),
                            (f"{self.site} vt-400", ["Bad", "Good", "Paused"]), ("no such printer", [])):
            find(text)
            self.assertEqual(
                page.value("[...document.querySelectorAll('.tile .name')].map(name => name.textContent).sort()"), found, text)
        self.assertTrue(page.value("!document.querySelector('#nothing').hidden"))
        find(self.site)
        page.click(".class[data-class=ok]")
        page.until("document.querySelectorAll('.tile').length === 2")
        self.assertEqual(page.value("document.querySelector('.class[data-class=ok]').ariaPressed"), "false")

    def test_everything_can_be_reached_with_the_keyboard(self):
        for number in range(1, 41):
            self.put("pc-1", f"Printer {number}", reading(f"Printer {number}"))
        page = self.open_live()
        page.until("document.querySelector('.class[data-class=ok] .count').textContent === '40'")
        page.until(tile("Printer 1"))
        selected = "document.getElementById(document.querySelector('#list').getAttribute('aria-activedescendant'))?.querySelector('.name').textContent"
        page.press("/")
        self.assertEqual(page.value("document.activeElement.id"), "search")
        page.press("ArrowDown")
        self.assertEqual(page.value("document.activeElement.id"), "list")
        page.press("ArrowDown")
        self.assertEqual(page.value(selected), "Printer 1")
        page.press("ArrowRight")
        self.assertEqual(page.value(selected), "Printer 2")
        columns = page.value("Math.round(document.querySelector('#canvas').clientWidth / (document.querySelector('.tile').offsetWidth + 9.6))")
        page.press("ArrowDown")
        self.assertEqual(page.value(selected), f"Printer {2 + columns}")
        page.press("End")
        self.assertEqual(page.value(selected), "Printer 40")
        page.press("Enter")
        page.until("document.querySelector('#details').open")
        self.assertEqual(page.value("document.querySelector('#details-name').textContent"), "Printer 40")
        page.press("Escape")
        page.until("!document.querySelector('#details').open")
        self.assertEqual(page.value("document.activeElement.id"), "list")
        page.press("Home")
        self.assertEqual(page.value(selected), "Printer 1")

    def test_of_thousands_of_printers_only_those_in_sight_are_in_the_document(self):
        page = self.open_live()
        messages = [self.publisher.publish(topic(self.site, f"pc-{number % 40}", "printer", f"P{number}"),
                                           payload(reading(f"P{number}"))) for number in range(2000)]
        for message in messages:
            message.wait_for_publish(120)
        page.until("document.querySelector('.class[data-class=ok] .count').textContent === '2,000'")
        self.assertLess(page.value("document.querySelectorAll('.tile').length"), 100)
        for part in range(1, 11):
            page.value(f"(list => {{ list.scrollTop = list.scrollHeight * {part / 10} }})(document.querySelector('#list'))")
            page.value("new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done)))")
        page.until(tile("P1999"))
        self.assertLess(page.value("document.querySelectorAll('.tile').length"), 100)

    # What goes wrong

    def test_a_broker_that_was_killed_is_found_again(self):
        broker = Nats()
        self.addCleanup(broker.close)
        publisher = Publisher(broker.mqtt)
        self.addCleanup(publisher.close)
        self.put("pc-1", "Shipping", reading("Shipping"), publisher)
        page = self.open_live(broker.address)
        page.until(f"{tile('Shipping')}.dataset.class === 'ok'")
        broker.kill()
        page.until("!document.querySelector('#notice').hidden")
        self.assertIn("no connection to the broker", page.value("document.querySelector('#notice').textContent"))
        self.assertIn("No connection since", page.value("document.querySelector('#connection-text').textContent"))
        self.assertTrue(page.value(f"{tile('Shipping')} !== undefined"))
        broker.start()
        page.until("document.documentElement.dataset.state === 'live'")
        self.assertTrue(page.value("document.querySelector('#notice').hidden"))
        self.put("pc-1", "Shipping", reading("Shipping", 4), publisher)
        page.until(f"{tile('Shipping')}.dataset.class === 'error'")

    def test_a_printer_that_went_while_the_page_was_away_is_gone(self):
        relay = Relay(self.nats.websocket)
        self.addCleanup(relay.close)
        self.put("pc-1", "Stays", reading("Stays"))
        self.put("pc-1", "Goes", reading("Goes"))
        page = self.open_live(relay.address)
        page.until(f"{tile('Stays')} && {tile('Goes')}")
        relay.set_mode("refuse")
        page.until("document.documentElement.dataset.state !== 'live'")
        self.publisher.put(topic(self.site, "pc-1", "printer", "Goes"), b"")
        self.put("pc-1", "Comes", reading("Comes"))
        relay.set_mode("pass")
        page.until(f"{tile('Comes')} && !{tile('Goes')}")
        self.assertTrue(page.value(f"{tile('Stays')} !== undefined"))

    def test_a_broker_that_is_silent_or_sends_garbage_is_left_and_tried_again(self):
        relay = Relay(self.nats.websocket)
        self.addCleanup(relay.close)
        self.put("pc-1", "Shipping", reading("Shipping"))
        for mode in ("garbage", "silent"):
            with self.subTest(mode):
                relay.set_mode(mode)
                # The limit of 10 seconds for an answer is not waited for: time passes faster.
                page = self.open(relay.address, script="const later = window.setTimeout; window.setTimeout = "
                                 "(what, time, ...rest) => later(what, time / 20, ...rest);")
                accepted = relay.accepted
                page.until("document.querySelector('#connection-text').textContent === "
                           "'The broker does not answer; trying again'")
                while relay.accepted < accepted + 3:
                    page.until("true")
                relay.set_mode("pass")
                page.until("document.documentElement.dataset.state === 'live'")
                page.until(tile("Shipping"))
                page.take_faults()  # the browser's own about the garbage

    def test_messages_that_cannot_be_read_leave_the_last_reading(self):
        self.put("pc-1", "Shipping", reading("Shipping"))
        page = self.open_live()
        page.until(tile("Shipping"))
        place = topic(self.site, "pc-1", "printer", "Shipping")
        bad = [b"{", b"[]", b"null", b"\xff\xfe", b'{"statusCode": "1", "severity": "ok"}',
               b'{"statusCode": 1, "severity": "fatal"}', b"[" * 50000, payload(reading("x", padding="y" * 70000))]
        for message in bad:
            self.publisher.put(place, message)
        self.publisher.put(topic(self.site, "pc-1", "event"), b'{"time": "now"}', retain=False)
        self.publisher.put(topic(self.site, "pc-1", "state"), b"maybe")
        self.publisher.put(f"vxprint/v1/{self.site}/pc-1/printer/a/b", b"{}")
        page.until("document.querySelector('#notice').textContent.startsWith('10 messages could not be read')")
        self.assertEqual(page.value(f"{tile('Shipping')}.dataset.class"), "ok")
        self.assertEqual(page.value("document.querySelectorAll('.tile').length"), 1)

    def test_values_outside_the_schema_are_not_known(self):
        self.put("pc-1", "Odd", reading(
            "Odd", supply={**level(0.5), "colors": ["red;background:url(http://127.0.0.1:9/x)", "#ffd100"], "ratio": 7,
                           "labels": -4, "name": ["x"]},
            lastReport="yesterday", firmwareVersion={"toString": "x"}))
        page = self.open_live()
        page.until(tile("Odd"))
        self.assertEqual(page.value(f"{tile('Odd')}.querySelector('.value').textContent"), "–")
        page.value(f"{tile('Odd')}.click()")
        page.until("document.querySelector('#details').open")
        self.assertNotIn("object", page.value("document.querySelector('#details').innerText"))

    def test_the_name_is_that_of_the_topic_which_the_broker_has_checked(self):
        self.put("pc-1", "Mine", reading("Somebody else's"))
        page = self.open_live()
        page.until(tile("Mine"))
        self.assertNotIn("Somebody", page.value("document.body.innerText"))

    def test_names_with_markup_are_text(self):
        for name in HOSTILE_NAMES:
            self.put(name, name, reading(name, 4, supply=level(name=name, sku=name), driver=name, serialNumber=name))
            self.publisher.put(topic(self.site, name, "state"), "offline")
            self.put_event(name, event("x_y", "error", "status", name, text=name))
            self.put_event(name, event("supply_loaded", "error", "supply", name, slot="supply", after={"name": name}))
        page = self.open()
        page.until(f"document.querySelectorAll('.tile').length === {len(HOSTILE_NAMES)}")
        for name in HOSTILE_NAMES:
            self.put_event(name, event("y_z", "error", "x", name, text=name))
        page.until(f"document.querySelectorAll('#events-list li').length >= {len(HOSTILE_NAMES)}")
        shown = page.value("[...document.querySelectorAll('.tile .name')].map(name => name.textContent)")
        for name in HOSTILE_NAMES[:6] + HOSTILE_NAMES[7:8]:
            self.assertIn(name, shown)
        self.assertIn("\\u202egpj.exe\\u2066\\u200b", shown)
        self.assertIn("line\\u2028separator", shown)
        for number in range(len(HOSTILE_NAMES)):
            page.value(f"document.querySelectorAll('.tile')[{number}].click()")
            page.until("document.querySelector('#details').open")
            self.assertNotIn("\u202e", page.value("document.querySelector('#details').textContent"))
            page.value("document.querySelector('#details').close()")
        self.assertIsNone(page.value("window.pwned"))
        self.assertEqual(page.value("document.querySelectorAll('img, svg, iframe, main script').length"), 0)
        self.assertEqual(page.value("({}).status ?? null"), None)
        # However long a name is, nothing is wider than the window.
        self.assertTrue(page.value("document.documentElement.scrollWidth <= innerWidth"))

    def test_no_text_can_become_markup_and_no_script_of_others_runs(self):
        page = self.open_live()
        for attempt in ("document.body.innerHTML = '<b>x</b>'", "document.write('x')", "eval('1')",
                        "document.createElement('script').src = 'data:text/javascript,1'",
                        "new Function('return 1')()"):
            with self.subTest(attempt):
                self.assertEqual(page.value(f"(() => {{ try {{ {attempt}; return 'done' }} catch (error) {{ return 'refused' }} }})()"),
                                 "refused")
        page.value("(() => { const inline = document.createElement('img'); inline.setAttribute('src', 'http://127.0.0.1:9/x');"
                   " document.body.append(inline); return new Promise(done => inline.onerror = done); })().then(() => 1)")
        self.assertTrue(any("Content Security Policy" in fault for fault in page.take_faults()))

    def test_the_page_asks_nobody_but_its_server_and_the_broker(self):
        self.put("pc-1", "Shipping", reading("Shipping"))
        page = self.open_live()
        page.until(tile("Shipping"))
        origins = page.value("[...new Set(performance.getEntriesByType('resource').map(entry => new URL(entry.name).origin))]")
        self.assertEqual(origins, [page.value("location.origin")])

    def test_a_configuration_that_is_no_good_is_named(self):
        for configuration, part in (("{", "JSON"), ({"broker": "https://x/"}, "broker must begin with wss:// or ws://"),
                                    ({"sites": "x"}, "sites must be a list"), ({"title": 1}, "must be texts")):
            with self.subTest(configuration):
                server = PageServer(configuration)
                self.addCleanup(server.close)
                page = self.open_at(server)
                page.until("!document.querySelector('#notice').hidden")
                text = page.value("document.querySelector('#notice').textContent")
                self.assertIn(part, text)
                self.assertIn("config.json", text)

    # Who reads it

    def test_the_page_speaks_the_languages_of_its_readers(self):
        self.put("pc-1", "Shipping", reading("Shipping", 4))
        self.put("pc-1", "Odd", reading("Odd", 777))
        for language in LANGUAGES:
            with self.subTest(language):
                page = self.open_live(language=language.replace("_", "-"))
                status = json.loads((WEB / "texts" / f"status.{language}.json").read_text())
                page.until(f"{tile('Shipping')}.querySelector('.status').textContent === {js(status['cover_open']['title'])}")
                self.assertEqual(page.value("document.documentElement.lang").split("-")[0], language.split("_")[0])
                self.assertIn("777", page.value(f"{tile('Odd')}.querySelector('.status').textContent"))
                self.assertNotRegex(page.value("document.body.textContent"), r"undefined|NaN|\{\w+\}")

    def test_another_language_can_be_chosen_and_is_remembered(self):
        self.put("pc-1", "Shipping", reading("Shipping", 4))
        page = self.open_live(language="en-GB")
        page.until(tile("Shipping"))
        page.value("(language => { language.value = 'ja'; language.dispatchEvent(new Event('change')) })(document.querySelector('#language'))")
        page.until(f"{tile('Shipping')}.querySelector('.status').textContent === 'カバーが開いています'")
        self.assertEqual(page.value("document.querySelector('#ends h2').textContent"), "先になくなるもの")
        page.send("Page.reload")
        page.until(f"{tile('Shipping')}.querySelector('.status').textContent === 'カバーが開いています'")

    def test_nothing_is_wider_than_a_narrow_phone_in_any_language(self):
        self.put("pc-1", "A printer with quite a long name in the goods-in department", reading("x", 777, "AlderMax"))
        self.publisher.put(topic(self.site, "pc-1", "state"), "offline")
        for language in LANGUAGES:
            page = self.open_live(width=320, height=600, mobile=True, language=language.replace("_", "-"))
            page.until("document.querySelector('.tile')")
            for pane in ("printers", "ends", "agents", "events"):
                with self.subTest(language=language, pane=pane):
                    page.value(f"document.querySelector('#tabs [data-pane={pane}]').click()")
                    # Not innerWidth: what is too wide makes a phone's window wider.
                    wide = page.value("[...document.querySelectorAll('body *')].filter(e => e.checkVisibility() && "
                                      "e.getBoundingClientRect().right > 321 && !e.closest('.class .words')).map(e => e.outerHTML.slice(0, 80))")
                    self.assertEqual(wide, [])

    def test_texts_stand_out_from_what_is_behind_them(self):
        """By WCAG 2.1, 1.4.3: 4.5 to 1."""
        for number, status in enumerate((1, 2, 0, 255, 777)):
            self.put("pc-1", f"P{number}", reading(f"P{number}", status, "AlderMax", supply=level(0.08, seconds=5000),
                                                   ribbon1=ribbon(0.02)))
        self.put("pc-2", "Off", reading("Off", supply=level(0.05)))
        self.publisher.put(topic(self.site, "pc-2", "state"), "offline")
        for dark in (False, True):
            page = self.open_live(dark=dark)
            page.until("document.querySelectorAll('.tile').length === 6 && document.querySelector('#agents-list li')")
            self.put_event("pc-1", event("cover_open", "error", printer="P1", code=4))
            page.until("document.querySelector('#events-list li')")
            with self.subTest(dark=dark):
                self.assertEqual(page.value(CONTRASTS), [])
                self.assertGreater(page.value(CONTRASTS.replace("< 4.5", "> 0") + ".length"), 50)

    def test_a_broker_that_wants_a_password_is_given_it_and_a_wrong_one_is_asked_for_again(self):
        broker = Nats(extra='authorization { users: [ {user: agents, password: "agents-secret"}, {user: page, password: "page-secret"} ] }')
        self.addCleanup(broker.close)
        publisher = Publisher(broker.mqtt, user="agents", password="agents-secret")
        self.addCleanup(publisher.close)
        self.put("pc-1", "Shipping", reading("Shipping"), publisher)
        page = self.open(broker.address)
        page.until("document.querySelector('#sign-in').open")

        def sign_in(user, password):
            page.value(f"document.querySelector('#sign-in-user').value = {js(user)};"
                       f"document.querySelector('#sign-in-password').value = {js(password)};"
                       "document.querySelector('#sign-in .primary').click()")

        sign_in("page", "wrong")
        page.until("document.querySelector('#sign-in').open && document.querySelector('#sign-in-why').textContent === "
                   "'The broker refused this user name and password.'")
        sign_in("page", "page-secret")
        page.until(tile("Shipping"))
        self.assertNotIn("page-secret", page.value("document.documentElement.outerHTML"))
        self.assertEqual(page.value("JSON.stringify(localStorage)"), "{}")
        page.send("Page.reload")
        page.until(tile("Shipping"))
        page.value("document.querySelector('#sign-out').click()")
        page.until("document.querySelector('#sign-in').open")
        self.assertEqual(page.value("JSON.stringify(sessionStorage)"), "{}")

    def test_a_password_is_not_sent_without_encryption_to_another_computer(self):
        page = self.open("ws://broker.invalid/mqtt", user="page")
        page.until("document.querySelector('#sign-in').open")
        page.value("document.querySelector('#sign-in-password').value = 'secret'; document.querySelector('#sign-in .primary').click()")
        page.until("document.querySelector('#notice').textContent.startsWith('Passwords are sent over wss:// only')")


CONTRASTS = """(() => {
    const canvas = document.createElement('canvas').getContext('2d', { willReadFrequently: true });
    const rgba = colour => {
        canvas.clearRect(0, 0, 1, 1);
        canvas.fillStyle = colour;
        canvas.fillRect(0, 0, 1, 1);
        return [...canvas.getImageData(0, 0, 1, 1).data];
    };
    const luminance = ([red, green, blue]) => [red, green, blue].map(value => value / 255)
        .map(value => value <= 0.03928 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4)
        .reduce((sum, value, place) => sum + value * [0.2126, 0.7152, 0.0722][place], 0);
    const behind = element => {
        for (let one = element; one !== null; one = one.parentElement) {
            const colour = rgba(getComputedStyle(one).backgroundColor);
            if (colour[3] === 255)
                return colour;
        }
        return [255, 255, 255];
    };
    return [...document.querySelectorAll('body *')].filter(element => element.checkVisibility() &&
        [...element.childNodes].some(node => node.nodeType === Node.TEXT_NODE && node.data.trim() !== ''))
        .map(element => {
            const [one, other] = [luminance(rgba(getComputedStyle(element).color)), luminance(behind(element))].sort((a, b) => b - a);
            return [(one + 0.05) / (other + 0.05), element.className, element.textContent.slice(0, 30)];
        }).filter(([ratio]) => ratio < 4.5);
})()"""


if __name__ == "__main__":
    missing = [name for name, found in (("chromium", find_chromium()), ("nats-server", find_program("nats-server")))
               if not found]
    if missing:
        print(f"not installed: {', '.join(missing)}; scripts/test installs what the tests need")
        sys.exit(77)
    unittest.main()
