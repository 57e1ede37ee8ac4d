// Owner names by the naming custom of a race, drawn from the word lists below "Borough".
#pragma once

#include "base/Dice.h"
#include "base/Disk.h"
#include "files/FileFailure.h"

#include <optional>
#include <string>
#include <string_view>

namespace emporium {

/// Draws names by dice; keeps nothing but the first list that gave none.
class NameLists {
public:
    NameLists(const Disk& disk, const Die& die);

    /// One line of the list, each equally likely; empty if the list can't be read or has no
    /// line.
    std::string DrawName(std::string_view list);

    /// A throw of the dice with n sides.
    std::int32_t Throw(std::int32_t n) const { return die_(n); }

    /// The list that gave no name, and why; nothing if all did.
    const std::optional<FileFailure>& Failure() const { return failure_; }

private:
    const Disk& disk_;
    const Die& die_;
    std::optional<FileFailure> failure_;
};

/// A name of the race. `sex` is "Männlich" or "Weiblich"; empty or "Zufall" has it drawn, and
/// the drawn word is left there ("Mohas" has no need of it and leaves it alone). A race beyond
/// the known ones takes its names from the lists that bear its name. The lists' Failure tells
/// whether the name is whole.
std::string GenName(NameLists& lists, std::string_view race, std::string& sex);

} // namespace emporium
