// The dice of the running program and their clock.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace emporium {

/// A throw of a die with n sides, 1 to n.
using Die = std::function<std::int32_t(std::int32_t n)>;

/// The clock of the dice: seconds since midnight with their fraction, in no particular time zone,
/// which would take longer to look up than the throw.
float SecondsSinceMidnight();

/// The dice of the running program. Every throw reads the clock and reseeds from it; the clock's
/// value is folded into the generator's state, so that throws within one tick are independent.
class Dice {
public:
    /// The clock gives the seconds since midnight with their fraction.
    explicit Dice(std::function<float()> clock) : clock_(std::move(clock)) {}

    /// A whole number from 1 to n, each equally likely; 1 for an n below 2.
    std::int32_t RollDice(std::int32_t n);

private:
    std::function<float()> clock_;
    std::uint64_t state_ = 0;
};

} // namespace emporium
