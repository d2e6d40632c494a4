// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What stands beside the printers: what ends first, the agents that are offline, and the latest events.

import { bar, element, levelWord, markOf, placeOf, setBar, setMark, setText } from "./elements.js";
import { endOf } from "./site.js";
import { shown } from "./words.js";

const MOST_ENDS = 12;
const MOST_AGENT_LINES = 50;
const MOST_EVENT_LINES = 60;

/// As many children as there are items, each filled by `fill`; those that exist are used again.
function fillLines(list, items, make, fill) {
    while (list.childElementCount > items.length)
        list.lastElementChild.remove();
    items.forEach((item, place) => {
        let line = list.children[place];
        if (line === undefined) {
            line = make();
            list.append(line);
        }
        fill(line, item);
    });
}

function chooseLine({ target }, chosen) {
    const line = target.closest("button");
    if (line !== null)
        chosen(line.dataset.value);
}

export class EndsPanel {
    #list;
    #nothing;

    constructor(root, chosen) {
        this.#list = root.getElementById("ends-list");
        this.#nothing = root.getElementById("ends-nothing");
        this.#list.addEventListener("click", event => chooseLine(event, chosen));
    }

    show(site, words, withSites) {
        const ends = site.endingFirst(MOST_ENDS);
        this.#nothing.hidden = ends.length > 0;
        fillLines(this.#list, ends, newEnd, (line, { printer, slot, level }) => {
            const { parts } = line;
            line.firstChild.dataset.value = printer.key;
            setText(parts.name, shown(printer.name));
            setText(parts.time, level.remaining === null ? levelWord(words, level) : words.text("lasts",
                { time: words.span(Math.max(0, (endOf(printer, level) - Date.now()) / 1000)) }));
            const left = level.ratio === null || level.remaining === null ? "" : ` · ${levelWord(words, level)}`;
            setText(parts.slot, `${words.text(`slot.${slot}`)}${left}`);
            setText(parts.place, placeOf(printer.agent, withSites, shown));
            setBar(parts.bar, level);
        });
    }
}

function newEnd() {
    const parts = {
        name: element("span", "name"), time: element("span", "time"), slot: element("span", "what"),
        place: element("span", "place"), bar: bar(),
    };
    const button = element("button", "line", parts.name, parts.time, parts.bar, parts.slot, parts.place);
    button.type = "button";
    const line = element("li", "", button);
    line.parts = parts;
    return line;
}

export class AgentsPanel {
    #list;
    #summary;

    constructor(root, chosen) {
        this.#list = root.getElementById("agents-list");
        this.#summary = root.getElementById("agents-summary");
        this.#list.addEventListener("click", event => chooseLine(event, chosen));
    }

    show(site, words, withSites) {
        const agents = [...site.agents.values()];
        const offline = agents.filter(agent => agent.state === "offline")
            .sort((one, other) => one.key < other.key ? -1 : 1);
        const online = agents.filter(agent => agent.state === "online").length;
        fillLines(this.#list, offline.slice(0, MOST_AGENT_LINES), newAgent, (line, agent) => {
            const { parts } = line;
            line.firstChild.dataset.value = agent.host;
            setText(parts.name, placeOf(agent, withSites, shown));
            const last = lastReportOf(agent, site);
            setText(parts.count, words.text("agents.printers", { n: agent.printers.size }));
            setText(parts.since, last === null ? "" : words.text("agents.last", { time: words.moment(last) }));
        });
        const more = Math.max(0, offline.length - MOST_AGENT_LINES);
        const parts = [];
        if (more > 0)
            parts.push(words.text("agents.more_offline", { n: more }));
        if (online > 0)
            parts.push(words.text("agents.online", { n: online }));
        setText(this.#summary, agents.length === 0 ? words.text("agents.nothing") : parts.join(" · "));
    }
}

function lastReportOf(agent, site) {
    let last = null;
    for (const key of agent.printers) {
        const time = site.printers.get(key)?.reading.lastReport ?? null;
        if (time !== null && (last === null || time > last))
            last = time;
    }
    return last;
}

function newAgent() {
    const parts = { name: element("span", "name"), count: element("span", "time"), since: element("span", "what") };
    const button = element("button", "line agent", markOf("offline"), parts.name, parts.count, parts.since);
    button.type = "button";
    const line = element("li", "", button);
    line.parts = parts;
    return line;
}

export class EventsPanel {
    #list;
    #nothing;

    constructor(root) {
        this.#list = root.getElementById("events-list");
        this.#nothing = root.getElementById("events-nothing");
    }

    show(site, words, withSites) {
        const events = site.events.slice(0, MOST_EVENT_LINES);
        this.#nothing.hidden = events.length > 0;
        fillLines(this.#list, events, newEvent, (line, event) => fillEvent(line, event, words, withSites));
    }
}

export function newEvent() {
    const parts = {
        mark: markOf("ok"), name: element("span", "name"), time: element("time", "time"),
        what: element("span", "what"), place: element("span", "place"),
    };
    const line = element("li", "line event", parts.mark, parts.name, parts.time, parts.what, parts.place);
    line.parts = parts;
    return line;
}

/// Without a place where it is known anyway.
export function fillEvent(line, event, words, withSites, withPlace = true) {
    const { parts } = line;
    const place = placeOf(event, withSites, shown);
    setMark(parts.mark, event.severity);
    setText(parts.name, event.printer === null ? place : shown(event.printer));
    const iso = new Date(event.time).toISOString();
    if (parts.time.dateTime !== iso)
        parts.time.dateTime = iso;
    setText(parts.time, words.moment(event.time));
    setText(parts.what, words.event(event));
    const late = event.historical ? words.text("events.late") : "";
    const shownPlace = event.printer === null || !withPlace ? "" : place;
    setText(parts.place, [shownPlace, late].filter(text => text !== "").join(" · "));
}
