// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The demo's page: scenes to choose from, and the address that goes with them.
"use strict";

class DemoPage extends Page {
    async prepareRun() {
        await super.prepareRun();
        this.scenes = Array.from({ length: this.module._pageSceneCount() }, (_, i) => ({
            name: this.run.text(this.module._pageSceneName(i)),
            text: this.run.text(this.module._pageSceneText(i)),
        }));
    }

    acts() {
        return {
            ...super.acts(),
            previous: () => this.module._pagePrevious(),
            next: () => this.module._pageNext(),
            pause: () => this.press("p"),
            rate: () => this.press(this.module._pageRate() === 60 ? "5" : "6"),
        };
    }

    keys() {
        const help = () => this.keyList.toggle();
        const louder = () => this.changeVolume(5);
        const quieter = () => this.changeVolume(-5);
        return {
            ...super.keys(),
            h: help, H: help, F1: help,
            "+": louder, "=": louder, "-": quieter,
            ArrowLeft: () => this.goBy(-1),
            ArrowRight: () => this.goBy(1),
        };
    }

    swipe(steps) {
        this.goBy(steps);
    }

    build() {
        this.keyList = new List("key-list", ".keys-button");
        this.sceneList = new SceneList((scene) => this.choose(scene));
        this.sceneList.fill(this.scenes);
        super.build();
        addEventListener("hashchange", () => this.followAddress());
    }

    /** A still picture stands there until something plays. */
    invite() {
        const still = document.getElementById("still");
        still.decode().then(() => this.isPlaying || this.screen.showStill(still));
        super.invite();
    }

    goBy(steps) {
        if (!this.isPlaying || List.isOpen()) {
            return false;
        }
        steps > 0 ? this.module._pageNext() : this.module._pagePrevious();
        return true;
    }

    /** The words of the address: "#extra-9", or "#only=extra-9". */
    static wordsOfAddress() {
        return location.hash.slice(1).split("=").filter((word) => word !== "");
    }

    play() {
        return super.play(DemoPage.wordsOfAddress());
    }

    state() {
        const state = super.state();
        const number = this.module._pageScene();
        const scene = number < 0 ? { name: "schedule", text: "" } : this.scenes[number];
        state.pressed.pause = this.module._pageIsPaused() !== 0;
        return { ...state, number, scene: scene.name, text: scene.text, rate: this.module._pageRate() };
    }

    tell() {
        super.tell();
        const { number, scene, text, rate } = this.bar.told;
        if (number !== this.told?.number) {
            document.getElementById("scene-name").textContent = scene;
            document.getElementById("scene-text").textContent = text;
            this.sceneList.mark(number);
            this.tellAddress(scene);
        }
        if (rate !== this.told?.rate) {
            this.bar.button("rate").textContent = rate;
            this.bar.button("rate").setAttribute("aria-label", `${rate} frames per second`);
        }
        this.told = this.bar.told;
    }

    tellAddress(name) {
        if (!DemoPage.wordsOfAddress().includes(name)) {
            history.replaceState(null, "", `#${name}`);
        }
    }

    followAddress() {
        const wanted = this.scenes.findIndex((scene) => DemoPage.wordsOfAddress().includes(scene.name));
        if (wanted >= 0 && this.isPlaying && wanted !== this.module._pageScene()) {
            this.module._pageGoTo(wanted);
        }
    }

    choose(scene) {
        if (this.isPlaying) {
            this.module._pageGoTo(scene);
        } else {
            history.replaceState(null, "", `#${this.scenes[scene].name}`);
            this.play();
        }
    }

    changeVolume(by) {
        this.setVolume(Math.min(Math.max(this.volume + by, 0), 100));
        this.bar.say(`volume ${this.volume} %`);
    }
}

/** The list of scenes, each of a name, a text and a place among the thumbnails. */
class SceneList extends List {
    constructor(choose) {
        super("scene-list", ".scenes-button");
        this.choose = choose;
    }

    fill(scenes) {
        const sheet = `url(${document.getElementById("thumbnails").src})`;
        const list = this.dialog.querySelector("ol");
        list.replaceChildren(...scenes.map((scene, place) => this.item(scene, place, sheet)));
    }

    item(scene, place, sheet) {
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
            this.close();
            this.choose(place);
        });
        return item;
    }

    mark(place) {
        this.dialog.querySelectorAll("li button").forEach((button, i) => {
            i === place ? button.setAttribute("aria-current", "true") : button.removeAttribute("aria-current");
        });
    }
}

openPage(DemoPage);
