// The availability string of an item: the codes of the regions where it is made, each followed by
// "|", in alphabetical order. Here are its forms and the text that documents show for it; the
// editor of the item form is in itemeditor/AvailabilityEditor.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// The string that names all twenty regions.
const std::string& FullAvailability();

/// The string for the codes, in the order in which they come.
std::string BuildAvailability(const std::vector<std::string>& codes);

/// The pieces between the "|" marks, without the empty one behind the last mark.
std::vector<std::string_view> AvailabilityCodes(std::string_view availability);

/// How a document tells the string.
enum class AvailabilityForm { Everywhere, Exceptions, Codes };
AvailabilityForm FormOf(std::string_view availability);

/// The text for a document: "Überall" for all regions, the string itself for up to three regions,
/// the regions that are missing for more.
std::string AvailabilityText(std::string_view availability);

/// "Alle, ausser " and each missing code with ", " behind it, in table order.
std::string AvailabilityExceptions(std::string_view availability);

} // namespace emporium
