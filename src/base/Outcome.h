// What an operation on files came to, from where it failed up to the one box that tells it.
#pragma once

#include "base/Platform.h"

#include <string>

namespace emporium {

/// What an operation came to, and what the user is to be told of it.
struct [[nodiscard]] Outcome {
    bool stands = false; // what was wanted is on the disk, or will be when a failure has passed
    std::string text;    // of a box that opens when all is over; mostly empty
};

/// Opens the outcome's box if there is something to tell; true if what was wanted stands.
inline bool Tell(const Platform& platform, const Outcome& outcome) {
    if (!outcome.text.empty())
        platform.ShowMessage(outcome.text);
    return outcome.stands;
}

} // namespace emporium
