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
const watch = `
    const seen = { pictures: 0, made: [], heard: [] };
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

const scene = (tab) => tab.run("document.getElementById('scene-name').textContent");
const isPressed = (tab, button) => tab.run(`document.getElementById("${button}").getAttribute("aria-pressed") === "true"`);
const sleep = (millis) => new Promise((goOn) => setTimeout(goOn, millis));

/** The first sample that was not heard as it was made, or -1. A speaker that runs dry on a busy machine puts silence between. */
const firstWrong = (tab) => tab.run(`(() => {
    const made = seen.made.filter((sample) => sample !== 0);
    return seen.heard.filter((sample) => sample !== 0).findIndex((sample, i) => sample !== made[i] / 32768); })()`);

async function play(browser, address = "", look = {}) {
    const tab = await browser.open(url + address, { before: watch, ...look });
    await tab.click("#play");
    await tab.until("seen.pictures > 3");
    return tab;
}

/** Waits for a scene that was asked for to follow the fade of the one before. */
async function beginning(tab) {
    const shown = await tab.run("seen.pictures");
    await tab.until(`seen.pictures > ${shown} + 30`);
}

/** True when the pictures stand still, or move on. */
async function moves(tab) {
    const before = await tab.run("seen.pictures");
    await sleep(500);
    return (await tab.run("seen.pictures")) > before;
}

const tests = {
    async "nothing moves before Play, and the warning is there"(browser) {
        for (const motion of ["reduce", "no-preference"]) {
            const tab = await browser.open(url, { before: watch, media: { "prefers-reduced-motion": motion } });
            const top = (id) => tab.run(`document.getElementById("${id}").getBoundingClientRect().top`);
            check((await top("warning")) < (await top("play")), `${motion}: the warning stands behind Play`);
            check((await top("warning")) > 0, `${motion}: the warning is not seen`);
            check(motion !== "reduce" || (await top("warning")) < (await top("logo")), "the warning does not come first");
            await sleep(300);
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
        check((await scene(tab)) === "extra-9", `it begins with ${await scene(tab)}`);
        await tab.press("p");
        await tab.until("document.getElementById('pause').getAttribute('aria-pressed') === 'true'");
        await sleep(100);
        check(!(await moves(tab)), "p does not pause");
        await tab.press("p");
        await tab.until("document.getElementById('pause').getAttribute('aria-pressed') === 'false'");
        check(await moves(tab), "p does not go on");
        await tab.press("6");
        await tab.until("document.getElementById('rate').textContent === '60'");
        await tab.press("5");
        await tab.until("document.getElementById('rate').textContent === '30'");
        await tab.press("ArrowRight");
        await tab.until("document.getElementById('scene-name').textContent === 'extra-8'");
        await tab.press("ArrowLeft");
        await tab.until("document.getElementById('scene-name').textContent === 'extra-9' && location.hash === '#extra-9'");
        await tab.press("-");
        check((await tab.run("document.getElementById('say').textContent")) === "volume 95 %", "- is not quieter");
        await tab.press("h");
        check(await tab.run("document.getElementById('key-list').open"), "h shows no keys");
        await tab.press("h");
        check(!(await tab.run("document.getElementById('key-list').open")), "h does not hide the keys");
        await tab.press("Escape");
        await tab.until("!document.body.classList.contains('playing')");
        await tab.click("#play");
        const shown = await tab.run("seen.pictures");
        await tab.until(`seen.pictures > ${shown} + 3`);
        return tab;
    },

    async "the pointer is over the picture, in its pixels"(browser) {
        const tab = await play(browser, "#only=extra-9");
        const [x, y] = await tab.run(`(() => { const place = document.getElementById("picture").getBoundingClientRect();
            return [place.x + place.width * 0.75, place.y + place.height * 0.25]; })()`);
        await tab.mouse("mouseMoved", x, y);
        await sleep(300);
        await tab.press("p");
        await sleep(300);
        // The arrow is of a blue nearly white.
        const near = await tab.run(`(() => { let count = 0;
            for (let dy = 0; dy < 16; ++dy) { for (let dx = 0; dx < 16; ++dx) {
                const pixel = seen.last[(64 + dy) * 256 + 192 + dx] & 0xFFFFFF;
                count += (pixel >> 16) > 200 && (pixel >> 8 & 255) > 150 ? 1 : 0; } } return count; })()`);
        check(near > 20, `no arrow at the pointer: ${near} pixels`);
        return tab;
    },

    async "buttons, list and link"(browser) {
        const tab = await play(browser);
        check((await scene(tab)) === "extra-4" && (await tab.run("location.hash")) === "#extra-4", "the tour begins elsewhere");
        await tab.click("#scene");
        const listed = await tab.run("[...document.querySelectorAll('#scene-list li button')].map((item) => item.innerText)");
        check(listed.length === 16 && listed.every((text) => text.length > 25), `the list: ${listed}`);
        await tab.click("#scene-list li:nth-child(5) button");
        await tab.until("document.getElementById('scene-name').textContent === 'extra-2' && location.hash === '#extra-2'");
        await tab.run("location.hash = '#particles'");
        await tab.until("document.getElementById('scene-name').textContent === 'particles'");
        await tab.click("#previous");
        await tab.until("document.getElementById('scene-name').textContent === 'extra-11'");
        await tab.click("#rate");
        await tab.until("document.getElementById('rate').textContent === '60'");
        await tab.click("#pause");
        await tab.until("document.getElementById('pause').getAttribute('aria-pressed') === 'true'");
        await tab.click("#next");
        await tab.until("document.getElementById('scene-name').textContent === 'particles'");
        await tab.click("#full");
        await tab.until("document.fullscreenElement !== null");
        await tab.click("#full");
        await tab.until("document.fullscreenElement === null");
        await beginning(tab);
        await tab.press(" ");
        await tab.until("document.getElementById('scene-name').textContent === 'extra-7'");
        await sleep(3500);
        await tab.mouse("mouseMoved", 200, 200);
        check(await tab.run("document.body.classList.contains('awake')"), "the mouse does not wake the bar");
        await tab.until("!document.body.classList.contains('awake')");
        return tab;
    },

    async "everything works from the keyboard"(browser) {
        const tab = await browser.open(url, { before: watch });
        await tab.press("Tab");
        check((await tab.run("document.activeElement.id")) === "play", "Play is not first");
        await tab.press("Enter");
        await tab.until("seen.pictures > 3");
        const reached = [];
        for (let i = 0; i < 9; ++i) {
            await tab.press("Tab");
            reached.push(await tab.run("document.activeElement.id"));
            check(await tab.run("document.body.classList.contains('awake')"), "the bar sleeps while it has the keys");
        }
        check(reached.join() === "scene,previous,pause,next,mute,volume,rate,keys,full", `Tab reaches ${reached}`);
        await tab.run("document.getElementById('mute').focus()");
        await tab.press("Enter");
        check(await isPressed(tab, "mute"), "Enter does not press");
        return tab;
    },

    async "mute is silent at once, and a page without sound plays on"(browser) {
        const tab = await play(browser);
        await tab.click("#mute");
        check((await tab.run("page.speaker.volume.gain.value")) === 0, "mute is not silent");
        await tab.click("#mute");
        check((await tab.run("page.speaker.volume.gain.value")) === 1, "it stays silent");
        await tab.close();
        const silent = await play(browser, "", { before: `${watch} AudioContext = undefined;` });
        check((await silent.run("document.getElementById('say').textContent")).startsWith("No sound"), "it says nothing");
        check(await moves(silent), "it does not play");
        return silent;
    },

    async "a tap shows the bar, a swipe goes on"(browser) {
        const tab = await play(browser, "", { width: 360, height: 740, ratio: 3, touch: true });
        await tab.until("!document.body.classList.contains('awake')");
        await tab.touch([180, 200]);
        check(await tab.run("document.body.classList.contains('awake')"), "a tap shows nothing");
        await tab.touch([180, 200]);
        check(!(await tab.run("document.body.classList.contains('awake')")), "a second tap does not hide it");
        await tab.touch([300, 200], [200, 205], [100, 210]);
        await tab.until("document.getElementById('scene-name').textContent === 'extra-10'");
        await tab.touch([100, 200], [200, 205], [300, 210]);
        await tab.until("document.getElementById('scene-name').textContent === 'extra-4'");
        const place = await tab.run("document.getElementById('picture').getBoundingClientRect().toJSON()");
        check(Math.round(place.width * 3) % 256 === 0 && place.width > 300, `the picture is ${place.width} wide`);
        check(Math.abs(place.left + place.right - 360) < 1, "the picture is not in the middle");
        return tab;
    },

    async "a hidden tab rests, and goes on in step"(browser) {
        const tab = await play(browser);
        await sleep(1000);
        await tab.call("Emulation.setFocusEmulationEnabled", { enabled: false });
        const { windowId } = await browser.call("Browser.getWindowForTarget", { targetId: tab.targetId });
        await browser.call("Browser.setWindowBounds", { windowId, bounds: { windowState: "minimized" } });
        await tab.until("document.hidden");
        await sleep(300);
        check(!(await moves(tab)), "it moves while nobody sees it");
        const heard = await tab.run("seen.heard.length");
        await sleep(500);
        check((await tab.run("seen.heard.length")) === heard, "it is heard while nobody sees it");
        await browser.call("Browser.setWindowBounds", { windowId, bounds: { windowState: "normal" } });
        await tab.until("!document.hidden");
        check(await moves(tab), "it does not go on");
        await tab.until(`seen.heard.length > ${heard} + 44100`);
        check((await firstWrong(tab)) < 0, `the sound lost its step at sample ${await firstWrong(tab)}`);
        return tab;
    },
};

/** Over the network, too: one request, for the page alone. */
async function served(browser) {
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
}

const bytes = readFileSync(page);
const sent = gzipSync(bytes, { level: 6 }).length;
console.log(`${bytes.length} bytes, ${sent} as gzip`);
check(bytes.length <= mostBytes && sent <= mostSent, "the page is too large");

const browser = await Browser.start("--autoplay-policy=user-gesture-required");
for (const [name, test] of Object.entries({ ...tests, "from a server": served })) {
    const tab = await test(browser).catch((problem) => check(false, `${name}: ${problem.message}`));
    const outside = tab?.requests.filter((request) => !/^(data:|blob:|file:|http:..127)/.test(request)) ?? [];
    check(!tab?.said.length, `${name}: the console says ${tab?.said}`);
    check(outside.length === 0, `${name}: it asks for ${outside}`);
    await tab?.close();
    console.log(name);
}
await browser.stop();
finish();
