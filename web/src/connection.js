// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The connection to the broker: MQTT over WebSockets, tried again for as long as the page is open.

import { connect } from "../vendor/mqtt.js";
import { filters } from "./topics.js";

const FIRST_WAIT = 500;
const LONGEST_WAIT = 15000;
const CONNECT_LIMIT = 10000;
const KEEPALIVE = 15; // seconds
// A broker sends what it has retained at once after a subscription, and does not say when it has sent all.
const QUIET = 3000;

// By MQTT 3.1.1, 3.2.2.3: bad user name or password, and not authorised.
const REFUSED = new Set([4, 5]);

export class Connection {
    #options;
    #handlers;
    #client = null;
    #failures = 0;
    #timer = null;
    #quietTimer = null;
    #isWanted = false;

    /// `options`: broker (URL), sites, user, password. `handlers`: message(topic, payload), state(name, detail)
    /// with connecting, live, waiting, refused; begun() and settled() around what the broker has retained.
    constructor(handlers) {
        this.#handlers = handlers;
        addEventListener("online", () => this.#hurry());
        document.addEventListener("visibilitychange", () => {
            if (!document.hidden)
                this.#hurry();
        });
    }

    start(options) {
        this.stop();
        this.#options = options;
        this.#isWanted = true;
        this.#failures = 0;
        this.#open();
    }

    stop() {
        this.#isWanted = false;
        clearTimeout(this.#timer);
        this.#drop();
    }

    /// Does not wait longer when the network is back or somebody looks at the page again.
    #hurry() {
        if (this.#isWanted && this.#client === null) {
            clearTimeout(this.#timer);
            this.#open();
        }
    }

    #drop() {
        clearTimeout(this.#quietTimer);
        const client = this.#client;
        this.#client = null;
        if (client !== null) {
            client.removeAllListeners();
            client.on("error", () => {});
            client.end(true);
        }
    }

    #open() {
        this.#handlers.state("connecting");
        let client;
        try {
            client = connect(this.#options.broker, {
                protocolVersion: 4, clean: true, keepalive: KEEPALIVE, connectTimeout: CONNECT_LIMIT,
                reconnectPeriod: 0, resubscribe: false, timerVariant: "native",
                clientId: `vxprint-page-${crypto.getRandomValues(new Uint32Array(2)).join("-")}`,
                ...(this.#options.user ? { username: this.#options.user, password: this.#options.password } : {}),
            });
        } catch (error) {
            this.#failed(error);
            return;
        }
        this.#client = client;
        let reason = null;
        client.on("connect", () => this.#subscribe(client));
        client.on("message", (topic, payload, packet) => {
            if (packet.retain)
                this.#waitForQuiet();
            this.#handlers.message(topic, payload);
        });
        client.on("error", error => { reason = error; });
        client.on("close", () => {
            if (client === this.#client)
                this.#failed(reason);
        });
    }

    #subscribe(client) {
        this.#handlers.begun();
        client.subscribe(filters(this.#options.sites), { qos: 0 }, (error, granted) => {
            if (client !== this.#client)
                return;
            if (error || granted.some(grant => grant.qos > 2)) {
                this.#drop();
                this.#isWanted = false;
                this.#handlers.state("refused", "subscription");
                return;
            }
            this.#failures = 0;
            this.#handlers.state("live");
            this.#waitForQuiet();
        });
    }

    #waitForQuiet() {
        clearTimeout(this.#quietTimer);
        this.#quietTimer = setTimeout(() => this.#handlers.settled(), QUIET);
    }

    #failed(reason) {
        this.#drop();
        if (!this.#isWanted)
            return;
        if (REFUSED.has(reason?.code)) {
            this.#isWanted = false;
            this.#handlers.state("refused", "password");
            return;
        }
        const longest = Math.min(LONGEST_WAIT, FIRST_WAIT * 2 ** this.#failures++);
        // Pages that lost one broker together do not come back together.
        const wait = longest / 2 + Math.random() * longest / 2;
        this.#handlers.state("waiting");
        this.#timer = setTimeout(() => this.#open(), wait);
    }
}
