#include "documents/HTMLExport.h"

#include "regions/Availability.h"

namespace emporium {

void HTMLLine(std::string_view text, std::string& file) {
    file.append(text).append("\r\n");
}

void HTMLHead(std::string_view title, std::string& file) {
    HTMLLine("<html>", file);
    HTMLLine("<head>", file);
    HTMLLine(std::string("<title>").append(title).append("</title>"), file);
    HTMLLine("</head>", file);
}

void HTMLHeading(std::string_view text, std::int16_t level, std::string& file) {
    const std::string tag = "H" + std::to_string(level) + ">";
    HTMLLine(("<" + tag).append(text).append("</" + tag), file);
}

void HTMLLabelLine(std::string_view label, std::string_view value, std::string& file) {
    HTMLLine(std::string("<B>").append(label).append("</B> ").append(value).append("</BR>"), file);
}

void HTMLBreaks(std::int16_t count, std::string& file) {
    for (std::int16_t i = 0; i < count; ++i)
        HTMLLine("</BR>", file);
}

void HTMLTableOpen(std::string& file) {
    HTMLLine(R"(<table border="1" width="100%" bordercolor="#FFFFFF" cellspacing="0" )"
             R"(bordercolorlight="#FFFFFF" bordercolordark="#C0C0C0">)",
             file);
}

void HTMLHeaderCell(std::string_view text, std::string& file) {
    HTMLLine(std::string("<TD bgcolor=white FontColor=black><b>").append(text).append("</b></TD>"),
             file);
}

void HTMLCell(std::string_view text, std::string_view width, std::string& file) {
    file.append("<td width=\"").append(width).append("\"><small><font face=\"Arial\">");
    file.append(text);
    HTMLLine("</font></small></td>", file);
}

void HTMLAvailabilityCell(std::string_view availability, std::string& file) {
    const bool narrow = FormOf(availability) == AvailabilityForm::Codes;
    HTMLCell(AvailabilityText(availability), narrow ? "25%" : "35%", file);
}

} // namespace emporium
