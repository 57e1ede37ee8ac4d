#include "base/Dice.h"

#include <bit>
#include <chrono>

namespace emporium {

namespace {

// Mixes all bits of the state into all bits of the result (the finalizer of MurmurHash3).
std::uint64_t Mix(std::uint64_t x) {
    x = (x ^ (x >> 33U)) * 0xff51afd7ed558ccdU;
    x = (x ^ (x >> 33U)) * 0xc4ceb9fe1a85ec53U;
    return x ^ (x >> 33U);
}

} // namespace

float SecondsSinceMidnight() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<float>(now % std::chrono::days(1)).count();
}

std::int32_t Dice::RollDice(std::int32_t n) {
    constexpr std::uint64_t step = 0x9e3779b97f4a7c15U;
    state_ = Mix(state_ + step) ^ std::bit_cast<std::uint32_t>(clock_());
    const auto u = static_cast<float>(Mix(state_) >> 40U) * 0x1p-24F; // 24 bits: exact, below 1
    if (n < 2)
        return 1;
    return static_cast<std::int32_t>(static_cast<double>(u) * n) + 1;
}

} // namespace emporium
