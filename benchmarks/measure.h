// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <algorithm>
#include <cstdio>
#include <vector>

/// What the benchmarks share: several rounds of something and its peer, in turns, as a table.
namespace Measure {

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

inline void printHead(const char* title)
{
    std::printf("\n%-58s %12s %12s %7s\n", title, "ours", "peer", "ratio");
}

inline void printRow(const char* name, double ours, double peer)
{
    std::printf("%-58s %12.2f %12.2f %7.2f\n", name, ours, peer, peer > 0 ? ours / peer : 0.0);
}

/// Calls `ours` and `peer`, which return a measurement each, `rounds` times in turns, after one
/// round each that does not count, and prints the medians.
template <typename Ours, typename Peer>
void compare(const char* name, int rounds, Ours ours, Peer peer)
{
    std::vector<double> ourValues;
    std::vector<double> peerValues;
    ours();
    peer();
    for (int i = 0; i < rounds; ++i) {
        ourValues.push_back(ours());
        peerValues.push_back(peer());
    }
    printRow(name, median(ourValues), median(peerValues));
}

} // namespace Measure
