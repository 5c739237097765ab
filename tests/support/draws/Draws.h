// Draws that a test chooses.
#pragma once

#include "Azar.h"

#include <stdexcept>
#include <utility>
#include <vector>

// Runs `rule` once for each way in which its draws can come out; a way that goes on after `most` of them is cut off.
template <class Rule>
void ForAllDraws(std::size_t most, Rule rule)
{
    struct Draw
    {
        int count;
        int drawn;
    };
    struct TooMany
    {
    };
    const struct Restore
    {
        ~Restore() { numeros::SustituirSorteo({}); }
    } restore;
    std::vector<Draw> draws; // of the last run
    for (bool isMore = true; isMore;) {
        std::size_t next = 0;
        numeros::SustituirSorteo([&](int count) {
            if (next == most) {
                throw TooMany();
            }
            if (next == draws.size()) {
                draws.push_back({count, 0});
            }
            return draws[next++].drawn;
        });
        try {
            rule();
        } catch (const TooMany&) { // NOLINT(bugprone-empty-catch): the rule goes on drawing
        }
        while (!draws.empty() && draws.back().drawn == draws.back().count - 1) {
            draws.pop_back();
        }
        isMore = !draws.empty();
        if (isMore) {
            ++draws.back().drawn;
        }
    }
}

// Has the draws come out as told, counted from 0, and then as 0. One that cannot come out so throws std::out_of_range.
inline void DrawNext(std::vector<int> drawn)
{
    numeros::SustituirSorteo([drawn = std::move(drawn), next = std::size_t{0}](int count) mutable {
        const int value = next < drawn.size() ? drawn[next++] : 0;
        if (value >= count) {
            throw std::out_of_range("a draw beyond its count");
        }
        return value;
    });
}

// Has each draw come out as the greatest number that it can.
inline void DrawGreatest()
{
    numeros::SustituirSorteo([](int count) { return count - 1; });
}
