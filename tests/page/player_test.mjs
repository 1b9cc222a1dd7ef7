// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// player_test.mjs PAGE: the page as its viewer meets it, in real time: keys, mouse, touch, lists, links, full screen, sound,
// a tab that is hidden; and what it must not do: speak on the console, ask the network, be large.
import { readFileSync } from "node:fs";
import { createServer } from "node:http";
import { pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";
import { Browser } from "./browser.mjs";
import { check, finish } from "./check.mjs";

const [page] = process.argv.slice(2);
const url = pathToFileURL(page).href;
const mostBytes = 700_000;
const mostSent = 300_000;

// The pictures that were shown, the samples that the demo made, and those that the worklet played, as another one hears them.
// The page's patience, with the bar and with a line that it says, ends when the test says so, however slow the machine is.
const watch = `
    const seen = { pictures: 0, made: [], heard: [], patience: [] };
    const by = (id) => document.getElementById(id);
    const scene = () => by("scene-name").textContent;
    const isPressed = (button) => by(button).getAttribute("aria-pressed") === "true";
    const isAwake = () => document.body.classList.contains("awake");
    const endPatience = () => seen.patience.splice(0).forEach((act) => act());
    const later = setTimeout;
    setTimeout = (act, millis) => millis >= 2500 ? void seen.patience.push(act) : later(act, millis);
    const put = CanvasRenderingContext2D.prototype.putImageData;
    CanvasRenderingContext2D.prototype.putImageData = function (image, ...place) {
        ++seen.pictures;
        seen.last = new Uint32Array(image.data.buffer.slice(image.data.byteOffset, image.data.byteOffset + image.data.length));
        put.call(this, image, ...place);
    };
    const post = MessagePort.prototype.postMessage;
    MessagePort.prototype.postMessage = function (data, ...more) {
        if (data instanceof Int16Array) { seen.made.push(...data); }
        post.call(this, data, ...more);
    };
    const add = AudioWorklet.prototype.addModule;
    AudioWorklet.prototype.addModule = async function (module) {
        await add.call(this, "data:text/javascript," + encodeURIComponent(
            "registerProcessor('ear', class extends AudioWorkletProcessor { process([[channel]]) {" +
            " if (channel) { this.port.postMessage(channel.slice()); } return true; } })"));
        return add.call(this, module);
    };
    const connect = AudioNode.prototype.connect;
    AudioNode.prototype.connect = function (to, ...more) {
        if (this instanceof AudioWorkletNode) {
            const ear = new AudioWorkletNode(this.context, "ear");
            ear.port.onmessage = ({ data }) => seen.heard.push(...data);
            connect.call(this, ear);
        }
        return connect.call(this, to, ...more);
    };`;

const sleep = (millis) => new Promise((goOn) => setTimeout(goOn, millis));

/** The first sample that was not heard as it was made, or -1. A speaker that runs dry on a busy machine puts silence between. */
const firstWrong = (tab) => tab.run(`(() => {
    const made = seen.made.filter((sample) => sample !== 0);
    return seen.heard.filter((sample) => sample !== 0).findIndex((sample, i) => sample !== made[i] / 32768); })()`);

/** Waits for so many pictures more. */
async function goesOn(tab, pictures = 4) {
    await tab.until(`seen.pictures >= ${(await tab.run("seen.pictures")) + pictures}`);
}

/** Waits until a count stays the same for half a second: what was on its way arrives. False when it never does. */
async function standsStill(tab, count = "seen.pictures") {
    for (let tries = 0; tries < 60; ++tries) {
        const before = await tab.run(count);
        await sleep(500);
        if ((await tab.run(count)) === before) {
            return true;
        }
    }
    return false;
}

async function play(browser, address = "", look = {}) {
    const tab = await browser.open(url + address, { before: watch, ...look });
    await tab.click("#play");
    await goesOn(tab);
    return tab;
}

/** Clicks a button, or presses a key, and waits for what follows. */
async function act(tab, what, follows) {
    await (what.startsWith("#") ? tab.click(what) : tab.press(what));
    await tab.until(follows);
}

const tests = {
    async "nothing moves before Play, and the warning comes first"(browser) {
        for (const motion of ["reduce", "no-preference"]) {
            const tab = await browser.open(url, { before: watch, media: { "prefers-reduced-motion": motion } });
            const [warning, start] = await tab.run("['warning', 'play'].map((id) => by(id).getBoundingClientRect().top)");
            check(warning > 0 && warning < start, `${motion}: the warning is at ${warning}, Play at ${start}`);
            await sleep(500);
            check((await tab.run("seen.pictures")) === 0, `${motion}: it moves`);
            check((await tab.run("document.getAnimations().length")) === 0, `${motion}: something is animated`);
            await tab.close();
        }
    },

    async "the speaker plays what the demo made"(browser) {
        const tab = await play(browser, "#only=default");
        await tab.until("seen.heard.filter((sample) => sample !== 0).length > 44100", 60);
        check((await tab.run("seen.heard.findIndex((sample) => sample !== 0)")) > 44100 / 4, "it begins without a silence");
        check((await firstWrong(tab)) < 0, `sample ${await firstWrong(tab)} differs`);
        return tab;
    },

    async "keys act as in the window"(browser) {
        const tab = await play(browser, "#extra-9");
        check((await tab.run("scene()")) === "extra-9", `it begins with ${await tab.run("scene()")}`);
        await act(tab, "p", "isPressed('pause')");
        check(await standsStill(tab), "p does not pause");
        await act(tab, "p", "!isPressed('pause')");
        await goesOn(tab);
        await act(tab, "6", "by('rate').textContent === '60'");
        await act(tab, "5", "by('rate').textContent === '30'");
        await act(tab, "ArrowRight", "scene() === 'extra-8'");
        await act(tab, "ArrowLeft", "scene() === 'extra-9' && location.hash === '#extra-9'");
        await act(tab, "-", "by('say').textContent === 'volume 95 %'");
        await act(tab, "h", "by('key-list').open");
        await act(tab, "h", "!by('key-list').open");
        await goesOn(tab, 60); // the scene has begun: Space in the fade before it would end that alone
        await act(tab, " ", "scene() === 'extra-8'");
        await act(tab, "Escape", "!document.body.classList.contains('playing')");
        await tab.click("#play");
        await goesOn(tab);
        return tab;
    },

    async "the pointer is over the picture, in its pixels"(browser) {
        const tab = await play(browser, "#only=extra-9");
        const [x, y] = await tab.run(`(() => { const place = by("picture").getBoundingClientRect();
            return [place.x + place.width * 0.75, place.y + place.height * 0.25]; })()`);
        await tab.mouse("mouseMoved", x, y);
        // The arrow is of a blue nearly white.
        await tab.until(`(() => { let count = 0;
            for (let dy = 0; dy < 16; ++dy) { for (let dx = 0; dx < 16; ++dx) {
                const pixel = seen.last[(64 + dy) * 256 + 192 + dx] & 0xFFFFFF;
                count += (pixel >> 16) > 200 && (pixel >> 8 & 255) > 150 ? 1 : 0; } } return count > 20; })()`);
        return tab;
    },

    async "buttons, list and link"(browser) {
        const tab = await play(browser);
        check(await tab.run("scene() === 'extra-4' && location.hash === '#extra-4'"), "the tour begins elsewhere");
        await act(tab, "#scene", "by('scene-list').open");
        const listed = await tab.run("[...document.querySelectorAll('#scene-list li button')].map((item) => item.innerText)");
        check(listed.length === 16 && listed.every((text) => text.length > 25), `the list: ${listed}`);
        await act(tab, "#scene-list li:nth-child(5) button", "scene() === 'extra-2' && location.hash === '#extra-2'");
        await tab.run("location.hash = '#particles'");
        await tab.until("scene() === 'particles'");
        await act(tab, "#previous", "scene() === 'extra-11'");
        await act(tab, "#rate", "by('rate').textContent === '60'");
        await act(tab, "#pause", "isPressed('pause')");
        await act(tab, "#next", "scene() === 'particles' && !isPressed('pause')");
        await act(tab, "#full", "document.fullscreenElement !== null");
        await act(tab, "#full", "document.fullscreenElement === null");
        await act(tab, "#mute", "page.speaker.volume.gain.value === 0");
        await act(tab, "#mute", "page.speaker.volume.gain.value === 1");
        await tab.mouse("mouseMoved", 200, 200);
        await tab.until("endPatience() || !isAwake()");
        await tab.mouse("mouseMoved", 210, 200);
        await tab.until("isAwake()");
        return tab;
    },

    async "everything works from the keyboard"(browser) {
        const tab = await browser.open(url, { before: watch });
        await act(tab, "Tab", "document.activeElement.id === 'play'");
        await tab.press("Enter");
        await goesOn(tab);
        const reached = [];
        for (let i = 0; i < 9; ++i) {
            await tab.press("Tab");
            reached.push(await tab.run("document.activeElement.id"));
            check(await tab.run("endPatience() || isAwake()"), "the bar sleeps while it has the keys");
        }
        check(reached.join() === "scene,previous,pause,next,mute,volume,rate,keys,full", `Tab reaches ${reached}`);
        await tab.run("by('mute').focus()");
        await act(tab, "Enter", "isPressed('mute')");
        return tab;
    },

    async "a page without sound says so and plays on"(browser) {
        const tab = await play(browser, "", { before: `${watch} AudioContext = undefined;` });
        check((await tab.run("by('say').textContent")).startsWith("No sound"), "it says nothing");
        return tab;
    },

    async "a tap shows the bar, a swipe goes on"(browser) {
        const tab = await play(browser, "", { width: 360, height: 740, ratio: 3, touch: true });
        await tab.until("endPatience() || !isAwake()");
        await tab.touch([180, 200]);
        await tab.until("isAwake()");
        const right = await tab.run("Math.max(...[...by('bar').querySelectorAll('*')].map((e) => e.getBoundingClientRect().right))");
        check(right <= 360, `the bar ends at ${right}`);
        await tab.touch([180, 200]);
        await tab.until("!isAwake()");
        await tab.touch([300, 200], [200, 205], [100, 210]);
        await tab.until("scene() === 'extra-10'");
        await tab.touch([100, 200], [200, 205], [300, 210]);
        await tab.until("scene() === 'extra-4'");
        const place = await tab.run("by('picture').getBoundingClientRect().toJSON()");
        check(Math.round(place.width * 3) % 256 === 0 && place.width > 300, `the picture is ${place.width} wide`);
        check(Math.abs(place.left + place.right - 360) < 1, "the picture is not in the middle");
        return tab;
    },

    async "a hidden tab rests, and goes on in step"(browser) {
        const tab = await play(browser);
        await tab.until("seen.heard.length > 44100");
        await tab.call("Emulation.setFocusEmulationEnabled", { enabled: false });
        const { windowId } = await browser.call("Browser.getWindowForTarget", { targetId: tab.targetId });
        await browser.call("Browser.setWindowBounds", { windowId, bounds: { windowState: "minimized" } });
        await tab.until("document.hidden && page.speaker.context.state === 'suspended'");
        check(await standsStill(tab), "it moves while nobody sees it");
        check(await standsStill(tab, "seen.heard.length"), "it is heard while nobody sees it");
        const heard = await tab.run("seen.heard.length");
        await browser.call("Browser.setWindowBounds", { windowId, bounds: { windowState: "normal" } });
        await goesOn(tab);
        await tab.until(`seen.heard.length > ${heard} + 44100`);
        check((await firstWrong(tab)) < 0, `the sound lost its step at sample ${await firstWrong(tab)}`);
        return tab;
    },

    async "it plays from a server, which is asked for the page alone"(browser) {
        const asked = [];
        const server = createServer((request, response) => {
            asked.push(request.url);
            response.setHeader("Content-Type", "text/html").end(readFileSync(page));
        }).listen(0, "127.0.0.1");
        await new Promise((goOn) => server.on("listening", goOn));
        const tab = await browser.open(`http://127.0.0.1:${server.address().port}/`, { before: watch });
        await tab.click("#play");
        await tab.until("seen.heard.length > 44100");
        check(asked.join() === "/", `the server was asked for ${asked}`);
        server.close();
        return tab;
    },
};

const bytes = readFileSync(page);
const sent = gzipSync(bytes, { level: 6 }).length;
console.log(`${bytes.length} bytes, ${sent} as gzip`);
check(bytes.length <= mostBytes && sent <= mostSent, "the page is too large");

const browser = await Browser.start("--autoplay-policy=user-gesture-required");
for (const [name, test] of Object.entries(tests)) {
    const tab = await test(browser).catch((problem) => check(false, `${name}: ${problem.message}`));
    const outside = tab?.requests.filter((request) => !/^(data:|blob:|file:|http:..127)/.test(request)) ?? [];
    check(!tab?.said.length, `${name}: the console says ${tab?.said}`);
    check(outside.length === 0, `${name}: it asks for ${outside}`);
    await tab?.close();
    console.log(name);
}
await browser.stop();
finish();
