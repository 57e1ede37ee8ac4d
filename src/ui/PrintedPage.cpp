#include "ui/PrintedPage.h"

#include "ui/Text.h"

#include <QTextDocumentFragment>

#include <algorithm>
#include <array>

namespace emporium::ui {

namespace {

// Takes the beginning off the text; false if it begins otherwise.
bool Take(QStringView& text, QLatin1StringView beginning) {
    if (!text.startsWith(beginning, Qt::CaseInsensitive))
        return false;
    text = text.mid(beginning.size());
    return true;
}

// A cell's line. The tags in it and at its end are left to ReadMarkup.
void AddCell(PageRow& row, QStringView line) {
    const auto end = line.indexOf('>');
    const auto quote = line.indexOf(u'"');
    const auto percent = line.indexOf('%');
    const bool wide = quote >= 0 && quote < percent && percent < end;
    row.percents.push_back(wide ? line.sliced(quote + 1, percent - quote - 1).toInt() : 0);
    row.kind = wide ? RowKind::Ware : RowKind::Captions;
    row.cells.push_back(line.mid(end + 1));
}

void AddLine(PrintedPage& page, QStringView line) {
    RowKind kind = RowKind::Line;
    if (Take(line, QLatin1StringView("<H1>")))
        kind = RowKind::Heading;
    else if (line.endsWith(QLatin1StringView("</BR>")))
        line.chop(5);
    page.rows.push_back({kind, {line}, {0}});
}

// True for what frames a page and its table without being seen.
bool IsFrame(QStringView line) {
    constexpr std::array frames = {"<html>", "<head>", "</head>", "</tr>", "</table>"};
    return line.isEmpty() || line.startsWith(QLatin1StringView("<table ")) ||
           std::any_of(frames.begin(), frames.end(), [line](const char* frame) {
               return line.compare(QLatin1StringView(frame), Qt::CaseInsensitive) == 0;
           });
}

void ReadLine(PrintedPage& page, QStringView line) {
    if (IsFrame(line))
        return;
    if (Take(line, QLatin1StringView("<title>"))) {
        page.title = ReadMarkup(line).text;
    } else if (line == QLatin1StringView("<tr>")) {
        page.rows.push_back({RowKind::Captions, {}, {}});
    } else if (line.startsWith(QLatin1StringView("<td "), Qt::CaseInsensitive) &&
               !page.rows.empty()) {
        AddCell(page.rows.back(), line);
    } else {
        AddLine(page, line);
    }
}

// The letters that are on while a text is read.
struct Letters {
    int bold = 0, italic = 0, struck = 0, underlined = 0;

    int* Of(QStringView tag) {
        if (tag == u"b" || tag == u"strong")
            return &bold;
        if (tag == u"i" || tag == u"em")
            return &italic;
        if (tag == u"s" || tag == u"strike" || tag == u"del")
            return &struck;
        return tag == u"u" ? &underlined : nullptr;
    }

    QTextCharFormat Format() const {
        QTextCharFormat format;
        if (bold)
            format.setFontWeight(QFont::Bold);
        if (italic)
            format.setFontItalic(true);
        if (struck)
            format.setFontStrikeOut(true);
        if (underlined)
            format.setFontUnderline(true);
        return format;
    }
};

class MarkupReader {
public:
    explicit MarkupReader(QStringView rest) : rest_(rest) {}

    StyledText Read() {
        while (!rest_.isEmpty() && result_.text.size() < LongestText) {
            if (rest_.front() == '<' && IsTag())
                ReadTag();
            else if (rest_.front() == '&')
                ReadNamed();
            else
                Add(TakeFront(1).front());
        }
        EndRun();
        if (!rest_.isEmpty())
            result_.text += QChar(0x2026);
        return std::move(result_);
    }

private:
    QStringView TakeFront(qsizetype count) {
        const QStringView front = rest_.first(count);
        rest_ = rest_.mid(count);
        return front;
    }

    // A browser takes "<" for a letter unless one of these follows.
    bool IsTag() const {
        const char16_t next = rest_.size() > 1 ? rest_[1].toLower().unicode() : u' ';
        return (next >= 'a' && next <= 'z') || next == '/' || next == '!' || next == '?';
    }

    void ReadTag() {
        const auto end = rest_.indexOf('>');
        const QStringView tag = TakeFront(end < 0 ? rest_.size() : end + 1).mid(1);
        const bool closing = tag.startsWith('/');
        QString name;
        for (const QChar letter : tag.mid(closing ? 1 : 0)) {
            if (!letter.isLetterOrNumber() || name.size() > LongestName)
                break;
            name += letter.toLower();
        }
        if (name == "br" || name == "p" || name == "div" || name == "li")
            Add(QChar::LineSeparator);
        else if (!closing && (name == "script" || name == "style"))
            Skip("</" + name);
        else if (int* letters = letters_.Of(name))
            Switch(*letters, closing);
    }

    void Skip(const QString& end) {
        const auto position = rest_.indexOf(end, 0, Qt::CaseInsensitive);
        TakeFront(position < 0 ? rest_.size() : position);
    }

    void Switch(int& letters, bool closing) {
        EndRun();
        letters = std::max(0, letters + (closing ? -1 : 1));
    }

    void EndRun() {
        const int length = static_cast<int>(result_.text.size()) - begin_;
        const QTextCharFormat format = letters_.Format();
        if (length > 0 && format.propertyCount() > 0 && result_.styles.size() < MostRuns)
            result_.styles.append({begin_, length, format});
        begin_ = static_cast<int>(result_.text.size());
    }

    void ReadNamed() {
        const auto end = rest_.left(LongestName).indexOf(';');
        if (end < 2 || rest_.left(end).contains('<')) {
            Add(TakeFront(1).front());
            return;
        }
        const QString name = TakeFront(end + 1).toString();
        for (const QChar letter : QTextDocumentFragment::fromHtml(name).toPlainText())
            Add(letter);
    }

    void Add(QChar letter) {
        const bool blank = letter == ' ' || letter == '\t';
        const bool before = result_.text.isEmpty() || result_.text.back() == ' ' ||
                            result_.text.back() == QChar::LineSeparator;
        if (!blank || !before)
            result_.text += blank ? QChar(' ') : letter;
    }

    static constexpr qsizetype LongestName = 12;
    static constexpr qsizetype LongestText = 10'000; // the layout's time grows with its square
    static constexpr qsizetype MostRuns = 1000;      // the layout slows down with more

    QStringView rest_;
    StyledText result_;
    Letters letters_;
    int begin_ = 0; // of the run of letters alike
};

} // namespace

PrintedPage ReadPage(const std::string& bytes) {
    PrintedPage page;
    page.text = ToQString(bytes);
    for (const QStringView line : QStringView(page.text).split(u"\r\n"))
        ReadLine(page, line);
    // A "<tr>" without cells shows nothing.
    std::erase_if(page.rows, [](const PageRow& row) { return row.cells.empty(); });
    return page;
}

StyledText ReadMarkup(QStringView markup) {
    return MarkupReader(markup).Read();
}

} // namespace emporium::ui
