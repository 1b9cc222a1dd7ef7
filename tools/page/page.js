// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A page: brings the program, the picture, the sound and the bar together. What its program has beyond a picture and
// a sound, a class on top of it shows: DemoPage (demo.js), ProjectPage (project.js).
//
//     openPage(ProjectPage);
"use strict";

class Page {
    /** Prepares everything that Play needs, so that the first picture comes at once. */
    async open() {
        this.program = await Program.load(document.getElementById("wasm").textContent);
        await this.prepareRun();
        this.build();
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
    }

    /** What the buttons of the bar do, by their names. */
    acts() {
        return {
            mute: () => this.mute(),
            full: () => this.toggleFull(),
            volume: (volume) => this.setVolume(volume),
        };
    }

    /** Keys that are the page's own; the others are the program's. */
    keys() {
        const full = () => this.toggleFull();
        return { F11: full, "Alt+Enter": full, F12: () => this.isPlaying && this.screen.keep() };
    }

    /** A finger has swiped to the right (-1) or to the left (1). */
    swipe() {}

    build() {
        const stage = document.getElementById("stage");
        this.screen = new Screen(stage, document.getElementById("picture"), (...sizes) => [
            this.module._pageScale(...sizes),
            this.module._pageLeft(...sizes),
            this.module._pageTop(...sizes),
        ]);
        this.bar = new Bar(this.acts());
        this.pointer = new Pointer(stage, {
            point: (event) => this.point(event),
            button: (number, isHeld) => this.module._pageButton(number, isHeld),
            tap: () => (document.body.classList.contains("awake") ? this.bar.sleep() : this.bar.wake()),
            swipe: (steps) => this.swipe(steps),
        });
        this.keyboard = new Keyboard(this.keys(), (key) => this.isPlaying && this.press(key));
        document.getElementById("play").addEventListener("click", () => this.play());
        addEventListener("visibilitychange", () => this.rest(document.hidden));
        addEventListener("fullscreenchange", () => this.isPlaying && this.tell());
        addEventListener("focusin", () => this.isPlaying && this.bar.wake());
        this.invite();
    }

    /** Waits for Play. */
    invite() {
        document.getElementById("play").disabled = false;
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

    async play(words = []) {
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
        this.run.start(words);
    }

    /** Waits for the sound, but not for long: a picture without is better than none. */
    async openSpeaker() {
        const sayNone = () => this.speaker.isOpen() || this.bar.say("No sound here: playing silent.");
        const patience = new Promise((goOn) => setTimeout(goOn, 500));
        await Promise.race([this.speaker.open().catch(sayNone), patience.then(sayNone)]);
    }

    /** Sound that waits goes on with the pictures. */
    rest(rests) {
        if (this.speaker !== null) {
            this.speaker.rest(rests);
        }
    }

    /** The program has ended: back to the beginning, with a new one. */
    async leave() {
        this.isPlaying = false;
        this.speaker.close();
        if (document.fullscreenElement) {
            document.exitFullscreen();
        }
        document.body.classList.remove("playing", "awake");
        document.getElementById("bar").hidden = true;
        await this.prepareRun();
        this.invite();
        document.getElementById("play").focus();
    }

    /** What the bar shows: the volume, and which buttons are pressed. */
    state() {
        return { volume: this.volume, pressed: { mute: this.isMuted, full: document.fullscreenElement !== null } };
    }

    tell() {
        this.bar.tell(this.state());
    }

    mute() {
        this.isMuted = !this.isMuted;
        this.setVolume(this.volume);
        this.tell();
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

/** Opens the one page of the document. */
function openPage(Kind) {
    page = new Kind();
    page.open().catch((problem) => {
        document.getElementById("play").textContent = "This browser is too old";
        throw problem;
    });
}
