// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Readings and events as agents publish them. They come from other machines: whatever does not have the
// form that docs/schema describes is not known, and nothing is longer than can be shown.

export const SEVERITIES = ["error", "warning", "information", "ok"];
export const SLOTS = ["supply", "ribbon1", "ribbon2"];

const MOST_BYTES = 65536;
const MOST_CHARACTERS = 4096;
const MOST_COLOURS = 8;
const LEVEL_STATES = ["notKnown", "empty", "loaded", "notInCatalogue"];
const KEY = /^[a-z][a-z0-9_]{0,63}$/;
const COLOUR = /^#[0-9a-f]{6}$/;
const TIME = /^\d{4}-\d{2}-\d{2}T\d{2}:\d{2}:\d{2}(\.\d+)?(Z|[+-]\d{2}:\d{2})$/;

const decoder = new TextDecoder("utf-8", { fatal: true });

/// The object that a payload holds, or null.
export function objectOf(payload) {
    if (payload.length > MOST_BYTES)
        return null;
    try {
        const value = JSON.parse(decoder.decode(payload));
        return isObject(value) ? value : null;
    } catch {
        return null;
    }
}

/// The text of a short payload, or null.
export function wordOf(payload) {
    if (payload.length > 64)
        return null;
    try {
        return decoder.decode(payload);
    } catch {
        return null;
    }
}

function isObject(value) {
    return typeof value === "object" && value !== null && !Array.isArray(value);
}

function textIn(value) {
    return typeof value === "string" && value !== "" ? value.slice(0, MOST_CHARACTERS) : null;
}

function numberIn(value, least, most) {
    return typeof value === "number" && value >= least && value <= most ? value : null;
}

function wholeIn(value, least, most) {
    return Number.isInteger(value) ? numberIn(value, least, most) : null;
}

function timeIn(value) {
    if (typeof value !== "string" || value.length > 40 || !TIME.test(value))
        return null;
    const time = Date.parse(value);
    return Number.isNaN(time) ? null : time;
}

function keyIn(value) {
    return typeof value === "string" && KEY.test(value) ? value : null;
}

function choiceIn(value, choices) {
    return choices.includes(value) ? value : null;
}

function remainingIn(value) {
    if (!isObject(value))
        return null;
    const [p10, p50, p90] = [value.p10, value.p50, value.p90].map(seconds => numberIn(seconds, 0, 1e9));
    return p10 === null || p50 === null || p90 === null ? null : { p10, p50, p90 };
}

function levelIn(value) {
    if (!isObject(value))
        return null;
    const state = choiceIn(value.state, LEVEL_STATES) ?? "notKnown";
    const isKnown = state === "loaded" || state === "notInCatalogue";
    return {
        state,
        sku: textIn(value.sku),
        name: textIn(value.name),
        material: textIn(value.material),
        colorName: textIn(value.colorName),
        colors: Array.isArray(value.colors)
            ? value.colors.slice(0, MOST_COLOURS).filter(colour => typeof colour === "string" && COLOUR.test(colour))
            : [],
        ratio: isKnown ? numberIn(value.ratio, 0, 1) : null,
        meters: isKnown ? numberIn(value.meters, 0, 1e6) : null,
        labels: isKnown ? wholeIn(value.labels, 0, 2147483647) : null,
        remaining: isKnown ? remainingIn(value.estimatedSecondsRemaining) : null,
    };
}

/// A reading, or null if the object is none. The printer's name is that of the topic, because a broker
/// checks who may publish to which topic and not what is in it.
export function readingIn(object) {
    const statusCode = wholeIn(object.statusCode, -2147483648, 2147483647);
    const severity = choiceIn(object.severity, SEVERITIES);
    if (statusCode === null || severity === null)
        return null;
    return {
        statusCode,
        statusKey: keyIn(object.statusKey) ?? "printer_error",
        severity,
        model: textIn(object.model),
        driver: textIn(object.driver),
        port: textIn(object.port),
        serialNumber: textIn(object.serialNumber),
        firmwareVersion: textIn(object.firmwareVersion),
        lastReport: timeIn(object.lastReport),
        supply: levelIn(object.supply),
        ribbon1: levelIn(object.ribbon1),
        ribbon2: levelIn(object.ribbon2),
    };
}

/// An event, or null if the object is none.
export function eventIn(object) {
    const time = timeIn(object.time);
    const severity = choiceIn(object.severity, SEVERITIES);
    const key = keyIn(object.key);
    if (time === null || severity === null || key === null)
        return null;
    const after = isObject(object.after) ? object.after : {};
    const before = isObject(object.before) ? object.before : {};
    return {
        time,
        severity,
        key,
        kind: keyIn(object.kind),
        printer: textIn(object.printer),
        slot: choiceIn(object.slot, SLOTS),
        code: wholeIn(object.code, -2147483648, 2147483647),
        text: textIn(object.text),
        reason: textIn(object.reason),
        lost: wholeIn(object.lost, 1, Number.MAX_SAFE_INTEGER),
        name: textIn(after.name) ?? textIn(after.sku),
        ratio: numberIn(after.ratio, 0, 1),
        version: textIn(after.firmwareVersion),
        oldName: textIn(before.printer),
        identity: typeof object.session === "string" || typeof object.session === "number"
            ? `${String(object.session).slice(0, 100)}/${wholeIn(object.seq, 0, Number.MAX_SAFE_INTEGER) ?? ""}` : null,
        historical: object.historical === true,
    };
}
