// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/rgb888.h"

#include "foundation/report.h"

namespace velm {

const IDENTITY RGB888_identity = makeIdentity("RGB888", "20150327", "C", "CODE", "ZENDORAK");
std::uint8_t RGB888_verbose = 0;

void RGB888_error() {
    reportLine(RGB888_verbose, "RGB888 error");
}

} // namespace velm
