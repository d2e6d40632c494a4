// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Everything that is known of one printer, in a sheet over the page.

import { bar, element, levelWord, markOf, setBar, urgencyOf } from "./elements.js";
import { fillEvent, newEvent } from "./panels.js";
import { endOf } from "./site.js";
import { SLOTS } from "./reading.js";
import { shown } from "./words.js";

const MOST_EVENTS = 10;

export class Details {
    #dialog;
    #name;
    #body;
    #site;
    #words;
    #key = null;

    constructor(root, site, words) {
        this.#dialog = root.getElementById("details");
        this.#name = root.getElementById("details-name");
        this.#body = root.getElementById("details-body");
        this.#site = site;
        this.#words = words;
        root.getElementById("details-close").addEventListener("click", () => this.#dialog.close());
        this.#dialog.addEventListener("click", event => {
            if (event.target === this.#dialog)
                this.#dialog.close();
        });
        this.#dialog.addEventListener("close", () => { this.#key = null; });
    }

    set words(words) { this.#words = words; }

    get key() { return this.#key; }

    open(key) {
        if (!this.#site.printers.has(key))
            return;
        this.#key = key;
        this.refresh();
        if (!this.#dialog.open)
            this.#dialog.showModal();
        this.#dialog.scrollTop = 0;
    }

    /// Shows the printer as it is now. One that is gone stays as it was, and says so.
    refresh() {
        if (this.#key === null)
            return;
        const printer = this.#site.printers.get(this.#key);
        if (printer === undefined) {
            const gone = element("p", "gone", markOf("offline"), this.#words.text("details.gone"));
            this.#body.querySelector(".gone")?.remove();
            this.#body.prepend(gone);
            return;
        }
        this.#name.textContent = shown(printer.name);
        this.#body.replaceChildren(this.#status(printer), ...this.#slots(printer), this.#facts(printer),
            ...this.#events(printer));
    }

    #status(printer) {
        const words = this.#words;
        const { reading } = printer;
        const name = this.#site.classOf(printer);
        const title = words.statusTitle(reading.statusKey, reading.statusCode);
        const status = element("div", "status-box",
            element("p", "status", markOf(name),
                name === "offline" ? words.text("last_known", { status: title }) : title));
        status.dataset.class = name;
        if (name === "offline")
            status.append(element("p", "remedy",
                words.text("details.agent_offline", { host: shown(printer.agent.host) })));
        else if (reading.severity !== "ok")
            status.append(element("p", "remedy", words.statusRemedy(reading.statusKey, reading.statusCode)));
        return status;
    }

    #slots(printer) {
        return SLOTS.filter(slot => printer.reading[slot] !== null)
            .map(slot => this.#slot(printer, slot, printer.reading[slot]));
    }

    #slot(printer, slot, level) {
        const words = this.#words;
        const made = bar();
        setBar(made, level);
        const urgency = urgencyOf(level);
        const value = urgency === "unknown" ? words.text("level.unknown") : levelWord(words, level);
        const box = element("section", "slot-box",
            element("h3", "", words.text(`slot.${slot}`), element("span", "value", value)), made);
        box.dataset.urgency = urgency;
        const kind = level.state === "notInCatalogue" ? words.text("level.not_in_catalogue")
            : shown([...new Set([level.name, level.sku])].filter(text => text !== null).join(" · "));
        if (kind !== "")
            box.append(element("p", "", kind));
        const left = [];
        if (level.labels !== null)
            left.push(words.text("level.labels", { n: level.labels }));
        if (level.meters !== null)
            left.push(words.meters(level.meters));
        if (left.length > 0)
            box.append(element("p", "", left.join(" · ")));
        if (level.remaining !== null && printer.agent.state !== "offline") {
            const passed = (Date.now() - endOf(printer, level)) / 1000 + level.remaining.p50;
            const [least, most] = [level.remaining.p10, level.remaining.p90]
                .map(seconds => Math.max(0, seconds - passed));
            box.append(element("p", "", words.text("details.lasts", { span: words.spanRange(least, most) })));
        }
        return box;
    }

    #facts(printer) {
        const words = this.#words;
        const { reading, agent } = printer;
        const facts = element("dl", "facts");
        const add = (key, value) => {
            if (value !== null)
                facts.append(element("dt", "", words.text(key)), element("dd", "", shown(value)));
        };
        add("fact.site", agent.site);
        add("fact.host", agent.host);
        add("fact.model", reading.model === "Unknown" ? null : reading.model);
        add("fact.serial", reading.serialNumber);
        add("fact.port", reading.port);
        add("fact.driver", reading.driver);
        add("fact.firmware", reading.firmwareVersion);
        add("fact.last_report", reading.lastReport === null ? null : words.moment(reading.lastReport));
        return facts;
    }

    #events(printer) {
        const { site, host } = printer.agent;
        const events = this.#site.events.filter(event =>
            event.printer === printer.name && event.host === host && event.site === site).slice(0, MOST_EVENTS);
        if (events.length === 0)
            return [];
        const list = element("ol", "lines");
        for (const event of events) {
            const line = newEvent();
            line.classList.add("of-printer");
            fillEvent(line, event, this.#words, false, false);
            list.append(line);
        }
        return [element("h3", "", this.#words.text("events.title")), list];
    }
}
