// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/velm4030.h"

int main() {
    velm::VELM4030_main();
}
