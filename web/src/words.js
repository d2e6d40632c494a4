// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The words of the page in the language of its reader, and numbers and times as that language writes them.

export const LANGUAGES = {
    de: "Deutsch",
    en: "English",
    es: "Español",
    fr: "Français",
    it: "Italiano",
    ja: "日本語",
    zh_CN: "简体中文",
};

// Control and format characters, separators of lines, halves of pairs and noncharacters.
const UNSEEN = /[\p{Cc}\p{Cf}\p{Cs}\p{Zl}\p{Zp}\p{Noncharacter_Code_Point}]/gu;

/// A text from elsewhere on one line, which cannot turn the direction of writing or look like another:
/// what cannot be seen is written as JSON escapes.
export function shown(text) {
    return text.replace(UNSEEN, unseen => Array.from({ length: unseen.length },
        (_, place) => `\\u${unseen.charCodeAt(place).toString(16).padStart(4, "0")}`).join(""));
}

/// The first language among those of the page that the reader understands.
export function preferredLanguage(wanted) {
    for (const tag of wanted) {
        const [language] = tag.toLowerCase().split(/[-_]/);
        const found = Object.keys(LANGUAGES).find(known => known.split("_")[0] === language);
        if (found !== undefined)
            return found;
    }
    return "en";
}

function isKnown(tag) {
    try {
        return Intl.DateTimeFormat.supportedLocalesOf([tag]).length > 0;
    } catch {
        return false;
    }
}

async function objectAt(file) {
    const answer = await fetch(file);
    if (!answer.ok)
        throw new Error(`${file}: ${answer.status} ${answer.statusText}`);
    return answer.json();
}

export class Words {
    #texts;
    #statuses;
    #plural;
    #percent;
    #number;
    #clock;
    #dayAndClock;
    #units = new Map();

    constructor(language, texts, statuses) {
        this.language = language;
        // With the reader's country, which decides about the clock and the marks in numbers.
        this.tag = navigator.languages.find(tag => preferredLanguage([tag]) === language && isKnown(tag)) ??
            language.replace("_", "-");
        this.#texts = texts;
        this.#statuses = statuses;
        this.#plural = new Intl.PluralRules(this.tag);
        this.#percent = new Intl.NumberFormat(this.tag, { style: "percent" });
        this.#number = new Intl.NumberFormat(this.tag);
        this.#clock = new Intl.DateTimeFormat(this.tag, { hour: "2-digit", minute: "2-digit" });
        this.#dayAndClock = new Intl.DateTimeFormat(this.tag,
            { day: "numeric", month: "short", hour: "2-digit", minute: "2-digit" });
    }

    static async load(language) {
        const [texts, statuses] = await Promise.all(
            [objectAt(`texts/${language}.json`), objectAt(`texts/status.${language}.json`)]);
        return new Words(language, texts, statuses);
    }

    /// The text of a key, with {name} replaced by values. Where a text has plural forms, `n` chooses.
    text(key, values = {}) {
        let text = this.#texts[key];
        if (text === undefined)
            throw new Error(`the page has no text "${key}"`);
        if (typeof text === "object")
            text = text[this.#plural.select(values.n)] ?? text.other;
        return text.replace(/\{(\w+)\}/g, (_, name) => {
            const value = values[name];
            return typeof value === "number" ? this.#number.format(value) : value;
        });
    }

    #status(key) {
        return Object.hasOwn(this.#statuses, key) ? this.#statuses[key] : this.#statuses.printer_error;
    }

    statusTitle(key, code) {
        return this.#status(key).title.replaceAll("{code}", String(code));
    }

    statusRemedy(key, code) {
        return this.#status(key).remedy.replaceAll("{code}", String(code));
    }

    isStatus(key) {
        return key === "printer_error" || Object.hasOwn(this.#statuses, key);
    }

    /// Rounded up, as everywhere: what is not empty is not shown as 0 %.
    percent(ratio) {
        return this.#percent.format(Math.ceil(Math.round(ratio * 1e6) / 1e4) / 100);
    }

    #unit(unit, display) {
        const name = `${unit} ${display}`;
        let format = this.#units.get(name);
        if (format === undefined) {
            format = new Intl.NumberFormat(this.tag,
                { style: "unit", unit, unitDisplay: display, maximumFractionDigits: 1 });
            this.#units.set(name, format);
        }
        return format;
    }

    meters(value) {
        return this.#unit("meter", "short").format(value < 10 ? value : Math.round(value));
    }

    static #scaleOf(seconds) {
        if (seconds < 90 * 60)
            return ["minute", 60];
        return seconds < 48 * 3600 ? ["hour", 3600] : ["day", 86400];
    }

    /// A time span in its largest sensible unit.
    span(seconds) {
        const [unit, length] = Words.#scaleOf(seconds);
        return this.#unit(unit, unit === "day" ? "long" : "short").format(Math.round(seconds / length));
    }

    spanRange(least, most) {
        const [unit, length] = Words.#scaleOf(most);
        const ends = [least, most].map(seconds => Math.round(seconds / length));
        return this.#unit(unit, unit === "day" ? "long" : "short").formatRange(...ends);
    }

    /// The time of day; with the day unless it is today.
    moment(time, now = Date.now()) {
        const isToday = new Date(time).toDateString() === new Date(now).toDateString();
        return (isToday ? this.#clock : this.#dayAndClock).format(time);
    }

    /// What happened, in the reader's language: by the event's key, or else in the agent's English.
    event(event) {
        if (event.kind === "status" && event.code !== null && this.isStatus(event.key))
            return this.statusTitle(event.key, event.code);
        const slot = event.slot && this.text(`slot.${event.slot}`);
        const values = {
            slot: slot ?? "",
            name: shown(event.name ?? ""),
            left: event.ratio === null ? "" : this.percent(event.ratio),
            reason: shown(event.reason ?? ""),
            version: shown(event.version ?? ""),
            old: shown(event.oldName ?? ""),
            n: event.lost ?? 0,
        };
        const key = this.#eventKey(event, values);
        if (key !== null)
            return this.text(key, values);
        return shown(event.text ?? event.key);
    }

    #eventKey({ kind, key, lost, ratio }, values) {
        if ((kind === "supply" || kind === "ribbon") && values.slot !== "") {
            const what = key.replace(/^(supply|ribbon)_/, "");
            if (what === "loaded" && values.name !== "")
                return "event.loaded";
            return what === "empty" || what === "not_in_catalogue" ? `event.${what}` : null;
        }
        if (kind === "level" && values.slot !== "" && ratio !== null)
            return "event.level";
        if (kind === "printer_renamed" && values.old !== "")
            return "event.printer_renamed";
        if (kind === "firmware" && key === "firmware_version" && values.version !== "")
            return "event.firmware_version";
        if (kind === "events_lost" && lost !== null)
            return "event.events_lost";
        const plain = ["printer_added", "printer_gone", "spooler_stopped", "spooler_running", "command_failed",
            "firmware_update_failed"];
        return plain.includes(key) ? `event.${key}` : null;
    }
}

/// Puts the words into the elements that say which text they hold.
export function fillTexts(words, root) {
    root.documentElement.lang = words.tag;
    for (const element of root.querySelectorAll("[data-text]"))
        element.textContent = words.text(element.dataset.text);
    for (const element of root.querySelectorAll("[data-label]"))
        element.setAttribute("aria-label", words.text(element.dataset.label));
    for (const element of root.querySelectorAll("[data-placeholder]"))
        element.placeholder = words.text(element.dataset.placeholder);
}
