// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What stands over the picture: the bar, which goes when nobody has moved for a while, lists, and the line that
// says something.
//
//     const bar = new Bar({ mute() { ... }, volume(percent) { ... }, ... });
//     bar.tell({ volume: 100, pressed: { mute: false } });
"use strict";

class Bar {
    /** `volume` takes percents; of the other acts each has a button of its name. */
    constructor({ volume, ...acts }) {
        this.element = document.getElementById("bar");
        this.told = {};
        for (const [name, act] of Object.entries(acts)) {
            this.button(name).addEventListener("click", act);
        }
        this.volume = document.getElementById("volume");
        this.volume.addEventListener("input", () => volume(Number(this.volume.value)));
        // A button that was clicked gives the keys back to the demo; one that was reached by key keeps them.
        this.element.addEventListener("pointerup", () => setTimeout(() => this.giveKeysBack()));
    }

    giveKeysBack() {
        if (this.element.contains(document.activeElement)) {
            document.activeElement.blur();
        }
    }

    button(name) {
        return document.getElementById(name);
    }

    /** Shows the state of what plays, where it has changed. */
    tell(state) {
        const told = this.told;
        this.told = state;
        if (state.volume !== told.volume) {
            this.volume.value = state.volume;
        }
        for (const [name, isPressed] of Object.entries(state.pressed)) {
            if (isPressed !== told.pressed?.[name]) {
                this.button(name).setAttribute("aria-pressed", String(isPressed));
            }
        }
    }

    /** Shows the bar for a while, longer while something in it has the keys. */
    wake() {
        const patience = 3000;
        document.body.classList.add("awake");
        clearTimeout(this.timer);
        this.timer = setTimeout(() => this.sleep(), patience);
    }

    sleep() {
        clearTimeout(this.timer);
        if (this.element.matches(":hover") || this.element.querySelector(":focus-visible") || List.isOpen()) {
            this.wake();
        } else {
            document.body.classList.remove("awake");
        }
    }

    /** Says a line for a while. */
    say(line) {
        const patience = 2500;
        const element = document.getElementById("say");
        element.textContent = line;
        clearTimeout(this.sayTimer);
        this.sayTimer = setTimeout(() => (element.textContent = ""), patience);
    }
}

/** A dialog that its buttons open. */
class List {
    constructor(id, buttons) {
        this.dialog = document.getElementById(id);
        this.dialog.querySelector(".close").addEventListener("click", () => this.close());
        this.dialog.addEventListener("click", (event) => event.target === this.dialog && this.close());
        for (const button of document.querySelectorAll(buttons)) {
            button.addEventListener("click", () => this.toggle());
        }
    }

    toggle() {
        if (this.dialog.open) {
            this.close();
        } else {
            this.dialog.showModal();
            const now = this.dialog.querySelector("[aria-current]");
            (now || this.dialog.querySelector(".close")).focus();
        }
    }

    close() {
        this.dialog.close();
    }

    static isOpen() {
        return document.querySelector("dialog[open]") !== null;
    }
}
