// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The page: what the broker sends goes into the site, and what has changed there is drawn with the next
// frame. What costs more than a tile (order, panels) is drawn twice a second at most.

import { Connection } from "./connection.js";
import { Details } from "./details.js";
import { element, markOf, setText } from "./elements.js";
import { AgentsPanel, EndsPanel, EventsPanel } from "./panels.js";
import { groupsOf, PrinterList } from "./printer_list.js";
import { CLASSES, Site } from "./site.js";
import { fillTexts, LANGUAGES, preferredLanguage, shown, Words } from "./words.js";

const ORDER_INTERVAL = 500;
const TIMES_INTERVAL = 15000;

const byId = id => document.getElementById(id);

/// A storage of the browser. Where the browser does not allow it, nothing is kept.
class Store {
    #name;

    constructor(name) {
        this.#name = name;
    }

    get(key) {
        try {
            return window[this.#name].getItem(`vxprint.${key}`);
        } catch {
            return null;
        }
    }

    set(key, value) {
        try {
            if (value === null)
                window[this.#name].removeItem(`vxprint.${key}`);
            else
                window[this.#name].setItem(`vxprint.${key}`, value);
        } catch {
            // It lasts until the page is closed.
        }
    }
}

/// What the reader has chosen on this device, and what lasts as long as the tab.
const choices = new Store("localStorage");
const tab = new Store("sessionStorage");

class Page {
    #site = new Site();
    #words;
    #config;
    #connection;
    #list;
    #details;
    #panels;
    #search = "";
    #byPlace = choices.get("group") === "place";
    #hidden = new Set();
    #state = { name: "connecting", since: Date.now(), detail: "" };
    #frameAsked = false;
    #orderTimer = null;
    #nextOrder = 0;
    #isOrderStale = true;
    #arePanelsStale = true;

    async start() {
        document.documentElement.dataset.theme = choices.get("theme") ?? "auto";
        const language = choices.get("language");
        this.#words = await Words.load(language !== null && Object.hasOwn(LANGUAGES, language)
            ? language : preferredLanguage(navigator.languages));
        this.#list = new PrinterList(byId("list"), byId("canvas"), this.#site, this.#words, key => this.#open(key));
        this.#details = new Details(document, this.#site, this.#words);
        this.#panels = [
            new EndsPanel(document, key => this.#open(key)),
            new AgentsPanel(document, host => this.#searchFor(host)),
            new EventsPanel(document),
        ];
        this.#connectControls();
        this.#applyWords();
        this.#list.measure();
        setInterval(() => this.#list.refreshTimes(), TIMES_INTERVAL);
        try {
            this.#config = await readConfig();
        } catch (error) {
            this.#notify(this.#words.text("config.unreadable", { reason: shown(String(error.message)) }));
            return;
        }
        this.#applyWords();
        this.#connection = new Connection({
            message: (topic, payload) => {
                this.#site.take(topic, payload, Date.now());
                this.#changed();
            },
            state: (name, detail) => this.#stateChanged(name, detail ?? ""),
            begun: () => this.#site.beginConfirmation(),
            settled: () => {
                this.#site.endConfirmation();
                this.#changed();
            },
        });
        this.#connect();
    }

    #connect() {
        const kept = choices.get("password");
        const user = choices.get("user") ?? tab.get("user") ?? this.#config.user;
        const password = kept ?? tab.get("password");
        if (this.#config.user !== "" && password === null) {
            this.#askForPassword("");
            return;
        }
        this.#connectAs(user, password);
    }

    #connectAs(user, password) {
        // Whoever listens on the way would have the password.
        if (password !== null && !isSafe(new URL(this.#config.broker))) {
            this.#notify(this.#words.text("config.insecure"));
            return;
        }
        byId("sign-out").hidden = password === null;
        this.#connection.start({ broker: this.#config.broker, sites: this.#config.sites, user, password });
    }

    #askForPassword(why) {
        setText(byId("sign-in-why"), why);
        byId("sign-in-user").value = choices.get("user") ?? this.#config.user;
        if (!byId("sign-in").open)
            byId("sign-in").showModal();
    }

    #signIn() {
        const user = byId("sign-in-user").value;
        const password = byId("sign-in-password").value;
        const keep = byId("sign-in-keep").checked;
        byId("sign-in-password").value = "";
        choices.set("user", keep ? user : null);
        choices.set("password", keep ? password : null);
        tab.set("user", user);
        tab.set("password", password);
        this.#connectAs(user, password);
    }

    #signOut() {
        choices.set("user", null);
        choices.set("password", null);
        tab.set("user", null);
        tab.set("password", null);
        // Nothing of what was read stays in the page.
        location.reload();
    }

    #stateChanged(name, detail) {
        const wasLive = this.#state.name === "live";
        const isAway = name === "connecting" || name === "waiting";
        const keepsTime = isAway && (this.#state.name === "connecting" || this.#state.name === "waiting");
        this.#state = { name, detail, since: keepsTime ? this.#state.since : Date.now(),
            wasLive: name === "live" || wasLive || this.#state.wasLive };
        this.#showState();
        if (name === "refused" && detail === "password")
            this.#askForPassword(this.#words.text("sign_in.refused"));
        this.#changed();
    }

    #showState() {
        const { name, detail, since, wasLive } = this.#state;
        byId("connection").dataset.state = name;
        document.documentElement.dataset.state = name;
        let key = `connection.${name}`;
        if (name === "refused")
            key = `connection.refused_${detail}`;
        else if (name !== "live" && wasLive)
            key = "connection.lost";
        setText(byId("connection-text"), this.#words.text(key, { time: this.#words.moment(since) }));
        this.#notify(name !== "live" && wasLive ? this.#words.text("connection.stale") : "");
    }

    #notify(text) {
        const notice = byId("notice");
        notice.hidden = text === "";
        setText(notice, text);
    }

    /// Draws what has changed with the next frame.
    #changed() {
        if (this.#frameAsked)
            return;
        this.#frameAsked = true;
        requestAnimationFrame(() => {
            this.#frameAsked = false;
            this.#draw();
        });
    }

    #draw() {
        const keys = this.#site.takeChanged();
        this.#isOrderStale ||= this.#site.takeOrderChanged() || this.#search !== "" && keys.size > 0;
        this.#arePanelsStale = true;
        this.#list.refresh(keys);
        if (this.#details.key !== null && keys.has(this.#details.key))
            this.#details.refresh();
        const wait = this.#nextOrder - performance.now();
        if (wait <= 0)
            this.#drawOrder();
        else
            this.#orderTimer ??= setTimeout(() => requestAnimationFrame(() => this.#drawOrder()), wait);
    }

    #drawOrder() {
        clearTimeout(this.#orderTimer);
        this.#orderTimer = null;
        this.#nextOrder = performance.now() + ORDER_INTERVAL;
        const withSites = this.#withSites();
        if (this.#isOrderStale) {
            this.#isOrderStale = false;
            const words = searchWords(this.#search);
            const printers = this.#site.ranked().filter(printer =>
                !this.#hidden.has(this.#site.classOf(printer)) && this.#isFound(printer, words));
            this.#list.setGroups(groupsOf(printers, this.#site, this.#words, this.#byPlace, withSites),
                withSites, this.#byPlace);
            this.#showClasses();
            this.#showNothing(printers.length);
        }
        if (this.#arePanelsStale) {
            this.#arePanelsStale = false;
            for (const panel of this.#panels)
                panel.show(this.#site, this.#words, withSites);
            this.#showLimits();
        }
    }

    #drawAll() {
        this.#isOrderStale = this.#arePanelsStale = true;
        this.#drawOrder();
    }

    #withSites() {
        let first = null;
        for (const { site } of this.#site.agents.values())
            if (first === null)
                first = site;
            else if (first !== site)
                return true;
        return false;
    }

    #isFound(printer, words) {
        if (words.length === 0)
            return true;
        printer.searchText ??= searchTextOf(printer, this.#words);
        return words.every(word => printer.searchText.includes(word));
    }

    #showClasses() {
        const counts = this.#site.counts();
        for (const button of byId("classes").children) {
            const name = button.dataset.class;
            setText(button.querySelector(".count"), this.#words.text("count", { n: counts[name] }));
            button.toggleAttribute("data-none", counts[name] === 0);
            button.setAttribute("aria-pressed", String(!this.#hidden.has(name)));
        }
        const bad = counts.error + counts.warning;
        const title = this.#title();
        document.title = bad > 0 ? `(${bad}) ${title}` : title;
    }

    #showNothing(count) {
        byId("nothing").hidden = count > 0;
        const isEmpty = this.#site.printers.size === 0;
        setText(byId("nothing"), this.#words.text(isEmpty ? "printers.nothing" : "printers.not_found"));
    }

    #showLimits() {
        if (this.#state.name !== "live")
            return;
        const { refused, unreadable } = this.#site;
        const texts = [];
        if (refused > 0)
            texts.push(this.#words.text("limits.refused", { n: refused }));
        if (unreadable > 0)
            texts.push(this.#words.text("limits.unreadable", { n: unreadable }));
        this.#notify(texts.join(" "));
    }

    #title() {
        return this.#config?.title ? shown(this.#config.title) : this.#words.text("title");
    }

    #applyWords() {
        const words = this.#words;
        fillTexts(words, document);
        setText(byId("title"), this.#title());
        byId("classes").replaceChildren(...CLASSES.map(name => {
            const button = element("button", "class", markOf(name), element("span", "count"),
                element("span", "words", words.text(`class.${name}`)));
            button.type = "button";
            button.dataset.class = name;
            return button;
        }));
        byId("language").value = words.language;
        byId("group").value = this.#byPlace ? "place" : "severity";
        byId("theme").value = document.documentElement.dataset.theme;
        this.#site.language = words.tag;
        this.#list.words = words;
        this.#details.words = words;
        for (const printer of this.#site.printers.values())
            printer.searchText = null;
        this.#details.refresh();
        this.#showState();
        this.#drawAll();
    }

    #open(key) {
        this.#details.open(key);
    }

    #searchFor(text) {
        byId("search").value = text;
        this.#search = text;
        this.#showPane("printers");
        this.#drawAll();
    }

    #showPane(name) {
        document.documentElement.dataset.pane = name;
        for (const button of byId("tabs").children)
            button.setAttribute("aria-current", String(button.dataset.pane === name));
        this.#list.measure();
    }

    #connectControls() {
        byId("language").append(...Object.entries(LANGUAGES).map(([language, name]) => new Option(name, language)));
        byId("language").addEventListener("change", async ({ target }) => {
            const language = target.value;
            const words = await Words.load(language);
            choices.set("language", language);
            this.#words = words;
            this.#applyWords();
        });
        byId("theme").addEventListener("change", ({ target }) => {
            document.documentElement.dataset.theme = target.value;
            choices.set("theme", target.value);
        });
        byId("group").addEventListener("change", ({ target }) => {
            this.#byPlace = target.value === "place";
            choices.set("group", target.value);
            byId("list").scrollTop = 0;
            this.#drawAll();
        });
        byId("search").addEventListener("input", ({ target }) => {
            this.#search = target.value;
            this.#drawAll();
        });
        byId("classes").addEventListener("click", ({ target }) => this.#toggleClass(target.closest("button")));
        byId("tabs").addEventListener("click", ({ target }) => {
            const button = target.closest("button");
            if (button !== null)
                this.#showPane(button.dataset.pane);
        });
        byId("sign-in-form").addEventListener("submit", () => this.#signIn());
        byId("sign-out").addEventListener("click", () => this.#signOut());
        document.addEventListener("keydown", event => this.#keyPressed(event));
        this.#showPane("printers");
    }

    #toggleClass(button) {
        if (button === null)
            return;
        const name = button.dataset.class;
        if (!this.#hidden.delete(name))
            this.#hidden.add(name);
        this.#drawAll();
    }

    #keyPressed(event) {
        const isTyping = event.target.closest("input, select, dialog") !== null;
        if (event.key === "/" && !isTyping && !event.ctrlKey && !event.altKey && !event.metaKey) {
            event.preventDefault();
            this.#showPane("printers");
            byId("search").select();
        } else if (event.target === byId("search") && (event.key === "Enter" || event.key === "ArrowDown")) {
            event.preventDefault();
            this.#list.focus();
        } else if (event.target === byId("search") && event.key === "Escape") {
            this.#searchFor("");
        }
    }
}

function isSafe({ protocol, hostname }) {
    return protocol === "wss:" || hostname === "localhost" || hostname === "127.0.0.1" || hostname === "[::1]";
}

function searchWords(text) {
    return text.toLocaleLowerCase().split(/\s+/).filter(word => word !== "");
}

function searchTextOf({ name, agent, reading }, words) {
    const slots = [reading.supply, reading.ribbon1, reading.ribbon2].filter(level => level !== null);
    return [name, agent.site, agent.host, reading.model, reading.serialNumber, reading.port, reading.driver,
        words.statusTitle(reading.statusKey, reading.statusCode),
        ...slots.flatMap(level => [level.sku, level.name, level.material, level.colorName])]
        .filter(text => text !== null).join("\n").toLocaleLowerCase();
}

async function readConfig() {
    const answer = await fetch("config.json", { cache: "no-store" });
    if (!answer.ok)
        throw new Error(`config.json: ${answer.status} ${answer.statusText}`);
    const { title = "", broker = "", sites = [], user = "" } = await answer.json();
    if (typeof title !== "string" || typeof user !== "string" || typeof broker !== "string")
        throw new Error("config.json: title, broker and user must be texts");
    if (!Array.isArray(sites) || !sites.every(site => typeof site === "string" && site !== ""))
        throw new Error("config.json: sites must be a list of names");
    // Without a broker: the server that the page comes from, which passes /mqtt on to the broker.
    const scheme = location.protocol === "https:" ? "wss:" : "ws:";
    const url = new URL(broker === "" ? `${scheme}//${location.host}/mqtt` : broker);
    if (url.protocol !== "ws:" && url.protocol !== "wss:")
        throw new Error(`config.json: broker must begin with wss:// or ws://, found ${url.protocol}//`);
    return { title, broker: url.href, sites, user };
}

new Page().start();
