// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// access_test.mjs PAGE AXE FOLDER: axe-core finds nothing in any state of the page, in light and dark surroundings and at
// three sizes, and nothing lies outside. Leaves screenshots in the folder, for people to look at.
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { Browser } from "./browser.mjs";
import { check, finish } from "./check.mjs";

const [page, axe, folder] = process.argv.slice(2);
const source = readFileSync(axe, "utf8");
mkdirSync(folder, { recursive: true });

const sizes = {
    phone: { width: 360, height: 740, ratio: 3, touch: true },
    laptop: { width: 1280, height: 800 },
    wide: { width: 2560, height: 1440 },
};

/** True where a fiftieth of the picture is of a colour, as the logo is not. */
const isColoured = `(() => { const copy = new OffscreenCanvas(256, 256).getContext("2d");
    copy.drawImage(document.getElementById("picture"), 0, 0);
    const { data } = copy.getImageData(0, 0, 256, 256);
    return data.filter((value, i) => i % 4 === 1 && Math.abs(value - data[i + 1]) > 64).length > 1310; })()`;
const arrived = "Promise.allSettled(document.getAnimations().map((animation) => animation.finished)).then(() => {})";

/** The states of the page, each from the one before. */
const states = {
    intro: async () => {},
    scenes: (tab) => tab.click("#intro .scenes-button"),
    keys: async (tab) => {
        await tab.press("Escape");
        await tab.click("#intro .keys-button");
    },
    playing: async (tab) => {
        await tab.press("Escape");
        await tab.click("#play");
        await tab.until("document.body.classList.contains('playing')");
        await tab.press("Tab"); // the bar stays while it has the keys
        await tab.until(isColoured);
    },
    "list while playing": (tab) => tab.press("Enter"),
};

async function findings(tab) {
    const { violations } = await tab.run("axe.run(document, { resultTypes: ['violations'] })");
    return violations.map(({ id, nodes }) => `${id}: ${nodes.map((node) => node.html.slice(0, 120)).join(" | ")}`);
}

const browser = await Browser.start();
for (const [size, look] of Object.entries(sizes)) {
    for (const scheme of ["dark", "light"]) {
        const media = { "prefers-color-scheme": scheme, "prefers-reduced-motion": size === "wide" ? "reduce" : "no-preference" };
        const tab = await browser.open(`${pathToFileURL(page)}#extra-5`, { ...look, media });
        await tab.run(source);
        for (const [state, reach] of Object.entries(states)) {
            await reach(tab);
            await tab.run(arrived);
            const name = `${size} ${scheme} ${state}`;
            for (const finding of await findings(tab)) {
                check(false, `${name}: ${finding}`);
            }
            check(await tab.run("document.documentElement.scrollWidth <= innerWidth"), `${name}: it is wider than the window`);
            writeFileSync(join(folder, `${name.replaceAll(" ", "_")}.png`), await tab.screenshot());
        }
        check(tab.said.length === 0, `${size} ${scheme}: the console says ${tab.said}`);
        await tab.close();
    }
}
await browser.stop();
finish();
