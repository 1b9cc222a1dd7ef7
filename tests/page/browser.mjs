// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A real Chromium without a screen, driven through its DevTools pipe.
//
//     const browser = await Browser.start();
//     const tab = await browser.open(url, { width: 1280, height: 800 });
//     await tab.run("document.title");
import { spawn } from "node:child_process";
import { mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";

// Root and most containers have no sandbox to offer, and the page is our own.
const options = [
    "--headless=new", "--no-sandbox", "--remote-debugging-pipe", "--no-first-run", "--disable-gpu", "--disable-dev-shm-usage",
    "--disable-background-networking", "--disable-component-update", "--hide-scrollbars", "--mute-audio",
];

export class Browser {
    static async start(...more) {
        const browser = new Browser();
        browser.profile = mkdtempSync(join(tmpdir(), "velm-page-"));
        browser.process = spawn("chromium", [...options, ...more, `--user-data-dir=${browser.profile}`], {
            stdio: ["ignore", "ignore", "ignore", "pipe", "pipe"],
        });
        browser.answers = new Map();
        browser.tabs = new Map();
        browser.listen();
        await browser.call("Target.getTargets");
        return browser;
    }

    listen() {
        let rest = "";
        this.process.stdio[4].setEncoding("utf8").on("data", (text) => {
            const messages = (rest + text).split("\0");
            rest = messages.pop();
            messages.forEach((message) => this.onMessage(JSON.parse(message)));
        });
        this.process.on("exit", () => this.answers.forEach(({ refuse }) => refuse(new Error("Chromium has ended"))));
    }

    onMessage(message) {
        if (message.id === undefined) {
            this.tabs.get(message.sessionId)?.onEvent(message.method, message.params);
            return;
        }
        const { answer, refuse } = this.answers.get(message.id);
        this.answers.delete(message.id);
        message.error ? refuse(new Error(message.error.message)) : answer(message.result);
    }

    call(method, params = {}, sessionId = undefined) {
        const id = (this.last = (this.last ?? 0) + 1);
        this.process.stdio[3].write(`${JSON.stringify({ id, method, params, sessionId })}\0`);
        return new Promise((answer, refuse) => this.answers.set(id, { answer, refuse }));
    }

    /** Opens a page. `look` may have width, height, ratio, media (features), touch and before (a script). */
    async open(url, look = {}) {
        const { targetId } = await this.call("Target.createTarget", { url: "about:blank", newWindow: true });
        const { sessionId } = await this.call("Target.attachToTarget", { targetId, flatten: true });
        const tab = new Tab(this, targetId, sessionId);
        this.tabs.set(sessionId, tab);
        await tab.prepare(look);
        await tab.go(url);
        return tab;
    }

    async stop() {
        const ended = new Promise((goOn) => this.process.on("exit", goOn));
        this.call("Browser.close").catch(() => {});
        await ended;
        rmSync(this.profile, { recursive: true, force: true, maxRetries: 5 });
    }
}

class Tab {
    constructor(browser, targetId, sessionId) {
        Object.assign(this, { browser, targetId, sessionId, said: [], requests: [], waits: [] });
    }

    call(method, params) {
        return this.browser.call(method, params, this.sessionId);
    }

    async prepare({ width = 1280, height = 800, ratio = 1, media = {}, touch = false, before = "" }) {
        for (const domain of ["Page", "Runtime", "Log", "Network"]) {
            await this.call(`${domain}.enable`);
        }
        await this.call("Emulation.setDeviceMetricsOverride", { width, height, deviceScaleFactor: ratio, mobile: touch });
        const features = Object.entries(media).map(([name, value]) => ({ name, value }));
        await this.call("Emulation.setEmulatedMedia", { features });
        await this.call("Emulation.setTouchEmulationEnabled", { enabled: touch });
        await this.call("Page.addScriptToEvaluateOnNewDocument", { source: before });
    }

    onEvent(method, params) {
        if (method === "Runtime.consoleAPICalled") {
            this.said.push(params.args.map((argument) => argument.value ?? argument.description).join(" "));
        } else if (method === "Runtime.exceptionThrown") {
            this.said.push(params.exceptionDetails.exception?.description ?? params.exceptionDetails.text);
        } else if (method === "Log.entryAdded") {
            this.said.push(params.entry.text);
        } else if (method === "Network.requestWillBeSent") {
            this.requests.push(params.request.url);
        }
        this.waits.filter((wait) => wait.method === method).forEach(({ goOn }) => goOn(params));
    }

    event(method) {
        return new Promise((goOn) => this.waits.push({ method, goOn }));
    }

    async go(url) {
        const loaded = this.event("Page.loadEventFired");
        await this.call("Page.navigate", { url });
        await loaded;
        await this.until("!document.getElementById('play').disabled");
    }

    /** The value of an expression, which may be a promise's. */
    async run(expression) {
        const { result, exceptionDetails } = await this.call("Runtime.evaluate", {
            expression, awaitPromise: true, returnByValue: true, userGesture: true,
        });
        if (exceptionDetails) {
            throw new Error(`${expression}: ${exceptionDetails.exception?.description ?? exceptionDetails.text}`);
        }
        return result.value;
    }

    /** Waits until an expression is true. */
    async until(expression, seconds = 60) {
        const end = Date.now() + 1000 * seconds;
        while (!(await this.run(expression))) {
            if (Date.now() > end) {
                throw new Error(`still not so after ${seconds} s: ${expression}`);
            }
            await new Promise((goOn) => setTimeout(goOn, 20));
        }
    }

    /** Presses a key as the keyboard does: "a", "Escape", "ArrowLeft". */
    async press(key, modifiers = 0) {
        const codes = { Escape: 27, Enter: 13, " ": 32, Tab: 9, ArrowLeft: 37, ArrowUp: 38, ArrowRight: 39, ArrowDown: 40 };
        const text = key.length === 1 ? key : key === "Enter" ? "\r" : undefined;
        const windowsVirtualKeyCode = codes[key] ?? (key.length === 1 ? key.toUpperCase().charCodeAt(0) : 0);
        const same = { key, modifiers, windowsVirtualKeyCode };
        await this.call("Input.dispatchKeyEvent", { type: text ? "keyDown" : "rawKeyDown", text, ...same });
        await this.call("Input.dispatchKeyEvent", { type: "keyUp", ...same });
    }

    mouse(type, x, y, more = {}) {
        return this.call("Input.dispatchMouseEvent", { type, x, y, ...more });
    }

    async click(selector) {
        const [x, y] = await this.run(`(() => { const place = document.querySelector(${JSON.stringify(selector)})
            .getBoundingClientRect(); return [place.x + place.width / 2, place.y + place.height / 2]; })()`);
        const button = { button: "left", clickCount: 1 };
        await this.mouse("mouseMoved", x, y);
        await this.mouse("mousePressed", x, y, button);
        await this.mouse("mouseReleased", x, y, button);
    }

    async touch(...places) {
        const [first, ...others] = places.map(([x, y]) => [{ x, y }]);
        await this.call("Input.dispatchTouchEvent", { type: "touchStart", touchPoints: first });
        for (const touchPoints of others) {
            await this.call("Input.dispatchTouchEvent", { type: "touchMove", touchPoints });
        }
        await this.call("Input.dispatchTouchEvent", { type: "touchEnd", touchPoints: [] });
    }

    async screenshot() {
        const { data } = await this.call("Page.captureScreenshot", { format: "png" });
        return Buffer.from(data, "base64");
    }

    close() {
        return this.browser.call("Target.closeTarget", { targetId: this.targetId });
    }
}
