// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The speaker's own thread: plays the blocks that it is sent, one after the other, and tells now and then how
// many samples wait. One that ran dry begins anew with a silence, so that there is something ahead.
"use strict";

class SpeakerProcessor extends AudioWorkletProcessor {
    constructor(options) {
        super();
        this.silence = options.processorOptions.samplesAhead;
        this.blocks = [];
        this.position = 0; // in the first block
        this.waiting = 0; // samples in all blocks that are still to be played
        this.received = 0;
        this.calls = 0;
        this.port.onmessage = (message) => this.take(message.data);
    }

    take(block) {
        if (this.waiting === 0) {
            this.append(new Int16Array(this.silence));
        }
        this.append(block);
        this.received += block.length;
    }

    append(block) {
        this.blocks.push(block);
        this.waiting += block.length;
    }

    next() {
        const sample = this.blocks[0][this.position++];
        if (this.position === this.blocks[0].length) {
            this.blocks.shift();
            this.position = 0;
        }
        --this.waiting;
        return sample / 32768;
    }

    process(inputs, [[channel]]) {
        for (let i = 0; i < channel.length; ++i) {
            channel[i] = this.waiting > 0 ? this.next() : 0;
        }
        const callsPerReport = 8;
        if (++this.calls % callsPerReport === 0) {
            this.port.postMessage({ waiting: this.waiting, received: this.received });
        }
        return true;
    }
}

registerProcessor("speaker", SpeakerProcessor);
