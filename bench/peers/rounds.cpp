// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "rounds.h"

#include "foundation/chance.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace velm::peers {

namespace {

constexpr std::size_t rounds = 15;
/// A round lasts about this long, so that the clock's grain does not count.
constexpr double roundNanoseconds = 3e6;
constexpr double longNanoseconds = 1e8;

/// The processor time that this thread has used: what other programs take meanwhile does not count.
double nanosecondsUsed() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e9 + static_cast<double>(used.tv_nsec);
}

/// What one run takes, the mean of so many.
double nanosecondsOf(const Contender& contender, std::int32_t times) {
    const double begin = nanosecondsUsed();
    for (std::int32_t i = 0; i < times; ++i) {
        contender.run();
    }
    return (nanosecondsUsed() - begin) / times;
}

/// How often the contender runs in a round: as often as a round has time for, at least once.
std::int32_t timesInRound(const Contender& contender) {
    return std::max(1,
                    static_cast<std::int32_t>(roundNanoseconds / std::max(nanosecondsOf(contender, 1), 1.0)));
}

Cost costOf(std::vector<double> taken, std::int64_t pixels) {
    std::sort(taken.begin(), taken.end());
    return {taken.front(), taken[taken.size() / 2], taken.front() / static_cast<double>(pixels)};
}

/// The costs of all contenders, who take turns in every round. A run that does not count brings back what the
/// others have driven out of the caches; one that lasts long does so itself.
std::vector<Cost> takeTurns(const std::vector<Contender>& contenders, std::int64_t pixels) {
    std::vector<std::int32_t> times;
    for (const Contender& contender : contenders) {
        times.push_back(timesInRound(contender));
    }
    std::vector<std::vector<double>> taken(contenders.size());
    for (std::size_t round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            if (taken[i].empty() || taken[i].back() < longNanoseconds) {
                contenders[i].run();
            }
            taken[i].push_back(nanosecondsOf(contenders[i], times[i]));
        }
    }
    std::vector<Cost> costs;
    for (std::vector<double>& of : taken) {
        costs.push_back(costOf(std::move(of), pixels));
    }
    return costs;
}

Row& rowOf(Table& table, const std::string& work, const std::string& peer) {
    const auto found = std::find_if(table.rows.begin(), table.rows.end(),
                                    [&](const Row& row) { return row.work == work && row.peer == peer; });
    return found != table.rows.end() ? *found : table.rows.emplace_back(Row{work, peer, "", {}, {}});
}

std::string number(double value, int decimals) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%.*f", decimals, value);
    return digits.data();
}

/// Ours to theirs: of the minima and, in brackets, of the medians.
std::string ratioOf(Cost ours, Cost theirs) {
    constexpr int decimals = 2;
    return number(ours.least / theirs.least, decimals) + " (" +
           number(ours.median / theirs.median, decimals) + ")";
}

/// Prints the last of a row's measurements.
void reportMeasured(Size size, const Row& row) {
    constexpr double millisecond = 1e6;
    const Cost ours = row.ours.back();
    const Cost theirs = row.theirs.back();
    std::fprintf(stderr, "%14s  %-18s %4d x %-4d  %-20s  ours %9.3f (%.3f) ms, theirs %9.3f (%.3f) ms  %s\n",
                 ratioOf(ours, theirs).c_str(), row.work.c_str(), size.width, size.height, row.peer.c_str(),
                 ours.least / millisecond, ours.median / millisecond, theirs.least / millisecond,
                 theirs.median / millisecond, row.agreement.c_str());
}

/// The cost at every size, smallest first.
std::string overSizes(const std::vector<Cost>& costs) {
    std::string all;
    for (const Cost& cost : costs) {
        const int decimals = cost.leastOfPixel < 1 ? 3 : cost.leastOfPixel < 10 ? 2 : 1;
        all += (all.empty() ? "" : " · ") + number(cost.leastOfPixel, decimals);
    }
    return all;
}

} // namespace

void compare(Table& table, const std::string& work, std::int64_t pixels,
             const std::vector<Contender>& contenders) {
    for (const Contender& contender : contenders) {
        contender.run();
    }
    std::vector<Agreement> agreements;
    for (const Contender& contender : contenders) {
        agreements.push_back(contender.compared ? contender.compared() : Agreement{"", true});
    }
    const std::vector<Cost> costs = takeTurns(contenders, pixels);
    for (std::size_t i = 1; i < contenders.size(); ++i) {
        Row& row = rowOf(table, work, contenders[i].name);
        row.agreement = agreements[i].words;
        row.ours.push_back(costs[0]);
        row.theirs.push_back(costs[i]);
        table.agreed = table.agreed && agreements[i].holds;
        reportMeasured(table.size, row);
    }
}

void compare(Table& table, const std::string& work, const std::vector<Contender>& contenders) {
    compare(table, work, table.size.pixels(), contenders);
}

void printTable(const Table& table) {
    std::printf("|");
    for (const Size size : sizes) {
        std::printf(" %d x %d |", size.width, size.height);
    }
    std::printf(" work | peer | ours, ns a pixel | theirs, ns a pixel | result |\n");
    std::printf("|---:|---:|---:|---|---|---|---|---|\n");
    for (const Row& row : table.rows) {
        std::printf("|");
        for (std::size_t i = 0; i < row.ours.size(); ++i) {
            std::printf(" %-11s |", ratioOf(row.ours[i], row.theirs[i]).c_str());
        }
        std::printf(" %-17s | %-19s | %-20s | %-20s | %-13s |\n", row.work.c_str(), row.peer.c_str(),
                    overSizes(row.ours).c_str(), overSizes(row.theirs).c_str(), row.agreement.c_str());
    }
}

Agreement agreementWithin(std::int64_t difference, std::int64_t tolerance) {
    const std::string words = difference == 0 ? "same" : "within " + std::to_string(difference);
    return {difference <= tolerance ? words : "DIFFERS by " + std::to_string(difference),
            difference <= tolerance};
}

Agreement agreement(const IMG& ours, const void* theirs, std::int32_t tolerance) {
    const auto* const words = static_cast<const std::uint32_t*>(theirs);
    std::int32_t most = 0;
    for (std::int32_t i = 0; i < ours.width * ours.height; ++i) {
        for (std::uint32_t shift = 0; shift < 24; shift += 8) {
            const auto a = static_cast<std::int32_t>((ours.pixels[i] >> shift) & 0xFFU);
            const auto b = static_cast<std::int32_t>((words[i] >> shift) & 0xFFU);
            most = std::max(most, std::abs(a - b));
        }
    }
    return agreementWithin(most, tolerance);
}

Owned<IMG_delete> noise(Size size, bool holes) {
    constexpr std::int32_t tile = 64;
    constexpr std::int32_t radius = 24;
    Owned<IMG_delete> picture(IMG_newSized(size.width, size.height));
    for (std::int32_t i = 0; i < size.pixels(); ++i) {
        const std::int32_t x = i % size.width % tile - tile / 2;
        const std::int32_t y = i / size.width % tile - tile / 2;
        const bool inHole = holes && x * x + y * y < radius * radius;
        picture->pixels[i] = inHole ? 0 : (static_cast<std::uint32_t>(chance()) & 0xFFFFFF) | 1;
    }
    return picture;
}

} // namespace velm::peers
