// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The compiled program. A run ends with the program; another one begins with a copy that is as good as new.
//
//     const program = await Program.load(document.getElementById("wasm").textContent);
//     const run = await program.makeRun({ show, play, ... });
//     run.start(["extra-9"]);
"use strict";

class Program {
    /** Unpacks the program: WebAssembly, compressed by gzip, in base 64. */
    static async load(text) {
        const packed = Uint8Array.from(atob(text), (letter) => letter.charCodeAt(0));
        const stream = new Blob([packed]).stream().pipeThrough(new DecompressionStream("gzip"));
        return new Program(await WebAssembly.compile(await new Response(stream).arrayBuffer()));
    }

    constructor(compiled) {
        this.compiled = compiled;
    }

    /** `page` has what a run calls: show(image), play(samples), frame() and end(). */
    async makeRun(page) {
        const run = new Run(page);
        run.module = await makeVelm({
            page: run,
            noInitialRun: true,
            instantiateWasm: (imports, done) => {
                WebAssembly.instantiate(this.compiled, imports).then(done);
                return {};
            },
        });
        return run;
    }
}

/** One run, and what the machine calls while it goes on (see browser.js). */
class Run {
    constructor(page) {
        this.page = page;
        this.isHeld = false;
        this.held = () => {}; // what goes on when it is let go
        this.isWaiting = false;
    }

    start(words) {
        this.goOn(() => this.module.callMain(words));
    }

    text(pointer) {
        return this.module.UTF8ToString(pointer);
    }

    show(image) {
        this.page.show(image);
    }

    play(samples) {
        return this.page.play(samples);
    }

    /** Holds the program at its next frame, or lets it go on. */
    hold(isHeld) {
        this.isHeld = isHeld;
        if (!isHeld) {
            this.held();
            this.held = () => {};
        }
    }

    /** A hidden page has no frames, so the program rests until it is seen again. */
    onNextFrame(goOn) {
        this.isWaiting = true;
        requestAnimationFrame(() => {
            if (this.isHeld) {
                this.held = () => this.onNextFrame(goOn);
            } else {
                this.goOn(goOn);
            }
        });
    }

    onTime(milliseconds, goOn) {
        this.isWaiting = true;
        setTimeout(() => this.goOn(goOn), milliseconds);
    }

    /** A program that does not wait again has ended. */
    goOn(goOn) {
        this.isWaiting = false;
        try {
            goOn();
        } catch (thrown) {
            if (thrown.name !== "ExitStatus") {
                throw thrown;
            }
        }
        this.isWaiting ? this.page.frame() : this.page.end();
    }
}
