#include "files/FileFailure.h"

#include "text/Ansi.h"

#include <array>

namespace emporium {

namespace {

struct Known {
    std::errc code;
    std::string_view text;
};
constexpr std::string_view NoFile = "Es ist keine gewöhnliche Datei, sondern eine "
                                    "Verknüpfung, eine Pipe oder ein Gerät."_ansi;
constexpr std::string_view Unreachable =
    "Der Datenträger oder das Netzlaufwerk ist nicht erreichbar."_ansi;
constexpr std::array<Known, 29> KnownReasons = {{
    {std::errc::no_space_on_device, "Auf dem Datenträger ist kein Platz mehr."_ansi},
    {std::errc::permission_denied, "Der Zugriff wurde verweigert: Die Datei oder ihr "
                                   "Ordner ist schreibgeschützt oder in Gebrauch."_ansi},
    {std::errc::operation_not_permitted, "Der Zugriff wurde verweigert."},
    {std::errc::read_only_file_system, "Der Datenträger ist schreibgeschützt."_ansi},
    {std::errc::io_error, "Beim Lesen oder Schreiben ist ein Fehler aufgetreten."},
    {std::errc::too_many_files_open, "Es sind zu viele Dateien geöffnet."_ansi},
    {std::errc::too_many_files_open_in_system, "Es sind zu viele Dateien geöffnet."_ansi},
    {std::errc::device_or_resource_busy, "Ein anderes Programm benutzt die Datei gerade."},
    {std::errc::no_such_file_or_directory, "Die Datei oder ihr Ordner fehlt."},
    {std::errc::not_a_directory, "Die Datei oder ihr Ordner fehlt."},
    {std::errc::is_a_directory, "An dieser Stelle liegt ein Ordner."},
    {std::errc::operation_not_supported, NoFile},
    {std::errc::no_such_device_or_address, NoFile}, // a socket
    {std::errc::too_many_symbolic_link_levels,
     "Die Verknüpfung führt im Kreis oder darf hier nicht stehen."_ansi},
    {std::errc::filename_too_long, "Der Name ist zu lang."},
    {std::errc::file_too_large, "Die Datei ist zu groß."_ansi},
    {std::errc::invalid_argument, "Diesen Namen kann keine Datei tragen."},
    {std::errc::illegal_byte_sequence, "Diesen Namen kann keine Datei tragen."},
    {std::errc::too_many_links, "Zwei Namen führen zu derselben Datei."_ansi},
    {std::errc::not_enough_memory, "Der Arbeitsspeicher reicht nicht."},
    {std::errc::resource_unavailable_try_again, "Ein anderes Programm benutzt die Datei gerade."},
    {std::errc::text_file_busy, "Ein anderes Programm benutzt die Datei gerade."},
    {std::errc::function_not_supported, "Der Datenträger bietet nicht, was dafür nötig "
                                        "ist."_ansi},
    {std::errc::no_such_device, Unreachable},
    {std::errc::timed_out, Unreachable},
    {std::errc::not_connected, Unreachable},
    {std::errc::host_unreachable, Unreachable},
    {std::errc::network_unreachable, Unreachable},
    {std::errc::network_down, Unreachable},
}};

} // namespace

std::error_code ReasonOf(const FileText& text) {
    return text.state == FileText::State::Absent
               ? std::make_error_code(std::errc::no_such_file_or_directory)
               : text.reason;
}

std::string ReasonText(const std::error_code& reason) {
    if (!reason)
        return "Die Datei ist leer.";
    for (const Known& entry : KnownReasons)
        if (reason == entry.code)
            return std::string(entry.text);
    return "Beim Lesen oder Schreiben ist ein Fehler aufgetreten, den das System mit der Nummer " +
           std::to_string(reason.value()) + " meldet.";
}

std::string FailureText(std::string_view what, const FileFailure& failure) {
    return std::string(what) + "\n\nDatei: " + FromPath(failure.file) +
           "\nGrund: " + ReasonText(failure.reason);
}

std::string FaultLine(const FileFailure& failure) {
    return FromPath(failure.file.filename()) + ": " + ReasonText(failure.reason);
}

std::string FaultsText(const std::vector<std::string>& faults) {
    constexpr std::size_t shown = 12;
    std::string text;
    for (std::size_t i = 0; i < faults.size() && i < shown; ++i)
        text += (i > 0 ? "\n" : "") + faults[i];
    if (faults.size() > shown)
        text += "\n... weitere Meldungen: " + std::to_string(faults.size() - shown) + ".";
    return text;
}

} // namespace emporium
