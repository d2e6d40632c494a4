#!/usr/bin/env node
// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
/**
 * Asks the status service of a host which printers there are, and follows every change.
 *
 * One file without dependencies; copy it into your project. Node.js 16 or later.
 *
 *     import { StatusClient } from './vxstatus.mjs';
 *
 *     const status = new StatusClient();
 *     status.on('printerChanged', ({ reading }) => console.log(reading.name, reading.statusCode));
 *     status.on('resubscribed', async () => show(await status.call('printers')));
 *     await status.subscribe('printerChanged');
 *     show(await status.call('printers'));
 *
 * docs/ipc.md describes the messages. Run as a program, it prints the printers and then each change:
 *
 *     node vxstatus.mjs [--service N] [--for SECONDS]
 */
import { execFileSync } from 'node:child_process';
import { EventEmitter } from 'node:events';
import { lstatSync, realpathSync } from 'node:fs';
import { connect } from 'node:net';
import { isAbsolute } from 'node:path';
import { fileURLToPath } from 'node:url';

/** The number of the status service. */
export const STATUS = 3;

const LONGEST_LINE = 8 * 1024 * 1024; // twice the longest answer of a service
const FIRST_RETRY = 100;
const LAST_RETRY = 5000;
/** No signal of a service is emitted under these names, which mean something else. */
const OWN_EVENTS = new Set(['disconnected', 'error', 'newListener', 'notification',
                            'removeListener', 'resubscribed']);

/** The service has answered an error, for example -32004: there is no such printer. */
export class CallError extends Error {
    /** @param {{code: number, message: string, data?: any}} error */
    constructor(error) {
        super(`${error.message} (${error.code})`);
        this.name = 'CallError';
        this.code = error.code;
        this.data = error.data;
    }
}

/** No service answers, or it is not the user's own. */
export class NotReachable extends Error {
    constructor(message) {
        super(message);
        this.name = 'NotReachable';
    }
}

/**
 * Where the service listens: the path of a socket, or the name of a pipe on Windows.
 *
 * On Unix systems it throws NotReachable when other users could have put theirs there. On Windows the
 * name contains the user's security identifier. Node.js cannot compare the owner of the open pipe with
 * it, which is what protects against other users' processes that create a pipe of that name: where
 * other people use the same Windows computer, use another client.
 *
 * @param {number} service
 * @returns {string}
 */
export function address(service = STATUS) {
    const name = `vxipc-${service}`;
    if (process.platform === 'win32') {
        const user = execFileSync('whoami', ['/user', '/fo', 'csv', '/nh'], { encoding: 'utf8' });
        return `\\\\.\\pipe\\${name}@${user.match(/S-[0-9-]+/)[0]}`;
    }
    let folder = process.env.XDG_RUNTIME_DIR ?? '';
    if (!isAbsolute(folder))
        folder = `${process.env.TMPDIR || '/tmp'}/vxipc-${process.geteuid()}`;
    own(folder, 'isDirectory');
    const path = `${folder}/${name}`;
    own(path, 'isSocket');
    return path;
}

/** Throws unless what is there belongs to the user and nobody else may write to it. */
function own(path, isKind) {
    let entry;
    try {
        entry = lstatSync(path);
    } catch (error) {
        throw new NotReachable(`no service answers at ${path}: ${error.code}`);
    }
    if (!entry[isKind]() || entry.uid !== process.geteuid() || (entry.mode & 0o022) !== 0)
        throw new NotReachable(`${path} is not trusted: other users may have put it there`);
}

/**
 * A client of the status service.
 *
 * Emits each notification under the name of its signal, with the arguments by name, and all of them as
 * 'notification' with the name and the arguments. 'resubscribed' says that the client has connected
 * again: what was emitted in between is lost, so it is the time to ask for the state again.
 * 'disconnected' says that the connection has ended; the client connects again at growing intervals as
 * long as it has subscribed to anything.
 */
export class StatusClient extends EventEmitter {
    #service;
    #timeout;
    #socket = null;
    #connecting = null;
    #received = [];
    #receivedSize = 0;
    #number = 0;
    #calls = new Map();
    #subscribed = new Set();
    #retry = FIRST_RETRY;
    #retryTimer = null;
    #isClosed = false;

    /** @param {{service?: number, timeout?: number}} options `timeout` in milliseconds */
    constructor({ service = STATUS, timeout = 10000 } = {}) {
        super();
        this.#service = service;
        this.#timeout = timeout;
    }

    get isConnected() {
        return this.#socket !== null;
    }

    /** Connects unless it is connected, and subscribes again to what was subscribed to. */
    connect() {
        this.#isClosed = false;
        if (this.#socket !== null)
            return Promise.resolve();
        this.#connecting ??= this.#connectNow().finally(() => { this.#connecting = null; });
        return this.#connecting;
    }

    /** Ends the connection. Calls that are not answered fail. */
    close() {
        this.#isClosed = true;
        clearTimeout(this.#retryTimer);
        const socket = this.#socket;
        socket?.destroy();
        // At once: a call that follows connects again.
        this.#lose(socket, new Error('the client was closed'));
    }

    /**
     * Calls a method. `parameters` is a list (by position) or an object (by name).
     *
     * Rejects with CallError when the service answers an error, and with other errors when there is no
     * connection or no answer in time.
     */
    async call(method, parameters = []) {
        await this.connect();
        return this.#exchange(method, parameters);
    }

    /** Subscribes to signals, in addition to those before. Resolves to all that are subscribed to. */
    async subscribe(...signals) {
        const subscribed = await this.call('rpc.subscribe', signals);
        for (const signal of signals)
            this.#subscribed.add(signal);
        return subscribed;
    }

    /** Ends subscriptions. */
    async unsubscribe(...signals) {
        for (const signal of signals)
            this.#subscribed.delete(signal);
        return this.call('rpc.unsubscribe', signals);
    }

    async #connectNow() {
        clearTimeout(this.#retryTimer);
        const path = address(this.#service);
        const socket = await new Promise((resolve, reject) => {
            const attempt = connect(path);
            const timer = setTimeout(
                () => attempt.destroy(new Error('connecting took too long')), this.#timeout);
            attempt.once('connect', () => { clearTimeout(timer); resolve(attempt); });
            attempt.once('error', error => {
                clearTimeout(timer);
                reject(new NotReachable(`no service answers at ${path}: ${error.message}`));
            });
        });
        socket.removeAllListeners('error');
        this.#socket = socket;
        this.#received = [];
        this.#receivedSize = 0;
        let reason = 'the service has ended the connection';
        socket.on('error', error => { reason = error.message; });
        socket.on('data', bytes => this.#take(bytes));
        socket.on('close', () => this.#lose(socket, new Error(reason)));
        if (this.#subscribed.size > 0) {
            try {
                await this.#exchange('rpc.subscribe', [...this.#subscribed],
                                     () => this.emit('resubscribed'));
            } catch (error) {
                socket.destroy();
                throw error;
            }
        }
        this.#retry = FIRST_RETRY;
    }

    #lose(socket, error) {
        if (socket === null || socket !== this.#socket)
            return;
        this.#socket = null;
        for (const call of this.#calls.values())
            call.fail(error);
        this.emit('disconnected');
        this.#retryLater();
    }

    #retryLater() {
        if (this.#isClosed || this.#subscribed.size === 0)
            return;
        clearTimeout(this.#retryTimer);
        this.#retryTimer = setTimeout(
            () => this.connect().catch(() => this.#retryLater()), this.#retry);
        this.#retry = Math.min(2 * this.#retry, LAST_RETRY);
    }

    /** `then` is called with the answer, before anything that arrives behind it is handled. */
    #exchange(method, parameters, then = () => {}) {
        const id = ++this.#number;
        return new Promise((resolve, reject) => {
            const end = () => { clearTimeout(timer); this.#calls.delete(id); };
            const fail = error => { end(); reject(error); };
            const timer = setTimeout(
                () => fail(new Error(`no answer to ${method} within ${this.#timeout} ms`)),
                this.#timeout);
            this.#calls.set(id, {
                fail,
                answer: message => {
                    if (message.error) {
                        fail(new CallError(message.error));
                        return;
                    }
                    end();
                    resolve(message.result);
                    then();
                },
            });
            if (this.#socket === null) {
                fail(new Error('the connection has ended'));
                return;
            }
            this.#socket.write(
                JSON.stringify({ jsonrpc: '2.0', id, method, params: parameters }) + '\n');
        });
    }

    #take(bytes) {
        let begin = 0;
        for (let end = bytes.indexOf(10); end >= 0; end = bytes.indexOf(10, begin)) {
            this.#received.push(bytes.subarray(begin, end));
            const line = Buffer.concat(this.#received).toString('utf8');
            this.#received = [];
            this.#receivedSize = 0;
            begin = end + 1;
            if (line.trim() !== '')
                this.#handle(line);
        }
        if (begin < bytes.length) {
            this.#received.push(bytes.subarray(begin));
            this.#receivedSize += bytes.length - begin;
        }
        if (this.#receivedSize > LONGEST_LINE)
            this.#socket?.destroy(new Error('the service sends a line without an end'));
    }

    #handle(line) {
        let message;
        try {
            message = JSON.parse(line);
        } catch {
            message = null;
        }
        if (message?.jsonrpc !== '2.0') {
            this.#socket?.destroy(new Error('what the service sends is not JSON-RPC 2.0'));
            return;
        }
        if (!('id' in message) && typeof message.method === 'string') {
            this.emit('notification', message.method, message.params);
            if (!OWN_EVENTS.has(message.method))
                this.emit(message.method, message.params);
            return;
        }
        // An answer without a number is an error about the connection.
        const calls = message.id === null ? [...this.#calls.values()]
                                          : [this.#calls.get(message.id)];
        for (const call of calls)
            call?.answer(message);
    }
}

/** A reading in a line. Names come from drivers and other people, so they are shown escaped. */
function describe(reading) {
    const name = JSON.stringify(reading.name)
        .replace(/[^\x20-\x7e]/g, c => `\\u${c.charCodeAt(0).toString(16).padStart(4, '0')}`);
    const parts = [name, `status ${reading.statusCode}`];
    if (reading.presence === 'gone')
        parts.push('gone');
    else if (!reading.online)
        parts.push('offline');
    for (const slot of ['supply', 'ribbon1', 'ribbon2']) {
        const ratio = reading[slot]?.ratio ?? null;
        if (ratio !== null)
            parts.push(`${slot} ${Math.round(100 * ratio)}%`);
    }
    return parts.join(', ');
}

async function main(words) {
    const usage = 'usage: vxstatus.mjs [--service N] [--for SECONDS]';
    const given = { '--service': String(STATUS), '--for': '' };
    for (let i = 0; i < words.length; i += 2) {
        if (!(words[i] in given) || !(Number(words[i + 1]) >= 0)) {
            console.error(usage);
            return 2;
        }
        given[words[i]] = words[i + 1];
    }
    const client = new StatusClient({ service: Number(given['--service']) });
    const printAll = async () => {
        for (const reading of await client.call('printers'))
            console.log(describe(reading));
    };
    client.on('notification', (signal, args) =>
        console.log(args.reading ? describe(args.reading) : `${signal}: ${JSON.stringify(args)}`));
    client.on('resubscribed', () => printAll().catch(() => {}));
    // The reader has read all it wants.
    process.stdout.on('error', () => process.exit(0));
    try {
        await client.subscribe('printerChanged', 'printerAdded', 'printerGone', 'printerRenamed');
        await printAll();
    } catch (error) {
        console.error(`vxstatus: ${error.message}`);
        client.close();
        return 1;
    }
    if (given['--for'] !== '') {
        await new Promise(resolve => { setTimeout(resolve, 1000 * Number(given['--for'])); });
        client.close();
    }
    return 0;
}

if (process.argv[1] && realpathSync(process.argv[1]) === fileURLToPath(import.meta.url))
    process.exitCode = await main(process.argv.slice(2));
