// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Elements that several parts of the page show.

/// An element with a class and children; texts are texts and never markup.
export function element(name, className = "", ...children) {
    const made = document.createElement(name);
    if (className !== "")
        made.className = className;
    made.append(...children);
    return made;
}

/// Sets a text only if it differs: an unchanged text costs no layout.
export function setText(node, text) {
    if (node.textContent !== text)
        node.textContent = text;
}

const MARKS = { error: "✕", warning: "!", offline: "?", information: "i", ok: "✓" };

/// The sign of a class: its shape tells it without colours too.
export function markOf(name) {
    const mark = element("span", "mark", MARKS[name]);
    mark.dataset.class = name;
    mark.setAttribute("aria-hidden", "true");
    return mark;
}

export function setMark(mark, name) {
    if (mark.dataset.class === name)
        return;
    mark.dataset.class = name;
    mark.textContent = MARKS[name];
}

/// How urgent a level is: marks of 10 and 5 percent, as everywhere.
export function urgencyOf(level) {
    if (level === null || level.state === "notKnown")
        return "unknown";
    if (level.state === "empty")
        return "empty";
    if (level.ratio === null)
        return "unknown";
    return level.ratio <= 0.05 ? "last" : level.ratio <= 0.1 ? "low" : "fine";
}

/// The level as one short word.
export function levelWord(words, level) {
    switch (urgencyOf(level)) {
    case "empty":
        return words.text("level.empty");
    case "unknown":
        return "–";
    default:
        return words.percent(level.ratio);
    }
}

/// The background in the colours of what is loaded; panels of several colours are stripes.
function fillOf(colors) {
    if (colors.length < 2)
        return colors[0] ?? "";
    const width = 100 / colors.length;
    const stops = colors.map((colour, place) => `${colour} ${place * width}% ${(place + 1) * width}%`);
    return `repeating-linear-gradient(90deg, ${stops.join(", ")}) 0 0 / 1.6em 100%`;
}

export function bar() {
    const made = element("span", "bar", element("span", "fill"));
    made.setAttribute("aria-hidden", "true");
    return made;
}

export function setBar(made, level) {
    const urgency = urgencyOf(level);
    if (made.dataset.urgency !== urgency)
        made.dataset.urgency = urgency;
    const fill = made.firstChild;
    const ratio = urgency === "unknown" || urgency === "empty" ? 0 : level.ratio;
    const width = `${Math.round(ratio * 1000) / 10}%`;
    if (fill.style.width !== width)
        fill.style.width = width;
    const background = level === null ? "" : fillOf(level.colors);
    if (made.background !== background) {
        made.background = background;
        fill.style.background = background;
    }
}

/// Where a printer is: the agent's host, and the site if there are several.
export function placeOf(agent, withSite, shown) {
    return withSite ? `${shown(agent.site)} › ${shown(agent.host)}` : shown(agent.host);
}
