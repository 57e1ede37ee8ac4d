#include "store/CategoryFaults.h"

#include "files/FileFailure.h"

#include <algorithm>

namespace emporium {

std::string CategoryLine(std::string_view name, std::string_view what) {
    return std::string(name).append(CategoryEnding).append(": ").append(what);
}

std::vector<std::string> CategoryFaults(std::string_view name, const CategoryFile& file) {
    std::vector<std::string> faults;
    const auto add = [&](std::string_view what) { faults.push_back(CategoryLine(name, what)); };
    if (file.state == FileText::State::Absent)
        add("Die Datei fehlt.");
    if (file.state == FileText::State::Unreadable)
        add(ReasonText(file.reason));
    if (file.cutOff)
        add(std::string(RecordIsCutOff)
                .append(" Die Datei wird nur angezeigt und nicht verändert; ergänzt oder entfernt "
                        "die letzten Zeilen in einem Texteditor."_ansi));
    if (file.goesOn)
        add("Sie hat mehr als 32767 Gegenstände. Was darüber hinausgeht, wird nicht gezeigt, und "
            "die Datei wird nicht verändert."_ansi);
    const auto unmarked =
        std::count_if(file.records.begin(), file.records.end(), [](const RecordView& record) {
            return !HasMark(record, NameField) || !HasMark(record, PriceField);
        });
    if (unmarked > 0)
        add(std::string("Datensätze ohne Namen, Wert, Preis oder Währung: "_ansi) +
            std::to_string(unmarked) + ".");
    return faults;
}

} // namespace emporium
