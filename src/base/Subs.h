// Small routines that every part of the program shares: settings files, the test for a file, dice.
#pragma once

#include "files/FileLayer.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace emporium {

/// A settings file: section heads in square brackets, lines of the form key=value.
///
/// Sections and keys are found without regard to case, blanks around them and around values are
/// dropped, and so is one matching pair of quotes around a value. A line that begins with ";" is a
/// comment. Of two equal keys or sections the first counts. A value has at most 254 characters.
class IniFile {
public:
    IniFile() = default;
    explicit IniFile(std::string_view text);

    /// The value, empty if there is no such section or key.
    std::string Value(std::string_view section, std::string_view key) const;

private:
    std::unordered_map<std::string, std::string> values_; // by section, NUL, key, both folded
};

/// One value of a settings file, see IniFile; empty for a file that can't be read.
std::string ReadIniValue(const FileLayer& files, const std::filesystem::path& file,
                         std::string_view section, std::string_view key);

/// True if the path names a file that is neither hidden nor a folder, or if the system can't tell:
/// reading it then says why. The name may hold the wildcards "*" and "?"; one matching file is
/// enough then.
bool FileExists(const FileLayer& files, const std::filesystem::path& path);

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
