#include "regions/Availability.h"

#include "regions/AtlasEngine.h"
#include "text/Ansi.h"

namespace emporium {

namespace {

constexpr char Mark = '|';
constexpr std::size_t LongestCodeText = 10; // three regions fit, four do not

} // namespace

const std::string& FullAvailability() {
    static const std::string full = [] {
        const auto codes = AlphabeticalRegionCodes();
        return BuildAvailability({codes.begin(), codes.end()});
    }();
    return full;
}

std::string BuildAvailability(const std::vector<std::string>& codes) {
    std::string availability;
    for (const std::string& code : codes)
        availability += code + Mark;
    return availability;
}

std::vector<std::string_view> AvailabilityCodes(std::string_view availability) {
    std::vector<std::string_view> codes;
    codes.reserve(availability.size() / 3);
    while (!availability.empty()) {
        const auto mark = availability.find(Mark);
        codes.push_back(availability.substr(0, mark));
        availability.remove_prefix(mark == availability.npos ? availability.size() : mark + 1);
    }
    return codes;
}

AvailabilityForm FormOf(std::string_view availability) {
    if (availability == FullAvailability())
        return AvailabilityForm::Everywhere;
    return availability.size() > LongestCodeText ? AvailabilityForm::Exceptions
                                                 : AvailabilityForm::Codes;
}

std::string AvailabilityText(std::string_view availability) {
    switch (FormOf(availability)) {
    case AvailabilityForm::Everywhere:
        return std::string("Überall"_ansi);
    case AvailabilityForm::Exceptions:
        return AvailabilityExceptions(availability);
    case AvailabilityForm::Codes:
        break;
    }
    return std::string(availability);
}

std::string AvailabilityExceptions(std::string_view availability) {
    std::string text = "Alle, ausser ";
    for (std::size_t i = 1; i <= RegionCount; ++i)
        if (availability.find(RegionCodes[i]) == availability.npos)
            text.append(RegionCodes[i]).append(", ");
    return text;
}

} // namespace emporium
