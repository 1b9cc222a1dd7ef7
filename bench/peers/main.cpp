// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// bench_peers [TOPIC...]: every topic, or those named, at every size. What is measured comes on the standard
// error stream as it goes, the table at the end on the standard output. Ends with 1 where a result is not
// what it should be.
#include "rounds.h"

#include <algorithm>
#include <cstdio>
#include <opencv2/core.hpp>

namespace {

struct Topic {
    const char* name;
    void (*run)(velm::peers::Table& table);
};

constexpr std::array<Topic, 5> topics = {{{"blits", velm::peers::blits},
                                          {"filters", velm::peers::filters},
                                          {"decoding", velm::peers::decoding},
                                          {"lines", velm::peers::lines},
                                          {"sound", velm::peers::sound}}};

} // namespace

int main(int argc, char** argv) {
    // We have one thread, and so have they.
    cv::setNumThreads(1);
    const std::vector<std::string> named(argv + 1, argv + argc);
    velm::peers::Table table{};
    for (const Topic& topic : topics) {
        if (!named.empty() && std::find(named.begin(), named.end(), topic.name) == named.end()) {
            continue;
        }
        for (const velm::peers::Size size : velm::peers::sizes) {
            table.size = size;
            topic.run(table);
        }
    }
    if (table.rows.empty()) {
        std::fprintf(stderr, "bench_peers [blits] [filters] [decoding] [lines] [sound]\n");
        return 2;
    }
    printTable(table);
    return table.agreed ? 0 : 1;
}
