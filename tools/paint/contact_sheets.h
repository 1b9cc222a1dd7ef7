// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Contact sheets: all the art enlarged, to be looked at before it is committed.
//
//     bool written = writeContactSheets("sheets");
#pragma once

#include <string>

namespace velm::paint {

/// Writes PNG files into an existing directory: each font's characters and a pangram once as they are and
/// once four times as large, every picture four times as large, every drawing as the demo shows it at eight
/// angles. False, after a message on stderr, when a file cannot be written.
bool writeContactSheets(const std::string& directory);

} // namespace velm::paint
