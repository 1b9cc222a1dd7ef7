// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What stands over the picture: the bar, which goes when nobody has moved for a while, the two lists, and the
// line that says something.
//
//     const bar = new Bar({ next() { ... }, ... });
//     bar.tell({ scene: "extra-9", ... });
"use strict";

class Bar {
    /** `acts` has a function for each button, and for the volume and the choice of a scene. */
    constructor(acts) {
        this.element = document.getElementById("bar");
        this.told = {};
        for (const name of ["previous", "pause", "next", "mute", "rate", "full"]) {
            this.button(name).addEventListener("click", acts[name]);
        }
        this.volume = document.getElementById("volume");
        this.volume.addEventListener("input", () => acts.volume(Number(this.volume.value)));
        this.scenes = new List("scene-list", ".scenes-button");
        this.keys = new List("key-list", ".keys-button");
        this.choose = acts.choose;
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

    /** Lists scenes of a name, a text and a place among the thumbnails. */
    listScenes(scenes) {
        const sheet = `url(${document.getElementById("thumbnails").src})`;
        const list = document.querySelector("#scene-list ol");
        list.replaceChildren(...scenes.map((scene, place) => this.sceneItem(scene, place, sheet)));
    }

    sceneItem(scene, place, sheet) {
        const item = document.createElement("li");
        const button = item.appendChild(document.createElement("button"));
        button.type = "button";
        const picture = button.appendChild(document.createElement("span"));
        picture.className = "thumbnail";
        picture.style.backgroundImage = sheet;
        picture.style.backgroundPosition = `${-64 * (place % 4)}px ${-64 * Math.floor(place / 4)}px`;
        button.appendChild(document.createElement("b")).textContent = scene.name;
        button.appendChild(document.createElement("span")).textContent = scene.text;
        button.addEventListener("click", () => {
            this.scenes.close();
            this.choose(place);
        });
        return item;
    }

    /** Shows the state of what plays, where it has changed. */
    tell(state) {
        const told = this.told;
        this.told = state;
        if (state.scene !== told.scene) {
            document.getElementById("scene-name").textContent = state.scene;
            document.getElementById("scene-text").textContent = state.text;
            this.scenes.mark(state.number);
        }
        if (state.rate !== told.rate) {
            this.button("rate").textContent = state.rate;
            this.button("rate").setAttribute("aria-label", `${state.rate} frames a second`);
        }
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

    mark(place) {
        this.dialog.querySelectorAll("li button").forEach((button, i) => {
            i === place ? button.setAttribute("aria-current", "true") : button.removeAttribute("aria-current");
        });
    }

    static isOpen() {
        return document.querySelector("dialog[open]") !== null;
    }
}
