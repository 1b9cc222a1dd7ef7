// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The picture: as large as whole multiples of the display's own pixels allow, in the middle of the stage.
//
//     const screen = new Screen(stage, canvas, layoutIn);
//     screen.show(imageData);
"use strict";

class Screen {
    /** `layoutIn` gives scale, left and top of a picture of a width and a height in a window of a width and a height. */
    constructor(stage, canvas, layoutIn) {
        this.stage = stage;
        this.canvas = canvas;
        this.layoutIn = layoutIn;
        this.context = canvas.getContext("2d", { alpha: false });
        new ResizeObserver(() => this.layOut()).observe(stage);
        this.layOut();
    }

    show(image) {
        if (this.canvas.width !== image.width || this.canvas.height !== image.height) {
            this.canvas.width = image.width;
            this.canvas.height = image.height;
            this.layOut();
        }
        this.context.putImageData(image, 0, 0);
    }

    /** Shows an element of the page, for as long as nothing plays. */
    showStill(still) {
        this.context.drawImage(still, 0, 0);
    }

    layOut() {
        const ratio = devicePixelRatio;
        const place = this.stage.getBoundingClientRect();
        const size = [Math.floor(place.width * ratio), Math.floor(place.height * ratio)];
        const [scale, left, top] = this.layoutIn(this.canvas.width, this.canvas.height, ...size);
        const style = this.canvas.style;
        style.width = `${(this.canvas.width * scale) / ratio}px`;
        style.height = `${(this.canvas.height * scale) / ratio}px`;
        style.left = `${left / ratio}px`;
        style.top = `${top / ratio}px`;
    }

    /** Where an event of the pointer is, in pixels of the picture. */
    placeOf(event) {
        const place = this.canvas.getBoundingClientRect();
        const inPicture = (at, begin, length, pixels) => Math.floor(((at - begin) * pixels) / length);
        return [
            inPicture(event.clientX, place.left, place.width, this.canvas.width),
            inPicture(event.clientY, place.top, place.height, this.canvas.height),
        ];
    }

    /** The picture as a file, for the viewer to keep. */
    keep() {
        this.canvas.toBlob((picture) => {
            const link = document.createElement("a");
            link.href = URL.createObjectURL(picture);
            link.download = `${document.title.toLowerCase()}.png`;
            link.click();
            setTimeout(() => URL.revokeObjectURL(link.href), 1000);
        });
    }
}
