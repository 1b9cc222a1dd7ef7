// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// kit_test.mjs BUILD SOURCE AXE FOLDER: what velm4030-new writes, made a page with the library that BUILD installs, and the
// examples: in virtual time they give the frames and the samples that they give without a screen. And that page as its
// viewer meets it.
import { execFileSync } from "node:child_process";
import { mkdirSync, readFileSync, rmSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { Browser } from "./browser.mjs";
import { check, finish } from "./check.mjs";

const [build, source, axe, folder] = process.argv.slice(2);
const prefix = join(folder, "prefix");
const name = "My_Demo-1";
const project = join(folder, name);

function run(program, words, { cwd = folder, ...environment } = {}) {
    try {
        return execFileSync(program, words, { cwd, env: { ...process.env, ...environment }, stdio: "pipe", encoding: "utf8" });
    } catch (problem) {
        console.error(`${program} ${words.join(" ")}: ${problem.stdout}${problem.stderr}`);
        process.exit(1);
    }
}

function makeProject() {
    rmSync(folder, { recursive: true, force: true });
    mkdirSync(folder, { recursive: true });
    run("cmake", ["--install", build, "--component", "dev", "--prefix", prefix]);
    run(join(prefix, "bin/velm4030-new"), [name]);
    for (const command of ["page", "test"]) {
        run("./run.sh", [command], { cwd: project, VELM_PREFIX: prefix });
    }
}

/** The examples, with the modules that the project's page has compiled. */
function makeExamples() {
    const system = "/usr/share/nodejs"; // where Debian's emscripten has parts of its own
    run("cmake", ["-S", join(source, "examples"), "-B", "pages", "-G", "Ninja",
        "--toolchain", join(prefix, "share/velm4030/web/emscripten.cmake"),
        `-DVELM_WEB_ARCHIVE=${join(project, "build/page/libvelm_web.a")}`], { NODE_PATH: system });
    run("cmake", ["--build", "pages"], { NODE_PATH: system });
}

/** Checksum and length, as cksum has them, of so many frames without a screen, and of their sound. */
function filmed(frames) {
    run(join(project, `build/${name}-film`), [], { VELM_FRAMES: frames, VELM_VIDEO: "video", VELM_AUDIO: "audio" });
    return ["video", "audio"].map((file) => run("cksum", [file]).split(" ").slice(0, 2).join("-"));
}

// The same of what a page shows and plays, and the input of docs/examples/input.sh, after the frames that it names.
const watch = (frames, keys, pointer) => `${readFileSync(new URL("virtual_time.js", import.meta.url), "utf8")}
    virtual.limit = ${frames};
    const words = Uint32Array.from({ length: 256 }, (_, byte) => {
        let word = byte << 24;
        for (let bit = 0; bit < 8; ++bit) { word = word << 1 ^ (word < 0 ? 0x04c11db7 : 0); }
        return word;
    });
    class Sum {
        crc = 0; length = 0;
        add(byte) { this.crc = this.crc << 8 ^ words[(this.crc >>> 24) ^ byte]; ++this.length; }
        toString() {
            let { crc } = this;
            for (let rest = this.length; rest > 0; rest = rest >>> 8) { crc = crc << 8 ^ words[(crc >>> 24) ^ (rest & 255)]; }
            return (~crc >>> 0) + "-" + this.length;
        }
    }
    const [seen, heard] = [new Sum(), new Sum()];
    const keys = "${keys}".split(" ").map((press) => press.split(":"));
    const pointer = "${pointer}".split(" ").map((place) => place.split(":").map(Number));
    crcOfPicture = ({ data }) => {
        for (let i = 0; i < data.length; ++i) { i % 4 === 3 || seen.add(data[i]); }
        const frame = virtual.frames.length + 1;
        keys.filter(([at]) => Number(at) === frame).forEach(([, key]) => page.press(key));
        for (const [, x, y, buttons] of pointer.filter(([at]) => at === frame)) {
            page.module._pagePoint(x, y);
            page.module._pageButton(1, buttons);
        }
        return 0;
    };
    crcOfSamples = (crc, samples) => void new Uint8Array(samples.buffer).forEach((byte) => heard.add(byte));`;

async function compare(browser, file, frames, expected, keys = "", pointer = "") {
    const tab = await browser.open(pathToFileURL(file), { before: watch(frames, keys, pointer) });
    await tab.run("document.getElementById('play').click()");
    await tab.until(`virtual.frames.length >= ${frames}`, 240);
    const result = await tab.run("[String(seen), String(heard)]");
    check(result.join() === expected.join(), `${file}: ${result}, without a screen ${expected}`);
    check(tab.said.length === 0, `${file}: the console says ${tab.said}`);
    await tab.close();
    console.log(`${file}: ${frames} frames`);
}

/** Buttons, the program's end, and that nobody is kept out. */
async function meet(browser) {
    const shown = `let shown = 0; const put = CanvasRenderingContext2D.prototype.putImageData;
        CanvasRenderingContext2D.prototype.putImageData = function (...all) { ++shown; put.apply(this, all); };`;
    const tab = await browser.open(pathToFileURL(join(project, `build/page/${name}.html`)), { before: shown });
    const goesOn = async () => tab.until(`shown > ${(await tab.run("shown")) + 3}`);
    const findings = async (state) => {
        const { violations } = await tab.run("axe.run(document, { resultTypes: ['violations'] })");
        violations.forEach(({ id }) => check(false, `${state}: ${id}`));
    };
    await tab.run(readFileSync(axe, "utf8"));
    check((await tab.run("document.title")) === name, `its title is ${await tab.run("document.title")}`);
    await findings("before Play");
    await tab.click("#play");
    await goesOn();
    await tab.press("Tab"); // the bar stays while it has the keys
    await findings("while playing");
    await tab.run("by = (id) => document.getElementById(id); by('pause').click()");
    await tab.until("new Promise((goOn) => { const before = shown; setTimeout(() => goOn(shown === before), 500); })");
    await tab.run("by('pause').click()");
    await goesOn();
    await tab.run("by('mute').click()");
    check((await tab.run("page.speaker.volume.gain.value")) === 0, "mute does not mute it");
    for (let times = 0; times < 2; ++times) { // the program's main returns, and it can be played again
        await tab.press("Escape");
        await tab.until("!document.body.classList.contains('playing') && !by('play').disabled");
        await tab.click("#play");
        await goesOn();
    }
    check(tab.said.length === 0, `the console says ${tab.said}`);
    await tab.close();
}

makeProject();
makeExamples();
const browser = await Browser.start();
const frames = 120;
await compare(browser, join(project, `build/page/${name}.html`), frames, filmed(frames));
const input = run("bash", ["-c", `. '${source}/docs/examples/input.sh'; printf '%s\\n' "$keys" "$pointer"`]).split("\n");
for (const line of readFileSync(join(source, "tests/kit/examples.sums"), "utf8").trim().split("\n")) {
    const [example, count, ...sums] = line.trim().split(" ");
    await compare(browser, join(folder, `pages/${example}.html`), Number(count), sums, ...input);
}
await meet(browser);
await browser.stop();
finish();
