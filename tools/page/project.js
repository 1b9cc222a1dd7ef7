// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The page of a program on the library. It knows no pause, so the page holds its frames back.
"use strict";

class ProjectPage extends Page {
    acts() {
        return { ...super.acts(), pause: () => this.pause() };
    }

    pause() {
        this.run.hold(!this.run.isHeld);
        this.rest(this.run.isHeld);
        this.tell();
    }

    /** A paused page stays so when it is seen again. */
    rest(rests) {
        super.rest(rests || this.run.isHeld);
    }

    state() {
        const state = super.state();
        state.pressed.pause = this.run.isHeld;
        return state;
    }
}

openPage(ProjectPage);
