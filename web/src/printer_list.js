// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The printers as tiles in columns, below headings of their class or place. Only the tiles that can be seen
// are in the document, so that thousands of printers cost no more than those.

import { bar, element, levelWord, markOf, placeOf, setBar, setMark, setText, urgencyOf } from "./elements.js";
import { CLASSES, endOf } from "./site.js";
import { SLOTS } from "./reading.js";
import { shown } from "./words.js";

const LINES_BEYOND = 2;

export class PrinterList {
    #list;
    #canvas;
    #site;
    #words;
    #chosen;
    #lines = [];
    #order = [];
    #placeOfKey = new Map();
    #tiles = new Map();
    #spare = [];
    #headings = new Map();
    #columns = 1;
    #sizes = { tile: 100, heading: 40, gap: 8, column: 300 };
    #current = null;
    #withSites = false;
    #isByPlace = false;
    #groups = [];

    /// `chosen` is called with the key of a printer that the reader opens.
    constructor(list, canvas, site, words, chosen) {
        this.#list = list;
        this.#canvas = canvas;
        this.#site = site;
        this.#words = words;
        this.#chosen = chosen;
        list.addEventListener("scroll", () => this.show(), { passive: true });
        list.addEventListener("keydown", event => this.#keyPressed(event));
        canvas.addEventListener("click", event => {
            const tile = event.target.closest(".tile");
            if (tile !== null) {
                this.#setCurrent(tile.dataset.key);
                this.#chosen(tile.dataset.key);
            }
        });
        new ResizeObserver(() => this.measure()).observe(list);
    }

    set words(words) {
        this.#words = words;
        for (const tile of this.#tiles.values())
            tile.reading = null;
    }

    /// Shows these printers in groups. In those of a place, a tile does not name the place once more.
    setGroups(groups, withSites, isByPlace) {
        this.#withSites = withSites;
        this.#groups = groups;
        if (this.#isByPlace === isByPlace) {
            this.#layOut();
            return;
        }
        this.#isByPlace = isByPlace;
        this.measure();
    }

    measure() {
        this.#canvas.classList.toggle("by-place", this.#isByPlace);
        const style = getComputedStyle(this.#canvas);
        const rem = parseFloat(getComputedStyle(document.documentElement).fontSize);
        const inRem = name => parseFloat(style.getPropertyValue(name)) * rem;
        const width = this.#canvas.clientWidth;
        const gap = inRem("--gap");
        // Hidden behind another tab of a phone.
        if (width === 0)
            return;
        this.#columns = Math.max(1, Math.floor((width + gap) / (inRem("--tile-width") + gap)));
        this.#sizes = {
            tile: inRem("--tile-height"), heading: inRem("--heading-height"), gap,
            column: (width - gap * (this.#columns - 1)) / this.#columns,
        };
        for (const tile of this.#tiles.values())
            tile.placed = "";
        this.#layOut();
    }

    #layOut() {
        const { tile, heading, gap } = this.#sizes;
        this.#lines = [];
        this.#order = [];
        this.#placeOfKey.clear();
        let top = 0;
        for (const group of this.#groups) {
            this.#lines.push({ top, height: heading, group });
            top += heading;
            for (let first = 0; first < group.printers.length; first += this.#columns) {
                const printers = group.printers.slice(first, first + this.#columns);
                for (const printer of printers) {
                    this.#placeOfKey.set(printer.key, this.#order.length);
                    this.#order.push({ key: printer.key, line: this.#lines.length });
                }
                this.#lines.push({ top, height: tile + gap, printers });
                top += tile + gap;
            }
        }
        this.#canvas.style.height = `${top}px`;
        if (this.#current !== null && !this.#placeOfKey.has(this.#current))
            this.#current = null;
        this.show();
    }

    /// The first line that ends below a height.
    #lineAt(height) {
        let low = 0;
        let high = this.#lines.length;
        while (low < high) {
            const middle = (low + high) >> 1;
            if (this.#lines[middle].top + this.#lines[middle].height <= height)
                low = middle + 1;
            else
                high = middle;
        }
        return low;
    }

    /// Puts the tiles that can be seen into the document, and takes out the others.
    show() {
        const top = this.#list.scrollTop;
        const first = Math.max(0, this.#lineAt(top) - LINES_BEYOND);
        const last = Math.min(this.#lines.length, this.#lineAt(top + this.#list.clientHeight) + 1 + LINES_BEYOND);
        const seen = new Set();
        const headed = new Set();
        for (let place = first; place < last; ++place) {
            const line = this.#lines[place];
            if (line.group !== undefined) {
                headed.add(line.group.name);
                this.#showHeading(line);
            } else {
                for (const printer of line.printers)
                    seen.add(printer.key);
            }
        }
        for (const [key, tile] of this.#tiles)
            if (!seen.has(key)) {
                this.#tiles.delete(key);
                tile.remove();
                this.#spare.push(tile);
            }
        for (const [name, heading] of this.#headings)
            if (!headed.has(name)) {
                this.#headings.delete(name);
                heading.remove();
            }
        for (let place = first; place < last; ++place)
            this.#lines[place].printers?.forEach((printer, column) =>
                this.#showTile(printer, column, this.#lines[place].top));
        this.#markCurrent();
    }

    #showHeading({ top, group }) {
        let heading = this.#headings.get(group.name);
        if (heading === undefined) {
            heading = element("div", "heading", markOf(group.mark), element("span", "words"), element("span", "count"));
            heading.setAttribute("role", "presentation");
            this.#headings.set(group.name, heading);
            this.#canvas.append(heading);
        }
        heading.style.transform = `translateY(${top}px)`;
        setMark(heading.childNodes[0], group.mark);
        setText(heading.childNodes[1], group.title);
        setText(heading.childNodes[2], this.#words.text("count", { n: group.printers.length }));
    }

    #showTile(printer, column, top) {
        let tile = this.#tiles.get(printer.key);
        if (tile === undefined) {
            tile = this.#spare.pop() ?? newTile();
            tile.id = `printer-${nextId++}`;
            tile.dataset.key = printer.key;
            tile.reading = null;
            tile.placed = "";
            this.#tiles.set(printer.key, tile);
            this.#canvas.append(tile);
        }
        const left = column * (this.#sizes.column + this.#sizes.gap);
        const placed = `${left} ${top} ${this.#sizes.column}`;
        if (tile.placed !== placed) {
            tile.placed = placed;
            tile.style.transform = `translate(${left}px, ${top}px)`;
            tile.style.width = `${this.#sizes.column}px`;
        }
        this.#fill(tile, printer);
    }

    /// Shows what has changed of these printers, as far as they can be seen.
    refresh(keys) {
        for (const key of keys) {
            const tile = this.#tiles.get(key);
            const printer = this.#site.printers.get(key);
            if (tile !== undefined && printer !== undefined)
                this.#fill(tile, printer);
        }
    }

    /// Writes the remaining times anew, which grow shorter by themselves.
    refreshTimes() {
        for (const [key, tile] of this.#tiles) {
            const printer = this.#site.printers.get(key);
            if (printer !== undefined)
                this.#fillEnd(tile, printer);
        }
    }

    #fill(tile, printer) {
        const name = this.#site.classOf(printer);
        if (tile.reading === printer.reading && tile.dataset.class === name && tile.withSites === this.#withSites)
            return;
        tile.reading = printer.reading;
        tile.withSites = this.#withSites;
        const { parts } = tile;
        const words = this.#words;
        const status = words.statusTitle(printer.reading.statusKey, printer.reading.statusCode);
        const isOffline = name === "offline";
        const statusText = isOffline ? words.text("last_known", { status }) : status;
        const placeText = placeOf(printer.agent, this.#withSites, shown);
        if (tile.dataset.class !== name)
            tile.dataset.class = name;
        setMark(parts.mark, name);
        const shownName = shown(printer.name);
        setText(parts.name, shownName);
        setText(parts.place, placeText);
        setText(parts.status, statusText);
        const spoken = [shownName, placeText, statusText];
        SLOTS.forEach((slot, place) => {
            const level = printer.reading[slot];
            const part = parts.slots[place];
            part.slot.hidden = level === null;
            if (level === null)
                return;
            const urgency = urgencyOf(level);
            if (part.slot.dataset.urgency !== urgency)
                part.slot.dataset.urgency = urgency;
            const slotName = words.text(`slot.${slot}`);
            const value = levelWord(words, level);
            const isOnly = slot === "ribbon1" && printer.reading.ribbon2 === null;
            setText(part.name, words.text(isOnly ? "slot_short.ribbon" : `slot_short.${slot}`));
            setText(part.value, value);
            setBar(part.bar, level);
            spoken.push(`${slotName}: ${urgency === "unknown" ? words.text("level.unknown") : value}`);
        });
        tile.setAttribute("aria-label", spoken.join(", "));
        this.#fillEnd(tile, printer);
    }

    #fillEnd(tile, printer) {
        let end = Infinity;
        if (printer.agent.state !== "offline")
            for (const slot of SLOTS)
                if (printer.reading[slot]?.remaining)
                    end = Math.min(end, endOf(printer, printer.reading[slot]));
        const seconds = Math.max(0, (end - Date.now()) / 1000);
        setText(tile.parts.end, end === Infinity ? "" : this.#words.text("lasts", { time: this.#words.span(seconds) }));
    }

    focus() {
        this.#list.focus();
    }

    #setCurrent(key) {
        this.#current = key;
        this.#markCurrent();
    }

    #markCurrent() {
        for (const [key, tile] of this.#tiles) {
            const isCurrent = key === this.#current;
            if (tile.getAttribute("aria-selected") !== String(isCurrent))
                tile.setAttribute("aria-selected", String(isCurrent));
        }
        const tile = this.#tiles.get(this.#current);
        if (tile !== undefined)
            this.#list.setAttribute("aria-activedescendant", tile.id);
        else
            this.#list.removeAttribute("aria-activedescendant");
    }

    #keyPressed(event) {
        if (event.altKey || event.ctrlKey || event.metaKey || this.#order.length === 0)
            return;
        const place = this.#placeOfKey.get(this.#current);
        if (event.key === "Enter" || event.key === " ") {
            event.preventDefault();
            if (place !== undefined)
                this.#chosen(this.#current);
            return;
        }
        const target = this.#targetOf(event.key, place);
        if (target === null)
            return;
        event.preventDefault();
        this.#moveTo(Math.max(0, Math.min(this.#order.length - 1, target)));
    }

    #targetOf(key, place) {
        const last = this.#order.length - 1;
        const page = Math.max(1, Math.floor(this.#list.clientHeight / (this.#sizes.tile + this.#sizes.gap)) - 1);
        switch (key) {
        case "ArrowRight":
            return place === undefined ? 0 : place + 1;
        case "ArrowLeft":
            return place === undefined ? 0 : place - 1;
        case "ArrowDown":
            return place === undefined ? 0 : this.#inOtherLine(place, 1);
        case "ArrowUp":
            return place === undefined ? 0 : this.#inOtherLine(place, -1);
        case "PageDown":
            return place === undefined ? 0 : place + page * this.#columns;
        case "PageUp":
            return place === undefined ? 0 : place - page * this.#columns;
        case "Home":
            return 0;
        case "End":
            return last;
        default:
            return null;
        }
    }

    /// The printer below or above, in the same column where there is one.
    #inOtherLine(place, step) {
        const { line } = this.#order[place];
        const column = place - this.#firstOf(line);
        let other = line + step;
        while (other >= 0 && other < this.#lines.length && this.#lines[other].printers === undefined)
            other += step;
        if (other < 0 || other >= this.#lines.length)
            return place;
        return this.#firstOf(other) + Math.min(column, this.#lines[other].printers.length - 1);
    }

    #firstOf(line) {
        return this.#placeOfKey.get(this.#lines[line].printers[0].key);
    }

    #moveTo(place) {
        const { key, line } = this.#order[place];
        const { top, height } = this.#lines[line];
        // The heading above stays in sight.
        const above = this.#lines[line - 1]?.group === undefined ? top : top - this.#sizes.heading;
        if (above < this.#list.scrollTop)
            this.#list.scrollTop = above;
        else if (top + height > this.#list.scrollTop + this.#list.clientHeight)
            this.#list.scrollTop = top + height - this.#list.clientHeight;
        this.#current = key;
        this.show();
    }
}

let nextId = 1;

function newTile() {
    const parts = {
        mark: markOf("ok"), name: element("span", "name"), place: element("span", "place"),
        status: element("span", "status"), end: element("span", "end"),
        slots: SLOTS.map(() => {
            const name = element("span", "slot-name");
            const value = element("span", "value");
            const made = bar();
            return { slot: element("span", "slot", name, value, made), name, value, bar: made };
        }),
    };
    const tile = element("div", "tile",
        element("div", "first", parts.mark, parts.name, parts.end),
        parts.status, parts.place,
        element("div", "slots", ...parts.slots.map(part => part.slot)));
    tile.setAttribute("role", "option");
    tile.parts = parts;
    return tile;
}

/// The printers in groups by class, or by the agent whose printers they are, those with the worst first.
export function groupsOf(printers, site, words, byPlace, withSites) {
    if (!byPlace) {
        const groups = CLASSES.map(name =>
            ({ name, mark: name, title: words.text(`class.${name}`), printers: [] }));
        for (const printer of printers)
            groups[CLASSES.indexOf(site.classOf(printer))].printers.push(printer);
        return groups.filter(group => group.printers.length > 0);
    }
    const groups = new Map();
    for (const printer of printers) {
        const { agent } = printer;
        let group = groups.get(agent.key);
        if (group === undefined) {
            group = { name: agent.key, worst: CLASSES.length, title: placeOf(agent, withSites, shown), printers: [] };
            groups.set(agent.key, group);
        }
        group.printers.push(printer);
        group.worst = Math.min(group.worst, CLASSES.indexOf(site.classOf(printer)));
    }
    const sorted = [...groups.values()].sort((one, other) => one.worst - other.worst);
    for (const group of sorted) {
        group.mark = CLASSES[group.worst];
        const worstFirst = CLASSES.map(() => []);
        for (const printer of group.printers)
            worstFirst[CLASSES.indexOf(site.classOf(printer))].push(printer);
        group.printers = worstFirst.flat();
    }
    return sorted;
}
