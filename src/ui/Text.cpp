#include "ui/Text.h"

#include "text/Ansi.h"

#include <QTextDocument>

#include <algorithm>

namespace emporium::ui {

QString ToQString(std::string_view text) {
    QString out(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), out.begin(),
                   [](char byte) { return QChar(static_cast<char16_t>(ansi::Decode(byte))); });
    return out;
}

std::string ToAnsi(const QString& text) {
    std::string out;
    out.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar c : text)
        out += ansi::Encode(c.unicode()).value_or('?');
    return out;
}

std::string CleanInput(const QString& text) {
    std::string out;
    for (const QChar c : text.normalized(QString::NormalizationForm_C)) {
        const auto byte = ansi::Encode(c.unicode());
        if (byte && c.category() != QChar::Other_Control)
            out += *byte;
    }
    return out;
}

QString ToToolTip(std::string_view text) {
    const QString plain = ToQString(text);
    return Qt::mightBeRichText(plain) ? "<p>" + plain.toHtmlEscaped() + "</p>" : plain;
}

QString PathText(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

std::filesystem::path PathFrom(const QString& path) {
    return {path.toStdU16String()};
}

} // namespace emporium::ui
