// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Keys, mouse and touch: the page's own keys act here, the others are the program's.
//
//     new Keyboard({ F12: () => ... }, (key) => program takes it);
//     new Pointer(stage, { point, button, tap, swipe });
"use strict";

class Keyboard {
    /** `pageKeys` has a function for each key of the page's; `pass(key)` is true where the program takes it. */
    constructor(pageKeys, pass) {
        this.pageKeys = pageKeys;
        this.pass = pass;
        addEventListener("keydown", (event) => this.onKey(event));
    }

    onKey(event) {
        if (event.ctrlKey || event.metaKey || Keyboard.isControls(event)) {
            return;
        }
        const key = (event.altKey ? "Alt+" : "") + event.key;
        if (event.repeat || this.act(key)) {
            event.preventDefault();
        }
    }

    act(key) {
        if (key in this.pageKeys) {
            return this.pageKeys[key]() !== false;
        }
        return !List.isOpen() && this.pass(key);
    }

    /** True for a key that the control which has the focus waits for. */
    static isControls(event) {
        const focused = document.activeElement;
        if (List.isOpen()) {
            return ["Escape", "Enter", " ", "ArrowUp", "ArrowDown"].includes(event.key);
        }
        return (
            (focused.matches("button:focus-visible") && ["Enter", " "].includes(event.key) && !event.altKey) ||
            (focused.matches("input") && event.key.startsWith("Arrow"))
        );
    }
}

class Pointer {
    constructor(stage, acts) {
        this.acts = acts;
        this.begin = null; // where a finger touched the stage
        stage.addEventListener("pointerdown", (event) => this.onDown(event));
        stage.addEventListener("pointermove", (event) => this.isMouse(event) && acts.point(event));
        stage.addEventListener("pointerup", (event) => this.onUp(event));
        stage.addEventListener("pointercancel", () => (this.begin = null));
        stage.addEventListener("contextmenu", (event) => event.preventDefault());
    }

    isMouse(event) {
        return event.pointerType !== "touch";
    }

    onDown(event) {
        if (this.isMouse(event)) {
            this.acts.button(event.button + 1, true);
        } else {
            this.begin = event;
        }
    }

    onUp(event) {
        if (this.isMouse(event)) {
            this.acts.button(event.button + 1, false);
        } else if (this.begin !== null) {
            this.onTouch(event.clientX - this.begin.clientX, event.clientY - this.begin.clientY);
            this.begin = null;
        }
    }

    onTouch(right, down) {
        const least = 40;
        if (Math.abs(right) >= least && Math.abs(right) > Math.abs(down)) {
            this.acts.swipe(right < 0 ? 1 : -1);
        } else if (Math.hypot(right, down) < least) {
            this.acts.tap();
        }
    }
}
