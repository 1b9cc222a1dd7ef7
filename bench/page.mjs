// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// bench/page.mjs [PAGE [CAPTURE [SCENE...]]]: what the page takes: from the click to the first picture that moves, the frames
// that a display of 60 misses in 20 seconds, and a frame of every scene, or of those named, beside the same frame of
// velm4030-capture, in turns.
import { spawnSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { loadavg } from "node:os";
import { pathToFileURL } from "node:url";
import { Browser } from "../tests/page/browser.mjs";

const [page = "build/web/velm4030.html", capture = "build/release/velm4030-capture", ...named] = process.argv.slice(2);
const url = pathToFileURL(page).href;
const [begin, end] = [600, 1200]; // frames; before that the browser's compiler is still at work
const virtualTime = readFileSync(new URL("../tests/page/virtual_time.js", import.meta.url), "utf8");
const rounds = 3;

/** Milliseconds of a processor that a frame takes, whatever else the machine does. */
function nativeMillis(scene) {
    const seconds = (count) => {
        const command = `TIMEFORMAT=%U; time '${capture}' --frames ${count} --quiet --scene ${scene}`;
        return Number(spawnSync("bash", ["-c", command], { encoding: "utf8" }).stderr);
    };
    return (1000 * (seconds(end) - seconds(begin))) / (end - begin);
}

// The test's own work on pictures and samples is left out; and what the browser does to show a picture, as that of an X
// server is in the native program.
const programAlone = `crcOfPicture = crcOfSamples = () => 0;
    CanvasRenderingContext2D.prototype.putImageData = () => virtual.frames.push(0);`;

/** Likewise, of the page's thread. */
async function pageMillis(browser, scene) {
    const tab = await browser.open(`${url}#only=${scene}`, { before: `${virtualTime} ${programAlone} virtual.limit = ${begin};` });
    const secondsAt = async (limit) => {
        await tab.until(`virtual.frames.length >= ${limit}`);
        const { metrics } = await tab.call("Performance.getMetrics");
        return metrics.find(({ name }) => name === "TaskDuration").value;
    };
    await tab.call("Performance.enable", { timeDomain: "threadTicks" });
    await tab.run("document.getElementById('play').click()");
    const before = await secondsAt(begin);
    await tab.run(`virtual.limit = ${end}; display.port2.postMessage(0)`);
    const after = await secondsAt(end);
    await tab.close();
    return (1000 * (after - before)) / (end - begin);
}

/** The quickest rounds and their ratio; in brackets the median of the rounds' ratios. */
async function frameTimes(browser, scene) {
    const [native, inPage] = [[], []];
    for (let round = 0; round < rounds; ++round) {
        native.push(nativeMillis(scene));
        inPage.push(await pageMillis(browser, scene));
    }
    const ratios = native.map((millis, round) => inPage[round] / millis).sort((a, b) => a - b);
    const [least, leastInPage] = [Math.min(...native), Math.min(...inPage)];
    console.log(`| ${scene} | ${least.toFixed(2)} | ${leastInPage.toFixed(2)} | ` +
        `${(leastInPage / least).toFixed(2)} (${ratios[(rounds - 1) / 2].toFixed(2)}) |`);
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
console.log(`load average ${loadavg()[0]}`);
const starts = [await start(browser), await start(browser), await start(browser)];
console.log(`click to the first moving picture: ${starts.map((millis) => millis.toFixed(0)).join(", ")} ms`);
console.log(await missed(browser, 20));
console.log("| scene | native, ms a frame | in the page | ratio |\n|---|---:|---:|---:|");
for (const scene of named.length > 0 ? named : allScenes()) {
    await frameTimes(browser, scene);
}
console.log(`load average ${loadavg()[0]}`);
await browser.stop();
