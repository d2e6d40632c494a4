// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The topics of the agents: vxprint/v1/<site>/<host>/state, /event and /printer/<name>. Levels are
// percent-encoded.

export const ROOT = "vxprint/v1";

const FILTERS = ["+/state", "+/printer/+", "+/event"];

/// What to subscribe to for these sites, or for all of them.
export function filters(sites) {
    const levels = sites.length > 0 ? sites.map(encodedLevel) : ["+"];
    return levels.flatMap(level => FILTERS.map(filter => `${ROOT}/${level}/${filter}`));
}

/// The parts of a topic, or null for one that is none of the agents'.
export function parsed(topic) {
    const levels = topic.split("/");
    if (levels.length < 5 || levels[0] !== "vxprint" || levels[1] !== "v1")
        return null;
    const [, , site, host, kind, name] = levels;
    if (site === "" || host === "")
        return null;
    if (levels.length === 5 && (kind === "state" || kind === "event"))
        return { kind, site: decodedLevel(site), host: decodedLevel(host) };
    if (levels.length === 6 && kind === "printer" && name !== "")
        return { kind, site: decodedLevel(site), host: decodedLevel(host), name: decodedLevel(name) };
    return null;
}

/// A level as agents write it. Besides what MQTT forbids, the space and the full stop are encoded, because
/// NATS servers refuse topics with them.
export function encodedLevel(text) {
    return encodeURIComponent(text).replace(/[.*!'()~]/g,
        character => `%${character.charCodeAt(0).toString(16).toUpperCase().padStart(2, "0")}`);
}

/// A level whose escapes are no UTF-8 stays as it is: it is another's name, and still tells which.
export function decodedLevel(level) {
    try {
        return decodeURIComponent(level);
    } catch {
        return level;
    }
}
