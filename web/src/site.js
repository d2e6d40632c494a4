// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// All that is known of the agents and their printers: what the broker has sent, in memory that is bounded
// whatever it sends.

import { eventIn, objectOf, readingIn, SLOTS, wordOf } from "./reading.js";
import { parsed } from "./topics.js";

export const MOST_PRINTERS = 20000;
export const MOST_AGENTS = 5000;
export const MOST_EVENTS = 200;

/// The classes of printers, the worst first. A printer whose agent is offline has a class of its own: nobody
/// knows how it is.
export const CLASSES = ["error", "warning", "offline", "information", "ok"];

export class Site {
    #agents = new Map();
    #printers = new Map();
    #events = [];
    #known = new Set();
    #confirmed = null;
    #refused = 0;
    #unreadable = 0;
    #changed = new Set();
    #orderChanged = true;
    #ranked = [];
    #ranksChanged = true;
    #collator = new Intl.Collator("en", { numeric: true, sensitivity: "base" });

    get printers() { return this.#printers; }
    get agents() { return this.#agents; }
    /// The latest first.
    get events() { return this.#events; }
    /// How many messages could not be read since the start.
    get unreadable() { return this.#unreadable; }
    /// How many messages told of more printers or agents than are kept.
    get refused() { return this.#refused; }

    /// The language by which names are put in order.
    set language(tag) {
        this.#collator = new Intl.Collator(tag, { numeric: true, sensitivity: "base" });
        this.#ranksChanged = this.#orderChanged = true;
    }

    /// Takes one message of the broker.
    take(topic, payload, now) {
        const place = parsed(topic);
        if (place === null)
            return;
        const agentKey = `${place.site}\n${place.host}`;
        if (place.kind === "event")
            this.#takeEvent(place, payload);
        else if (place.kind === "state")
            this.#takeState(agentKey, place, payload);
        else
            this.#takeReading(agentKey, place, payload, now);
    }

    /// From now on, what the broker confirms is remembered: whatever it does not send again is gone.
    beginConfirmation() {
        this.#confirmed = new Set();
    }

    /// Forgets the printers and agents that the broker has not sent since the confirmation began.
    endConfirmation() {
        if (this.#confirmed === null)
            return;
        for (const key of [...this.#printers.keys()])
            if (!this.#confirmed.has(key))
                this.#forget(key);
        for (const [key, agent] of [...this.#agents])
            if (agent.state !== null && !this.#confirmed.has(key))
                this.#setState(key, agent, null);
        this.#confirmed = null;
    }

    /// The keys of the printers that have changed since the last call.
    takeChanged() {
        const changed = this.#changed;
        this.#changed = new Set();
        return changed;
    }

    /// Whether printers came, went or changed their class since the last call.
    takeOrderChanged() {
        const changed = this.#orderChanged;
        this.#orderChanged = false;
        return changed;
    }

    classOf(printer) {
        return printer.agent.state === "offline" ? "offline" : printer.reading.severity;
    }

    /// All printers by place and name.
    ranked() {
        if (this.#ranksChanged) {
            const compare = this.#collator.compare;
            this.#ranked = [...this.#printers.values()].sort((one, other) =>
                compare(one.agent.site, other.agent.site) || compare(one.agent.host, other.agent.host) ||
                compare(one.name, other.name) || (one.key < other.key ? -1 : 1));
            this.#ranksChanged = false;
        }
        return this.#ranked;
    }

    /// How many printers each class has.
    counts() {
        const counts = Object.fromEntries(CLASSES.map(name => [name, 0]));
        for (const printer of this.#printers.values())
            ++counts[this.classOf(printer)];
        return counts;
    }

    /// The slots that end first: those of which the time is known by their time, then the others by what is
    /// left. What is empty has ended, and of what an agent that is offline tells, nobody knows.
    endingFirst(most) {
        const timed = [];
        const others = [];
        for (const printer of this.#printers.values()) {
            if (printer.agent.state === "offline")
                continue;
            for (const slot of SLOTS) {
                const level = printer.reading[slot];
                if (level === null || level.state === "empty")
                    continue;
                if (level.remaining !== null)
                    keepLeast(timed, { printer, slot, level, order: endOf(printer, level) }, most);
                else if (level.ratio !== null && level.ratio <= 0.25)
                    keepLeast(others, { printer, slot, level, order: level.ratio }, most);
            }
        }
        return [...timed, ...others].slice(0, most);
    }

    #takeState(key, place, payload) {
        let agent = this.#agents.get(key);
        if (payload.length === 0) {
            if (agent !== undefined)
                this.#setState(key, agent, null);
            return;
        }
        const word = wordOf(payload);
        if (word !== "online" && word !== "offline") {
            ++this.#unreadable;
            return;
        }
        agent ??= this.#newAgent(key, place);
        if (agent === null)
            return;
        this.#confirmed?.add(key);
        this.#setState(key, agent, word);
    }

    #newAgent(key, { site, host }) {
        if (this.#agents.size >= MOST_AGENTS) {
            ++this.#refused;
            return null;
        }
        const agent = { key, site, host, state: null, printers: new Set() };
        this.#agents.set(key, agent);
        return agent;
    }

    #setState(key, agent, state) {
        if (state === null && agent.printers.size === 0)
            this.#agents.delete(key);
        if (agent.state === state)
            return;
        agent.state = state;
        for (const printer of agent.printers)
            this.#changed.add(printer);
        this.#orderChanged = true;
    }

    #takeReading(agentKey, place, payload, now) {
        const key = `${agentKey}\n${place.name}`;
        if (payload.length === 0) {
            this.#forget(key);
            return;
        }
        const object = objectOf(payload);
        const reading = object && readingIn(object);
        // The last reading stays, and stays confirmed: the printer is there.
        this.#confirmed?.add(key);
        if (!reading) {
            ++this.#unreadable;
            return;
        }
        const printer = this.#printers.get(key);
        if (printer === undefined) {
            this.#add(key, agentKey, place, reading, now);
            return;
        }
        this.#orderChanged ||= printer.reading.severity !== reading.severity;
        printer.reading = reading;
        printer.arrived = now;
        printer.searchText = null;
        this.#changed.add(key);
    }

    #add(key, agentKey, place, reading, now) {
        if (this.#printers.size >= MOST_PRINTERS) {
            ++this.#refused;
            return;
        }
        const agent = this.#agents.get(agentKey) ?? this.#newAgent(agentKey, place);
        if (agent === null)
            return;
        agent.printers.add(key);
        this.#printers.set(key, { key, agent, name: place.name, reading, arrived: now, searchText: null });
        this.#changed.add(key);
        this.#ranksChanged = this.#orderChanged = true;
    }

    #forget(key) {
        const printer = this.#printers.get(key);
        if (printer === undefined)
            return;
        this.#printers.delete(key);
        printer.agent.printers.delete(key);
        if (printer.agent.state === null && printer.agent.printers.size === 0)
            this.#agents.delete(printer.agent.key);
        this.#changed.add(key);
        this.#ranksChanged = this.#orderChanged = true;
    }

    #takeEvent({ site, host }, payload) {
        const object = objectOf(payload);
        const event = object && eventIn(object);
        if (!event) {
            ++this.#unreadable;
            return;
        }
        // Agents deliver at least once.
        const identity = event.identity && `${site}\n${host}\n${event.identity}`;
        if (identity !== null && this.#known.has(identity))
            return;
        const place = this.#events.findIndex(other => other.time <= event.time);
        const added = { ...event, site, host, identity };
        if (place < 0)
            this.#events.push(added);
        else
            this.#events.splice(place, 0, added);
        if (identity !== null)
            this.#known.add(identity);
        if (this.#events.length > MOST_EVENTS)
            this.#known.delete(this.#events.pop().identity);
    }
}

/// When what is loaded will have been used up as likely as not. The estimate was made when the printer last
/// reported; a retained message does not tell when it was published.
export function endOf(printer, level) {
    return (printer.reading.lastReport ?? printer.arrived) + level.remaining.p50 * 1000;
}

/// Keeps the `most` items with the least order, in order.
function keepLeast(items, item, most) {
    if (items.length === most && item.order >= items[most - 1].order)
        return;
    let place = items.length;
    while (place > 0 && items[place - 1].order > item.order)
        --place;
    items.splice(place, 0, item);
    if (items.length > most)
        items.pop();
}
