// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The demo on the terminal machine of docs/machines.md, as its reader would start it.
#include "demo/velm4030.h"

int main() {
    velm::VELM4030_main();
}
