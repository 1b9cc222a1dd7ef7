// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a test of the page finds: it goes on, so that one run tells all, and fails in the end.
let findings = 0;

export function check(holds, finding) {
    if (!holds) {
        ++findings;
        console.error(finding);
    }
}

export function finish() {
    process.exit(findings === 0 ? 0 : 1);
}
