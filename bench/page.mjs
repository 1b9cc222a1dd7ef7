// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// bench/page.mjs [PAGE [CAPTURE [SCENE...]]]: what the page takes: from the click to the first picture that moves, the frames
// that a display of 60 misses in 20 seconds, and a frame of every scene, or of those named, beside the same frame of
// velm4030-capture, in turns.
import { spawnSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { createServer } from "node:http";
import { loadavg } from "node:os";
import { pathToFileURL } from "node:url";
import { Browser } from "../tests/page/browser.mjs";

const [page = "build/web/velm4030.html", capture = "build/release/velm4030-capture", ...named] = process.argv.slice(2);
const url = pathToFileURL(page).href;
const [begin, end] = [600, 1200]; // frames; before that the browser's compiler is still at work
const rounds = 5;

/** Seconds of a processor that the native program takes for so many frames, whatever else the machine does. */
function nativeSeconds(scene, count) {
    const command = `TIMEFORMAT=%U; time '${capture}' --frames ${count} --quiet --scene ${scene}`;
    return Number(spawnSync("bash", ["-c", command], { encoding: "utf8" }).stderr);
}

// What the page's program does between two frames of the display, with a clock of a few microseconds. The test's own work on
// pictures and samples is left out; and what the browser does to show a picture, as that of an X server is in the native one.
const programAlone = `const now = performance.now.bind(performance), took = [];
    ${readFileSync(new URL("../tests/page/virtual_time.js", import.meta.url), "utf8")}
    virtual.limit = ${end};
    crcOfPicture = crcOfSamples = () => 0;
    CanvasRenderingContext2D.prototype.putImageData = () => virtual.frames.push(0);
    const next = display.port1.onmessage;
    display.port1.onmessage = () => { const begin = now(); next(); took.push(now() - begin); };`;

/** What each frame of the page takes. */
async function pageFrames(browser, server, scene) {
    const tab = await browser.open(`http://127.0.0.1:${server.address().port}/#only=${scene}`, { before: programAlone });
    await tab.run("document.getElementById('play').click()");
    await tab.until(`virtual.frames.length >= ${end}`);
    const took = await tab.run(`took.slice(${begin}, ${end} - 10)`);
    await tab.close();
    return took;
}

/** Browsers tell the time exactly to a page that shares nothing with others. */
async function serve() {
    const isolated = { "Cross-Origin-Opener-Policy": "same-origin", "Cross-Origin-Embedder-Policy": "require-corp" };
    const server = createServer((request, response) => {
        response.writeHead(200, { "Content-Type": "text/html", ...isolated }).end(readFileSync(page));
    }).listen(0, "127.0.0.1");
    await new Promise((goOn) => server.on("listening", goOn));
    return server;
}

/**
 * What a frame takes at its quickest. Of the native program both lengths count at their quickest, and then the difference:
 * that of one round is too small where the shorter run was disturbed. Of the page each frame counts at its quickest.
 */
async function frameTimes(browser, server, scene) {
    const [short, long, inPage] = [[], [], []];
    for (let round = 0; round < rounds; ++round) {
        short.push(nativeSeconds(scene, begin));
        long.push(nativeSeconds(scene, end));
        inPage.push(await pageFrames(browser, server, scene));
    }
    const native = (1000 * (Math.min(...long) - Math.min(...short))) / (end - begin);
    const leastFrames = inPage[0].map((_, frame) => Math.min(...inPage.map((took) => took[frame])));
    const mean = leastFrames.reduce((sum, millis) => sum + millis) / leastFrames.length;
    console.log(`| ${scene} | ${native.toFixed(2)} | ${mean.toFixed(2)} | ${(mean / native).toFixed(2)} |`);
}

function allScenes() {
    const { stderr } = spawnSync(capture, ["--frames", "1", "--scene", "none"], { encoding: "utf8" });
    return stderr.trim().match(/there are (.*)/)[1].split(", ");
}

const watch = `
    const times = [];
    const put = CanvasRenderingContext2D.prototype.putImageData;
    CanvasRenderingContext2D.prototype.putImageData = function (...all) { times.push(performance.now()); put.apply(this, all); };
    addEventListener("click", () => { window.clicked ??= performance.now(); }, true);`;

/** The logo is the first picture; the one after it moves. */
async function start(browser) {
    const tab = await browser.open(url, { before: watch });
    await tab.click("#play");
    await tab.until("times.length > 2");
    const millis = await tab.run("times[1] - clicked");
    await tab.close();
    return millis;
}

async function missed(browser, seconds) {
    const tab = await browser.open(`${url}#extra-9`, { before: watch });
    await tab.click("#play");
    await tab.until("times.length > 30");
    await tab.press("6");
    await new Promise((goOn) => setTimeout(goOn, 2000));
    const begin = await tab.run("times.length");
    await new Promise((goOn) => setTimeout(goOn, 1000 * seconds));
    const gaps = await tab.run(`times.slice(${begin}).map((time, i, all) => i > 0 ? time - all[i - 1] : 0).slice(1)`);
    await tab.close();
    const lost = gaps.reduce((sum, gap) => sum + Math.max(Math.round((gap * 60) / 1000) - 1, 0), 0);
    return `${lost} of ${gaps.length + lost} frames missed in ${seconds} s at 60`;
}

const browser = await Browser.start();
const server = await serve();
console.log(`load average ${loadavg()[0]}`);
const starts = [await start(browser), await start(browser), await start(browser)];
console.log(`click to the first moving picture: ${starts.map((millis) => millis.toFixed(0)).join(", ")} ms`);
console.log(await missed(browser, 20));
console.log("| scene | native, ms a frame | in the page | ratio |\n|---|---:|---:|---:|");
for (const scene of named.length > 0 ? named : allScenes()) {
    await frameTimes(browser, server, scene);
}
server.close();
console.log(`load average ${loadavg()[0]}`);
await browser.stop();
