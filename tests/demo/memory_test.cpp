// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The program without enough memory. At the allocations of one start-up children branch off, each of which is
// refused that allocation and shows frames until Escape, or ends as it should.
#include "demo_run.h"
#include "support/allocation.h"

#include <sys/wait.h>
#include <unistd.h>

namespace velm::test {
namespace {

enum class Shortage { once, forGood };

struct Search {
    Shortage shortage;
    bool isChild = false;
    bool metMusic = false;
    std::int32_t allocations = 0;
    std::int32_t runs = 0;   ///< children that showed frames and left by Escape
    std::int32_t ends = 0;   ///< children that said that memory ran out
    std::int32_t faults = 0; ///< all others
};
Search search;

bool isAtLineFonts() {
    return demo.fontBitmap6 != nullptr && demo.textLarge == nullptr;
}

bool isAtMusic() {
    return demo.mouseTrail != nullptr && demo.mouseTrail->image != nullptr && demo.random == nullptr;
}

/// Glyphs are made alike, and so are instruments: of those, primes give each kind of allocation its turn.
bool isChosen() {
    return search.allocations % (sparing * (isAtLineFonts() ? 197 : isAtMusic() ? 23 : 1)) == 0;
}

void becomeChild(std::FILE* said) {
    search.isChild = true;
    constexpr unsigned mostSeconds = 300;
    alarm(mostSeconds);
    dup2(fileno(said), STDERR_FILENO);
}

/// Counts how a child ended, and what it said on its standard error.
void judge(int status, std::FILE* said) {
    char text[4096];
    std::rewind(said);
    text[std::fread(text, 1, sizeof text - 1, said)] = '\0';
    const std::string_view line = text;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0 && line.empty()) {
        ++search.runs;
    } else if (WIFEXITED(status) && WEXITSTATUS(status) == 1 && line == "velm4030: out of memory\n") {
        ++search.ends;
    } else {
        ++search.faults;
        std::fprintf(stderr, "without allocation %d: status %04x, \"%s\"\n", search.allocations, status,
                     text);
    }
}

bool isRefused() {
    if (search.isChild) {
        // The music takes most of the time, and its lack troubles nothing that is made before it.
        const bool isFirstOfMusic = isAtMusic() && !search.metMusic;
        search.metMusic |= isFirstOfMusic;
        return isFirstOfMusic || search.shortage == Shortage::forGood;
    }
    ++search.allocations;
    search.metMusic |= isAtMusic();
    if (!isChosen()) {
        return false;
    }
    std::FILE* const said = std::tmpfile();
    const pid_t child = fork();
    if (child == 0) {
        becomeChild(said);
        return true;
    }
    int status = 0;
    waitpid(child, &status, 0);
    judge(status, said);
    std::fclose(said);
    return false;
}

/// A child ends with 0 by Escape alone, the parent when enough children ended each way, and none otherwise.
/// Nothing else runs at the end: what is lost on the way is no leak here.
void conclude(int status, void*) {
    const bool isEscape = status == 0 && (demo.control & controlExit) != 0;
    if (search.isChild) {
        _exit(status == 0 && !isEscape ? 2 : status);
    }
    std::fprintf(stderr, "%d allocations, %d runs, %d ends\n", search.allocations, search.runs, search.ends);
    // After the clock come only the sound's block and what the scene makes.
    const bool areMostEnds = search.ends > search.runs;
    const bool isExpected = areMostEnds == (search.shortage == Shortage::forGood);
    _exit(isEscape && isExpected && search.ends * sparing > 4 && search.faults == 0 ? 0 : 1);
}

[[noreturn]] void searchProgram(Shortage shortage) {
    constexpr std::uint32_t passes = 32; // of the fade that the first scene begins with
    search.shortage = shortage;
    VEC2D_verbose = 0;
    pressAt(passes + 3, 27);
    on_exit(conclude, nullptr);
    const AskedAllocations asked(isRefused);
    VELM4030_main();
}

TEST(Memory, AProgramWithoutOneAllocationRunsOrSaysSo) {
    testing::FLAGS_gtest_death_test_style = "threadsafe"; // a process that has not started up
    EXPECT_EXIT(searchProgram(Shortage::once), testing::ExitedWithCode(0), "");
}

TEST(Memory, AProgramThatRunsOutOfMemorySaysSo) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(searchProgram(Shortage::forGood), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace velm::test
