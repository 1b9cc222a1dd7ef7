// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The page: brings the program, the picture, the sound and the bar together, and the address with the scene.
"use strict";

class Page {
    /** Prepares everything that Play needs, so that the first picture comes at once. */
    static async open() {
        const page = new Page();
        page.program = await Program.load(document.getElementById("wasm").textContent);
        await page.prepareRun();
        page.build();
        return page;
    }

    constructor() {
        this.isPlaying = false;
        this.volume = 100;
        this.isMuted = false;
        this.speaker = null;
    }

    async prepareRun() {
        this.run = await this.program.makeRun({
            show: (image) => this.screen.show(image),
            play: (samples) => this.speaker.play(samples),
            frame: () => this.tell(),
            end: () => this.leave(),
        });
        this.module = this.run.module;
        this.scenes = Array.from({ length: this.module._pageSceneCount() }, (_, i) => ({
            name: this.run.text(this.module._pageSceneName(i)),
            text: this.run.text(this.module._pageSceneText(i)),
        }));
    }

    build() {
        const stage = document.getElementById("stage");
        this.screen = new Screen(stage, document.getElementById("picture"), (width, height) => [
            this.module._pageScale(width, height),
            this.module._pageLeft(width, height),
            this.module._pageTop(width, height),
        ]);
        this.bar = new Bar({
            previous: () => this.press("ArrowLeft"),
            next: () => this.press("ArrowRight"),
            pause: () => this.press("p"),
            rate: () => this.press(this.module._pageRate() === 60 ? "5" : "6"),
            mute: () => this.mute(),
            full: () => this.toggleFull(),
            volume: (volume) => this.setVolume(volume),
            choose: (scene) => this.choose(scene),
        });
        this.bar.listScenes(this.scenes);
        this.pointer = new Pointer(stage, {
            point: (event) => this.point(event),
            button: (number, isHeld) => this.module._pageButton(number, isHeld),
            tap: () => (document.body.classList.contains("awake") ? this.bar.sleep() : this.bar.wake()),
            swipe: (steps) => this.press(steps > 0 ? "ArrowRight" : "ArrowLeft"),
        });
        this.takeKeys();
        this.showStill();
        document.getElementById("play").addEventListener("click", () => this.play());
        document.getElementById("play").disabled = false;
        addEventListener("hashchange", () => this.followAddress());
        addEventListener("visibilitychange", () => this.speaker && this.speaker.rest(document.hidden));
        addEventListener("fullscreenchange", () => this.isPlaying && this.tell());
        addEventListener("focusin", () => this.isPlaying && this.bar.wake());
    }

    takeKeys() {
        const help = () => this.bar.keys.toggle();
        const full = () => this.toggleFull();
        const louder = () => this.changeVolume(5);
        const quieter = () => this.changeVolume(-5);
        const keep = () => this.isPlaying && this.screen.keep();
        this.keyboard = new Keyboard(
            {
                h: help, H: help, F1: help,
                F11: full, "Alt+Enter": full,
                F12: keep,
                "+": louder, "=": louder, "-": quieter,
            },
            (key) => this.isPlaying && this.press(key),
        );
    }

    /** A key for the program, as if it had been pressed. */
    press(key) {
        const most = 32; // bytes, see pageKeyBytes
        this.module.stringToUTF8(key, this.module._pageKeyName(), most);
        return this.isPlaying && this.module._pageKey() !== 0;
    }

    point(event) {
        this.bar.wake();
        this.module._pagePoint(...this.screen.placeOf(event));
    }

    /** The words of the address: "#extra-9", or "#only=extra-9". */
    static wordsOfAddress() {
        return location.hash.slice(1).split("=").filter((word) => word !== "");
    }

    async play() {
        document.getElementById("play").disabled = true;
        this.speaker = new Speaker(this.module._pageSamplesAhead(), (report) =>
            this.module._pageHeard(report.waiting, report.received),
        );
        await this.openSpeaker();
        this.setVolume(this.volume);
        this.isPlaying = true;
        document.body.classList.add("playing");
        document.getElementById("bar").hidden = false;
        this.bar.wake();
        this.run.start(Page.wordsOfAddress());
    }

    /** Waits for the sound, but not for long: a picture without is better than none. */
    async openSpeaker() {
        const sayNone = () => this.speaker.isOpen() || this.bar.say("No sound here: playing silent.");
        const patience = new Promise((goOn) => setTimeout(goOn, 500));
        await Promise.race([this.speaker.open().catch(sayNone), patience.then(sayNone)]);
    }

    /** The program has ended, by Escape: back to the beginning, with a new one. */
    async leave() {
        this.isPlaying = false;
        this.speaker.close();
        if (document.fullscreenElement) {
            document.exitFullscreen();
        }
        document.body.classList.remove("playing", "awake");
        document.getElementById("bar").hidden = true;
        await this.prepareRun();
        this.showStill();
        document.getElementById("play").disabled = false;
        document.getElementById("play").focus();
    }

    showStill() {
        const still = document.getElementById("still");
        still.decode().then(() => this.isPlaying || this.screen.showStill(still));
    }

    /** Tells the bar and the address what plays now. */
    tell() {
        const number = this.module._pageScene();
        const scene = number < 0 ? { name: "schedule", text: "" } : this.scenes[number];
        const rate = this.module._pageRate();
        this.bar.tell({
            number,
            scene: scene.name,
            text: scene.text,
            rate,
            volume: this.volume,
            pressed: {
                pause: this.module._pageIsPaused() !== 0,
                mute: this.isMuted,
                full: document.fullscreenElement !== null,
            },
        });
        if (this.told !== number) {
            this.told = number;
            this.tellAddress(scene.name);
        }
    }

    tellAddress(name) {
        if (!Page.wordsOfAddress().includes(name)) {
            history.replaceState(null, "", `#${name}`);
        }
    }

    followAddress() {
        const wanted = this.scenes.findIndex((scene) => Page.wordsOfAddress().includes(scene.name));
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

    mute() {
        this.isMuted = !this.isMuted;
        this.setVolume(this.volume);
        this.tell();
    }

    changeVolume(by) {
        this.setVolume(Math.min(Math.max(this.volume + by, 0), 100));
        this.bar.say(`volume ${this.volume} %`);
    }

    setVolume(volume) {
        this.volume = volume;
        if (this.speaker !== null) {
            this.speaker.setVolume(this.isMuted ? 0 : volume / 100);
        }
    }

    toggleFull() {
        if (document.fullscreenElement) {
            document.exitFullscreen();
        } else {
            document.documentElement.requestFullscreen().catch(() => this.bar.say("No full screen here."));
        }
    }
}

let page;
Page.open().then((opened) => (page = opened)).catch((problem) => {
    document.getElementById("play").textContent = "This browser is too old";
    throw problem;
});
