// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sound: a worklet that plays what it is sent, behind a volume. Where the browser has none, or refuses,
// play() answers false and the demo goes on in silence.
//
//     const speaker = new Speaker(samplesAhead, ({ waiting, received }) => ...);
//     await speaker.open();
//     speaker.play(samples); // an Int16Array, which is gone afterwards
"use strict";

class Speaker {
    constructor(samplesAhead, onReport) {
        this.samplesAhead = samplesAhead;
        this.onReport = onReport;
        this.node = null;
    }

    /** Opens the sound; rejects where there is none. To be called in a click, or the browser keeps it silent. */
    async open() {
        this.context = new AudioContext({ sampleRate: 44100, latencyHint: "interactive" });
        this.volume = this.context.createGain();
        this.volume.connect(this.context.destination);
        // A page that was opened as a file may load no blob, but data.
        const source = document.getElementById("speaker-worklet").textContent;
        await this.context.audioWorklet.addModule(`data:text/javascript,${encodeURIComponent(source)}`);
        const node = new AudioWorkletNode(this.context, "speaker", {
            numberOfInputs: 0,
            outputChannelCount: [1],
            processorOptions: { samplesAhead: this.samplesAhead },
        });
        node.port.onmessage = (message) => this.onReport(message.data);
        node.connect(this.volume);
        await this.context.resume();
        this.node = node;
    }

    isOpen() {
        return this.node !== null;
    }

    play(samples) {
        if (!this.isOpen()) {
            return false;
        }
        this.node.port.postMessage(samples, [samples.buffer]);
        return true;
    }

    /** From 0 to 1, at once. */
    setVolume(volume) {
        if (this.volume) {
            this.volume.gain.value = volume;
        }
    }

    /** Rests with all that waits, and goes on with it. */
    rest(rests) {
        if (this.isOpen()) {
            const done = rests ? this.context.suspend() : this.context.resume();
            done.catch(() => {}); // it was closed meanwhile
        }
    }

    close() {
        this.node = null;
        if (this.context) {
            this.context.close();
        }
    }
}
