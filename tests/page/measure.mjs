// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// measure.mjs PAGE CAPTURE: what the page takes, for people to read; an idle machine gives figures that mean something.
// A frame's time against that of velm4030-capture, from the click to the first picture that moves, and the frames that a
// display of 60 misses.
import { spawnSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { pathToFileURL } from "node:url";
import { Browser } from "./browser.mjs";

const [page, capture] = process.argv.slice(2);
const url = pathToFileURL(page).href;
const frames = 600;
const before = readFileSync(new URL("virtual_time.js", import.meta.url), "utf8");

const median = (values) => values.sort((a, b) => a - b)[Math.floor(values.length / 2)];
const thrice = async (measure) => median([await measure(), await measure(), await measure()]);

/** Seconds of a processor, whatever else the machine does. */
function nativeSeconds(scene, count) {
    const command = `TIMEFORMAT=%U; time '${capture}' --frames ${count} --quiet --scene ${scene}`;
    return Number(spawnSync("bash", ["-c", command], { encoding: "utf8" }).stderr);
}

/** Likewise, of the page's thread: all that it does for a frame. */
async function pageMillis(browser, scene) {
    const script = `${before} virtual.limit = ${frames}; virtual.checks = false;`;
    const tab = await browser.open(`${url}#only=${scene}`, { before: script });
    await tab.run("virtual.limit = 10");
    const seconds = async (limit) => {
        await tab.until(`virtual.frames.length >= ${limit}`, 120);
        const { metrics } = await tab.call("Performance.getMetrics");
        return metrics.find(({ name }) => name === "TaskDuration").value;
    };
    await tab.call("Performance.enable", { timeDomain: "threadTicks" });
    await tab.run("document.getElementById('play').click()");
    const begin = await seconds(10);
    await tab.run(`virtual.limit = ${frames}; display.port2.postMessage(0)`);
    const end = await seconds(frames);
    await tab.close();
    return (1000 * (end - begin)) / (frames - 10);
}

async function frameTimes(browser) {
    const { stderr } = spawnSync(capture, ["--frames", "1", "--scene", "none"], { encoding: "utf8" });
    for (const scene of stderr.trim().match(/there are (.*)/)[1].split(", ")) {
        const native = (1000 * ((await thrice(() => nativeSeconds(scene, frames))) - (await thrice(() => nativeSeconds(scene, 10))))) / (frames - 10);
        const inPage = await thrice(() => pageMillis(browser, scene));
        console.log(`${scene.padEnd(12)} ${native.toFixed(2)} ms, in the page ${inPage.toFixed(2)} ms: ${(inPage / native).toFixed(2)}`);
    }
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
console.log(`click to the first moving picture: ${(await thrice(() => start(browser))).toFixed(0)} ms`);
console.log(await missed(browser, 20));
await frameTimes(browser);
await browser.stop();
