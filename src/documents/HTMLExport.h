// The fixed pieces of which the documents are made. Each routine appends whole lines, ended by
// CR LF, to the document's text. Values are written as they are, nothing is escaped.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace emporium {

void HTMLLine(std::string_view text, std::string& document);
void HTMLHead(std::string_view title, std::string& document);
void HTMLHeading(std::string_view text, std::int16_t level, std::string& document);

/// The label brings its own trailing blank; one more follows it.
void HTMLLabelLine(std::string_view label, std::string_view value, std::string& document);

/// `count` line breaks, each on its line; a count below 1 writes nothing.
void HTMLBreaks(std::int16_t count, std::string& document);

void HTMLTableOpen(std::string& document);
void HTMLHeaderCell(std::string_view text, std::string& document);

/// `width` is a percentage with its sign.
void HTMLCell(std::string_view text, std::string_view width, std::string& document);

/// The cell of an item's regions; its width follows from how they are told.
void HTMLAvailabilityCell(std::string_view availability, std::string& document);

} // namespace emporium
