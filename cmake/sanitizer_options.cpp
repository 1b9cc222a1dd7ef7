// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the sanitizers' runtime asks a program of.

extern "C" {

const char* __asan_default_options();
const char* __lsan_default_options();
const char* __lsan_default_suppressions();

/// Other libraries may be loaded before the runtime, as the tests' own are.
const char* __asan_default_options() {
    return "verify_asan_link_order=0";
}

const char* __lsan_default_options() {
    return "print_suppressions=0";
}

/// What libraries of the player keep for the life of the process, and of a sound device that was closed; and
/// the strokes of a kit's fonts, which drawings may share, so that nobody frees them.
const char* __lsan_default_suppressions() {
    return "leak:libdbus-1.so\nleak:libpulse\nleak:libSDL2\nleak:KIT_new\n";
}

} // extern "C"
