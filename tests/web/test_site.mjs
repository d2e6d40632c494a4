// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the page knows of a site, without a browser: topics, bounds and the order of names.
// Usage: node --test test_site.mjs

import assert from "node:assert/strict";
import test from "node:test";

import { readingIn } from "../../web/src/reading.js";
import { MOST_AGENTS, MOST_EVENTS, MOST_PRINTERS, Site } from "../../web/src/site.js";
import { decodedLevel, encodedLevel, filters, parsed } from "../../web/src/topics.js";

const encoder = new TextEncoder();
const bytes = value => encoder.encode(typeof value === "string" ? value : JSON.stringify(value));
const slot = { state: "loaded", ratio: 0.5, colors: [] };
const reading = values => bytes({ statusCode: 1, statusKey: "ready", severity: "ok", online: true,
    supply: slot, ribbon1: slot, ribbon2: null, lastReport: null, ...values });
const event = values => bytes({ time: "2026-11-22T10:00:00.000+01:00", severity: "ok", kind: "status", key: "ready",
    printer: "P", code: 1, session: "s", ...values });

test("levels of topics are decoded to the names that were encoded", () => {
    for (const name of ["Shipping", "a/b+c#d", "Etiketten 1.2", "100 %", "%2F", "印刷", "a\u0001b", "*>$", "'!()~"]) {
        const level = encodedLevel(name);
        assert.doesNotMatch(level, /[/+#*>. \u0000-\u001f]/);
        assert.equal(decodedLevel(level), name);
        assert.deepEqual(parsed(`vxprint/v1/${level}/h/printer/${level}`),
            { kind: "printer", site: name, host: "h", name });
    }
});

test("a level with escapes that are no UTF-8 stays as it is", () => {
    assert.equal(decodedLevel("%ff%zz"), "%ff%zz");
});

test("topics of others are left out", () => {
    for (const topic of ["", "vxprint/v1", "vxprint/v2/s/h/state", "vxprint/v1/s/h/state/x", "vxprint/v1/s/h/printer",
        "vxprint/v1/s/h/printer/", "vxprint/v1//h/state", "vxprint/v1/s/h/printer/a/b", "vxprint/v1/s/h/other"])
        assert.equal(parsed(topic), null, topic);
});

test("without sites all are subscribed to, with sites only those", () => {
    assert.deepEqual(filters([]), ["vxprint/v1/+/+/state", "vxprint/v1/+/+/printer/+", "vxprint/v1/+/+/event"]);
    assert.deepEqual(filters(["a b"]),
        ["vxprint/v1/a%20b/+/state", "vxprint/v1/a%20b/+/printer/+", "vxprint/v1/a%20b/+/event"]);
});

test("the number of printers is bounded, and what was left out is counted", () => {
    const site = new Site();
    for (let number = 0; number < MOST_PRINTERS + 5; ++number)
        site.take(`vxprint/v1/s/h/printer/p${number}`, reading(), 0);
    assert.equal(site.printers.size, MOST_PRINTERS);
    assert.equal(site.refused, 5);
    site.take("vxprint/v1/s/h/printer/p1", new Uint8Array(), 0);
    site.take("vxprint/v1/s/h/printer/another", reading(), 0);
    assert.equal(site.printers.size, MOST_PRINTERS);
    assert.equal(site.refused, 5);
});

test("the number of agents is bounded", () => {
    const site = new Site();
    for (let number = 0; number < MOST_AGENTS + 3; ++number)
        site.take(`vxprint/v1/s/h${number}/state`, bytes("online"), 0);
    assert.equal(site.agents.size, MOST_AGENTS);
    assert.equal(site.refused, 3);
});

test("the latest events are kept, each once, the latest first", () => {
    const site = new Site();
    for (let number = 0; number < MOST_EVENTS + 50; ++number) {
        const time = new Date(Date.UTC(2026, 0, 1) + (number ^ 1) * 1000).toISOString();
        site.take("vxprint/v1/s/h/event", event({ time, seq: number }), 0);
        site.take("vxprint/v1/s/h/event", event({ time, seq: number }), 0);
    }
    assert.equal(site.events.length, MOST_EVENTS);
    const times = site.events.map(one => one.time);
    assert.deepEqual(times, [...times].sort((one, other) => other - one));
    assert.equal(new Set(times).size, MOST_EVENTS);
    assert.equal(times[0], Date.UTC(2026, 0, 1) + (MOST_EVENTS + 49) * 1000);
});

test("the same number of another session or agent is another event", () => {
    const site = new Site();
    site.take("vxprint/v1/s/h/event", event({ seq: 1 }), 0);
    site.take("vxprint/v1/s/h/event", event({ seq: 1, session: "t" }), 0);
    site.take("vxprint/v1/s/other/event", event({ seq: 1 }), 0);
    assert.equal(site.events.length, 3);
});

test("an event without a number is shown", () => {
    const site = new Site();
    site.take("vxprint/v1/s/h/event", event({ session: undefined }), 0);
    site.take("vxprint/v1/s/h/event", event({ session: undefined }), 0);
    assert.equal(site.events.length, 2);
});

test("what the broker does not send again after a new connection is gone", () => {
    const site = new Site();
    for (const name of ["stays", "goes"])
        site.take(`vxprint/v1/s/h/printer/${name}`, reading(), 0);
    site.take("vxprint/v1/s/h/state", bytes("online"), 0);
    site.take("vxprint/v1/s/empty/state", bytes("online"), 0);
    site.beginConfirmation();
    site.take("vxprint/v1/s/h/printer/stays", reading(), 1);
    assert.equal(site.printers.size, 2);
    site.endConfirmation();
    assert.deepEqual([...site.printers.values()].map(printer => printer.name), ["stays"]);
    assert.deepEqual([...site.agents.values()].map(agent => [agent.host, agent.state]), [["h", null]]);
    site.endConfirmation();
    assert.equal(site.printers.size, 1);
});

test("a reading that cannot be read confirms its printer", () => {
    const site = new Site();
    site.take("vxprint/v1/s/h/printer/p", reading(), 0);
    site.beginConfirmation();
    site.take("vxprint/v1/s/h/printer/p", bytes("{"), 0);
    site.endConfirmation();
    assert.equal(site.printers.size, 1);
});

test("an agent without printers and without a state is forgotten", () => {
    const site = new Site();
    site.take("vxprint/v1/s/h/state", bytes("online"), 0);
    site.take("vxprint/v1/s/h/printer/p", reading(), 0);
    site.take("vxprint/v1/s/h/state", new Uint8Array(), 0);
    assert.equal(site.agents.size, 1);
    site.take("vxprint/v1/s/h/printer/p", new Uint8Array(), 0);
    assert.equal(site.agents.size, 0);
});

test("printers are in the order of place and name, numbers by their value", () => {
    const site = new Site();
    site.language = "de";
    for (const [host, name] of [["b", "P 10"], ["b", "P 9"], ["a", "z"], ["a", "Ä"], ["a", "b"]])
        site.take(`vxprint/v1/s/${host}/printer/${encodedLevel(name)}`, reading(), 0);
    assert.deepEqual(site.ranked().map(printer => printer.name), ["Ä", "b", "z", "P 9", "P 10"]);
});

test("an estimate counts from the printer's last report", () => {
    const site = new Site();
    const remaining = p50 => ({ ...slot, estimatedSecondsRemaining: { p10: p50 / 2, p50, p90: p50 * 2 } });
    site.take("vxprint/v1/s/h/printer/earlier",
        reading({ lastReport: "2026-11-22T10:00:00.000Z", supply: remaining(7200) }), 0);
    site.take("vxprint/v1/s/h/printer/later",
        reading({ lastReport: "2026-11-22T11:30:00.000Z", supply: remaining(3600) }), 0);
    assert.deepEqual(site.endingFirst(5).map(end => end.printer.name), ["earlier", "later"]);
});

test("values that the schema does not allow are not known", () => {
    const level = values => readingIn(JSON.parse(new TextDecoder().decode(reading({ supply: { ...slot, ...values } })))).supply;
    for (const ratio of [-0.1, 1.1, "0.5", null, true, [0.5]])
        assert.equal(level({ ratio }).ratio, null);
    assert.equal(level({ state: "notKnown" }).ratio, null);
    assert.deepEqual(level({ colors: ["#ffffff", "red", 3, "#FFFFFF", "#fff", "url(x)"] }).colors, ["#ffffff"]);
    assert.equal(level({ estimatedSecondsRemaining: { p10: 1, p50: -1, p90: 2 } }).remaining, null);
    assert.equal(level({ name: "x".repeat(10000) }).name.length, 4096);
});
