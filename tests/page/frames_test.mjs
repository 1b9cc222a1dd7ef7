// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// frames_test.mjs PAGE CAPTURE: in virtual time every scene alone, the schedule and the tour give the frames and the
// samples that velm4030-capture gives.
import { execFileSync, spawnSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import vm from "node:vm";
import { Browser } from "./browser.mjs";
import { check, finish } from "./check.mjs";

const [page, capture] = process.argv.slice(2);
const frames = 600;
const before = readFileSync(new URL("virtual_time.js", import.meta.url), "utf8");
const crcOf = vm.runInNewContext(`${before.slice(0, before.indexOf("const virtual"))}
    (bytes) => ~bytes.reduce(crcOfByte, -1) >>> 0`);
const folder = mkdtempSync(join(tmpdir(), "velm-frames-"));

/** What the program for this system gives. */
function captured(words) {
    const [crc, wav] = [join(folder, "crc"), join(folder, "wav")];
    execFileSync(capture, [...words, "--frames", frames, "--quiet", "--gain", "12", "--crc", crc, "--audio", wav]);
    const samples = readFileSync(wav).subarray(44);
    return {
        frames: readFileSync(crc, "utf8").trim().split("\n").map((line) => line.split(" ")[1]),
        sound: crcOf(samples),
        samples: samples.length / 2,
    };
}

/** What the page gives. */
async function played(browser, address) {
    const tab = await browser.open(`${pathToFileURL(page)}${address}`, { before: `${before} virtual.limit = ${frames};` });
    await tab.run("document.getElementById('play').click()");
    await tab.until(`virtual.frames.length >= ${frames}`, 120);
    const result = await tab.run(`({ frames: virtual.frames, sound: ~virtual.soundCrc >>> 0, samples: virtual.samples })`);
    result.said = tab.said;
    await tab.close();
    return result;
}

function compare(name, page, native) {
    const first = native.frames.findIndex((crc, i) => crc !== page.frames[i]);
    check(first < 0, `${name}: frame ${first + 1} differs`);
    check(new Set(native.frames).size > 20, `${name}: the pictures stand still`);
    check(page.samples === native.samples, `${name}: ${page.samples} samples, not ${native.samples}`);
    check(page.sound === native.sound, `${name}: the samples differ`);
    check(page.said.length === 0, `${name}: the console says ${page.said}`);
}

const { stderr } = spawnSync(capture, ["--frames", "1", "--scene", "none"], { encoding: "utf8" });
const scenes = stderr.match(/there are (.*)/)[1].split(", ");
check(scenes.length >= 17, `only ${scenes.length} scenes`);
const runs = scenes.map((scene) => [scene, `#only=${scene}`, ["--scene", scene]]);
runs.push(["the tour", "", ["--tour"]]);

const browser = await Browser.start();
async function work() {
    for (let run = runs.shift(); run; run = runs.shift()) {
        const [name, address, words] = run;
        const begin = Date.now();
        const result = await played(browser, address);
        compare(name, result, captured(words));
        console.log(`${name}: ${frames} frames, ${result.samples} samples, ${Date.now() - begin} ms`);
    }
}
await Promise.all([work(), work()]);
await browser.stop();
rmSync(folder, { recursive: true });
finish();
