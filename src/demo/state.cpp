// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/state.h"

namespace velm {

DemoState demo{};
DemoSettings settings{};

} // namespace velm
