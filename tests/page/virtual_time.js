// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Goes into a page before its own scripts: the browser's clock becomes a virtual one that runs as fast as the page
// works, the speaker one that plays by it, and checksums are kept of what they and the canvas are given.
"use strict";

const table = Uint32Array.from({ length: 256 }, (_, byte) => {
    for (let bit = 0; bit < 8; ++bit) {
        byte = byte & 1 ? 0xedb88320 ^ (byte >>> 1) : byte >>> 1;
    }
    return byte;
});

const crcOfByte = (crc, byte) => table[(crc ^ byte) & 255] ^ (crc >>> 8);

const virtual = {
    now: 0, // milliseconds
    limit: Infinity, // frames after which the display stops
    frames: [], // their checksums
    soundCrc: -1,
    samples: 0,
    report: () => {},
};

/** CRC-32 of a picture's words 0x00RRGGBB, low byte first. */
function crcOfPicture({ data }) {
    let crc = -1;
    for (let i = 0; i < data.length; i += 4) {
        crc = crcOfByte(crcOfByte(crcOfByte(crcOfByte(crc, data[i + 2]), data[i + 1]), data[i]), 0);
    }
    return ~crc >>> 0;
}

/** That of samples, continued. */
function crcOfSamples(crc, samples) {
    return new Uint8Array(samples.buffer).reduce(crcOfByte, crc);
}

performance.now = () => virtual.now;
Date.now = () => 1e12 + virtual.now;

const display = new MessageChannel();
let onFrame = null;
display.port1.onmessage = () => {
    virtual.now += 1000 / 60;
    virtual.report();
    onFrame(virtual.now);
};
requestAnimationFrame = (callback) => {
    onFrame = callback;
    if (virtual.frames.length < virtual.limit) {
        display.port2.postMessage(0);
    }
};

const putImageData = CanvasRenderingContext2D.prototype.putImageData;
CanvasRenderingContext2D.prototype.putImageData = function (image, ...place) {
    virtual.frames.push(crcOfPicture(image).toString(16).padStart(8, "0"));
    putImageData.call(this, image, ...place);
};

AudioContext = class {
    audioWorklet = { addModule: async () => {} };
    createGain = () => ({ gain: {}, connect() {} });
    async resume() {}
    async suspend() {}
    async close() {}
};

AudioWorkletNode = class {
    constructor(context, name, { processorOptions }) {
        let begin = 0;
        virtual.report = () => {
            const waiting = processorOptions.samplesAhead + virtual.samples - Math.round((virtual.now - begin) * 44.1);
            virtual.samples > 0
                ? this.port.onmessage({ data: { waiting, received: virtual.samples } })
                : (begin = virtual.now);
        };
    }
    connect() {}
    port = {
        postMessage(samples) {
            virtual.soundCrc = crcOfSamples(virtual.soundCrc, samples);
            virtual.samples += samples.length;
        },
    };
};
