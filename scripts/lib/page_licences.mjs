// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Prints the licences of the packages that the page's bundle may contain: those that mqtt depends on, by the
// lock file in the current folder. Fails if one has no licence file or a licence that is not known to suit.

import fs from "node:fs";
import path from "node:path";

const SUITABLE = new Set(["MIT", "ISC", "0BSD", "BSD-2-Clause", "BSD-3-Clause", "Apache-2.0"]);

const lock = JSON.parse(fs.readFileSync("package-lock.json", "utf8"));
const parts = [];
for (const [folder, entry] of Object.entries(lock.packages)) {
    // Types are for compilers only.
    if (folder === "" || entry.dev || folder.includes("/@types/"))
        continue;
    const name = folder.replace(/^.*node_modules\//, "");
    const declared = JSON.parse(fs.readFileSync(path.join(folder, "package.json"), "utf8"));
    if (!SUITABLE.has(declared.license))
        throw new Error(`${name} has the licence ${JSON.stringify(declared.license)}, which is not known to suit`);
    const file = fs.readdirSync(folder).find(entryName => /^(licen[cs]e|copying)(\.|-|$)/i.test(entryName));
    const text = file ? fs.readFileSync(path.join(folder, file), "utf8")
        : `(The package contains no licence text. Its author: ${authorOf(declared)})`;
    parts.push(`${name} ${entry.version}: ${declared.license}\n\n${text}`);
}

function authorOf(declared) {
    const author = declared.author ?? "not named";
    return typeof author === "string" ? author : author.name;
}

const rule = "-".repeat(100);
const text = ["mqtt.js contains these packages, each under its own licence.", ...parts].join(`\n${rule}\n`);
process.stdout.write(text.split(/\r?\n/).map(line => line.trimEnd()).join("\n").trimEnd() + "\n");
