#include "ui/HtmlView.h"

#include <QPaintEngine>
#include <QPrintEngine>
#include <QPrinter>

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

// The text, "/" for a break, and behind it which letters stand out: "2+3b" are three bold ones.
std::string Shown(const QString& markup) {
    auto [text, styles] = ui::ReadMarkup(markup);
    for (const auto& [start, length, format] : styles) {
        const QFont font = format.font();
        const char* look = font.bold() ? "b" : font.italic() ? "i" : font.strikeOut() ? "s" : "u";
        text += QString(" %1+%2%3").arg(start).arg(length).arg(look);
    }
    return text.replace(QChar::LineSeparator, '/').toStdString();
}

TEST(PrintedPage, MarkupShowsAsInABrowser) {
    const std::string full(10'000, 'x');
    const std::pair<std::string, std::string> table[] = {
        {"  Öl  für\t \tLampen ", "Öl für Lampen "},
        {"a<br> b<BR/>c<p>d<div class='x'>e<li>f</p", "a/b/c/d/e/f/"},
        {"</b></b>a<b>bc</B>d<strong>e", "abcde 1+2b 4+1b"},
        {"<i>a<em>b</i>c</em>d", "abcd 0+1i 1+1i 2+1i"},
        {"<s>a</s><strike>b</strike><del>c</del><u>d</u>", "abcd 0+1s 1+1s 2+1s 3+1u"},
        {"a</script>b<scripts>c<bold>d<zz>e", "abcde"},
        {"a<script>1</script>b<STYLE>2</style>c<style>3", "abc"},
        {"1 < 2 <3 <- <", "1 < 2 <3 <- <"},
        {"a<!-- x -->b<?y?>c<img src='z'>d<unended", "abcd"},
        {"&amp;&auml;&#8364;&lt;b>&quot;", "&ä€<b>\""},
        {"& &; &a &a<b>;&CounterClockwise;", "& &; &a &a;&CounterClockwise; 10+19b"},
        {full, full},
        {full + "xx", full + "…"},
    };
    for (const auto& [written, shown] : table)
        EXPECT_EQ(Shown(QString::fromStdString(written)), shown) << written.substr(0, 60);
    EXPECT_EQ(ui::ReadMarkup(QString("<b>x</b>").repeated(2000)).styles.size(), 1000);
}

constexpr double Margin = 2 / 2.54 * ui::LayoutDpi;
constexpr double Right = 8 * ui::LayoutDpi - Margin;
constexpr double Bottom = 11 * ui::LayoutDpi - Margin;

struct Written {
    std::string text;
    QPointF place; // where its base line begins, in pixels of the layout
    double width;
    QFont font;
};

// A printer that keeps what is written on its pages.
class Paper : public QPrinter, QPrintEngine, QPaintEngine {
public:
    explicit Paper(int dpi = 96) : dpi_(dpi) { setEngines(this, this); }

    std::vector<std::vector<Written>> pages;
    std::size_t most = 100;

private:
    bool begin(QPaintDevice*) override { return Paper::newPage(); }
    bool newPage() override { return pages.size() < most && (pages.emplace_back(), true); }
    bool end() override { return true; }
    bool abort() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void setProperty(PrintEnginePropertyKey, const QVariant&) override {}
    QVariant property(PrintEnginePropertyKey) const override { return {}; }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    QPaintEngine::Type type() const override { return QPaintEngine::User; }
    PrinterState printerState() const override { return QPrinter::Active; }
    int metric(QPaintDevice::PaintDeviceMetric which) const override {
        return which == PdmWidth ? 8 * dpi_ : which == PdmHeight ? 11 * dpi_ : dpi_;
    }
    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        const QPointF onPaper = painter()->worldTransform().map(place) * ui::LayoutDpi / dpi_;
        pages.back().push_back({item.text().toStdString(), onPaper, item.width(), item.font()});
    }

    int dpi_;
};

std::string Ware(const std::string& name, const std::string& price = "3H") {
    return "<tr>\r\n<td width=\"30%\"><small><font face=\"Arial\">" + name +
           "</font></small></td>\r\n<td width=\"10%\">" + price + "</td>\r\n</tr>\r\n";
}

std::string Wares(int count) {
    std::string table = "<table border=\"1\">\r\n<tr>\r\n<TD bgcolor=white><b>NAME:</b></TD>\r\n"
                        "<TD bgcolor=white><b>PREIS:</b></TD>\r\n</tr>\r\n";
    for (int i = 1; i <= count; ++i)
        table += Ware("W" + std::to_string(i));
    return table;
}

// All that is on the pages, but for their numbers and the captions on top of each further one.
std::string Printed(Paper& paper, const std::string& document) {
    ui::HtmlView view(nullptr);
    view.Navigate(document);
    EXPECT_TRUE(view.PrintTo(paper));
    std::string text;
    for (std::size_t page = 0; page < paper.pages.size(); ++page) {
        auto& written = paper.pages[page];
        const Written number = written.back();
        written.pop_back();
        EXPECT_EQ(number.text, std::to_string(page + 1));
        EXPECT_NEAR(number.place.x() + number.width, Right, 1);
        EXPECT_NEAR(number.place.y(), Bottom + Margin / 2, 5);
        for (std::size_t i = 0; i < written.size(); ++i) {
            const auto& [part, place, width, font] = written[i];
            EXPECT_TRUE(place.y() > Margin + 10 && place.y() < Bottom - 2) << part;
            EXPECT_TRUE(i == 0 || place.y() >= written[i - 1].place.y()) << part;
            EXPECT_LT(place.x() + width, Right + 1) << part;
            EXPECT_TRUE(page == 0 || i > 1 || part == (i == 0 ? "NAME:" : "PREIS:")) << part;
            if (page == 0 || i > 1)
                text += part + (part.ends_with(' ') ? "" : " ");
        }
    }
    return text;
}

TEST(PrintedPage, ATableGoesOnUnderItsCaptions) {
    std::string expected = "Zum Esel Region: NO NAME: PREIS: ";
    for (int i = 1; i <= 100; ++i)
        expected += "W" + std::to_string(i) + " 3H ";
    Paper paper(192);
    EXPECT_EQ(Printed(paper, "<html>\r\n<head>\r\n<title>Esel</title>\r\n</head>\r\n"
                             "<H1>Zum Esel</H1>\r\n<B>Region: </B> NO</BR>\r\n</BR>\r\n</BR>\r\n" +
                                 Wares(100) + "</table>"),
              expected);
    ASSERT_EQ(paper.pages.size(), 3U);
    EXPECT_GT(paper.pages[1].back().place.y(), Bottom - 25) << "room is left";
    for (const auto& page : paper.pages)
        for (const auto& [text, place, width, font] : page) {
            const bool price = text == "PREIS:" || text == "3H";
            const double left = Margin + (price ? 2 + 0.75 * (Right - Margin) : 1);
            EXPECT_TRUE(text == "NO" || std::abs(place.x() - left) < 2) << text;
            EXPECT_EQ(font.bold(), text.size() > 4) << text;
        }
}

TEST(PrintedPage, ARowTallerThanAPageIsCutBetweenItsLines) {
    std::string words;
    for (int i = 1000; i < 1800; ++i)
        words += std::to_string(i) + " ";
    Paper paper;
    EXPECT_EQ(Printed(paper, Wares(1) + Ware("tall", words)), "NAME: PREIS: W1 3H tall " + words);
    for (const auto& page : paper.pages)
        for (std::size_t i = 4; i < page.size(); ++i)
            EXPECT_NEAR(page[i].place.y() - page[i - 1].place.y(), 15.5, 1) << page[i].text;
}

TEST(PrintedPage, PagesArePrintedAsAskedForUntilSomethingEndsIt) {
    ui::HtmlView view(nullptr);
    view.Navigate(Wares(150));
    Paper paper;
    EXPECT_TRUE(view.PrintTo(paper, {}, {3, 1}));
    EXPECT_EQ(paper.pages[0].back().text + paper.pages[1].back().text, "31");
    EXPECT_FALSE(view.PrintTo(paper, [](int done, int total) { return done < total - 1; }));
    paper.most = paper.pages.size() + 1;
    EXPECT_FALSE(view.PrintTo(paper)) << "out of paper";
    EXPECT_FALSE(view.PrintTo(paper)) << "no printer";
}

} // namespace
} // namespace emporium::test
