// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// browser.h in the browser: the machine's words, as calls to the page that runs the program (Module.page). Two
// of them wait; the others return at once.
mergeInto(LibraryManager.library, {
    browserShow: function (pixels, width, height) {
        const bytes = new Uint8ClampedArray(HEAPU8.buffer, pixels, 4 * width * height);
        Module["page"].show(new ImageData(bytes, width, height));
    },

    browserWaitForDisplay__deps: ["$Asyncify"],
    browserWaitForDisplay: function () {
        Asyncify.handleSleep((goOn) => Module["page"].onNextFrame(goOn));
    },

    browserWait__deps: ["$Asyncify"],
    browserWait: function (micros) {
        Asyncify.handleSleep((goOn) => Module["page"].onTime(micros / 1000, goOn));
    },

    browserPlay: function (samples, count) {
        return Module["page"].play(HEAP16.slice(samples / 2, samples / 2 + count)) ? 1 : 0;
    },
});
