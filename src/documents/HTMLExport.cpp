#include "documents/HTMLExport.h"

#include "regions/Availability.h"

namespace emporium {

void HTMLLine(std::string_view text, std::string& document) {
    document.append(text).append("\r\n");
}

void HTMLHead(std::string_view title, std::string& document) {
    HTMLLine("<html>", document);
    HTMLLine("<head>", document);
    HTMLLine(std::string("<title>").append(title).append("</title>"), document);
    HTMLLine("</head>", document);
}

void HTMLHeading(std::string_view text, std::int16_t level, std::string& document) {
    const std::string tag = "H" + std::to_string(level) + ">";
    HTMLLine(("<" + tag).append(text).append("</" + tag), document);
}

void HTMLLabelLine(std::string_view label, std::string_view value, std::string& document) {
    HTMLLine(std::string("<B>").append(label).append("</B> ").append(value).append("</BR>"),
             document);
}

void HTMLBreaks(std::int16_t count, std::string& document) {
    for (std::int16_t i = 0; i < count; ++i)
        HTMLLine("</BR>", document);
}

void HTMLTableOpen(std::string& document) {
    HTMLLine(R"(<table border="1" width="100%" bordercolor="#FFFFFF" cellspacing="0" )"
             R"(bordercolorlight="#FFFFFF" bordercolordark="#C0C0C0">)",
             document);
}

void HTMLHeaderCell(std::string_view text, std::string& document) {
    HTMLLine(std::string("<TD bgcolor=white FontColor=black><b>").append(text).append("</b></TD>"),
             document);
}

void HTMLCell(std::string_view text, std::string_view width, std::string& document) {
    document.append("<td width=\"").append(width).append("\"><small><font face=\"Arial\">");
    document.append(text);
    HTMLLine("</font></small></td>", document);
}

void HTMLAvailabilityCell(std::string_view availability, std::string& document) {
    const bool narrow = FormOf(availability) == AvailabilityForm::Codes;
    HTMLCell(AvailabilityText(availability), narrow ? "25%" : "35%", document);
}

} // namespace emporium
