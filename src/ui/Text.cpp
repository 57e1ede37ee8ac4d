#include "ui/Text.h"

#include "text/Ansi.h"

#include <QTextDocument>

#include <algorithm>

namespace emporium::ui {

namespace {

// What the code page lacks is taken apart: a ligature into its letters, say.
std::string LettersOf(QChar c) {
    const bool known = ansi::Encode(c.unicode()).has_value();
    std::string letters;
    for (const QChar part :
         known ? QString(c) : QString(c).normalized(QString::NormalizationForm_KD))
        if (const auto byte = ansi::Encode(part.unicode());
            byte && part.category() != QChar::Other_Control)
            letters += *byte;
    return letters;
}

} // namespace

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
    bool gap = false; // a line end or tab since the last letter
    for (const QChar c : text.normalized(QString::NormalizationForm_C)) {
        gap = gap || c == u'\n' || c == u'\r' || c == u'\t';
        const std::string letters = LettersOf(c);
        if (gap && !letters.empty() && letters != " " && !out.empty() && out.back() != ' ')
            out += ' ';
        gap = gap && letters.empty();
        out += letters;
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
