#include "ui/PageLayout.h"

#include <algorithm>
#include <cmath>

namespace emporium::ui {

namespace {

constexpr double Margin = 2 / 2.54 * LayoutDpi;
constexpr double CellPadding = 2;
constexpr int RowsBetweenReports = 50;

QFont FontOf(RowKind kind) {
    static const QFont serif({"Times New Roman", "Liberation Serif", "Serif"});
    static const QFont sans({"Arial", "Liberation Sans", "Sans Serif"});
    QFont font = kind == RowKind::Ware ? sans : serif;
    // In pixels, because points depend on the screen.
    font.setPixelSize(kind == RowKind::Heading ? 32 : kind == RowKind::Ware ? 13 : 16);
    font.setBold(kind == RowKind::Heading);
    return font;
}

double SpaceAround(RowKind kind) {
    return kind == RowKind::Heading ? 16 : kind == RowKind::Line ? 0 : CellPadding;
}

// Breaks the cell's text into lines of that width; gives their height.
double BreakLines(QTextLayout& text, double width) {
    double height = 0;
    text.beginLayout();
    for (QTextLine line = text.createLine(); line.isValid(); line = text.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += std::ceil(line.height());
    }
    text.endLayout();
    return height;
}

// Calls for every cell with its text in lines and its place within the row.
void ForCells(const PageRow& row, const PageLayout& layout,
              const std::function<void(QTextLayout& text, double left, double height)>& visit) {
    const double width = layout.paper.width() - 2 * Margin;
    const bool table = row.kind == RowKind::Captions || row.kind == RowKind::Ware;
    const double space = table ? CellPadding : 0;
    QTextOption wrap;
    wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    wrap.setUseDesignMetrics(true);
    static const QFont fonts[] = {FontOf(RowKind::Heading), FontOf(RowKind::Line),
                                  FontOf(RowKind::Captions), FontOf(RowKind::Ware)};
    double left = 0;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const bool column = table && i < layout.percents.size();
        const double cell = column ? width * layout.percents[i] / 100 : width;
        const StyledText styled = ReadMarkup(row.cells[i]);
        QTextLayout text(styled.text, fonts[static_cast<int>(row.kind)]);
        text.setTextOption(wrap);
        text.setFormats(styled.styles);
        const double height = BreakLines(text, std::max(1.0, cell - 2 * space));
        visit(text, left + space, height);
        left += cell;
    }
}

double HeightOf(const PageRow& row, const PageLayout& layout) {
    double height = 0;
    ForCells(row, layout, [&height](const QTextLayout&, double, double cell) {
        height = std::max(height, cell);
    });
    // An empty line and an empty row are as high as one with text.
    const double least = std::ceil(QFontMetricsF(FontOf(row.kind)).height());
    return std::max(height, least) + 2 * SpaceAround(row.kind);
}

// The greatest width that a row tells for each column, together a hundred; alike if none is told.
std::vector<int> ColumnPercents(const PrintedPage& page) {
    std::vector<int> percents;
    for (const PageRow& row : page.rows) {
        if (row.kind != RowKind::Captions && row.kind != RowKind::Ware)
            continue;
        percents.resize(std::max(percents.size(), row.percents.size()));
        for (std::size_t i = 0; i < row.percents.size(); ++i)
            percents[i] = std::max(percents[i], row.percents[i]);
    }
    int sum = 0;
    for (const int percent : percents)
        sum += percent;
    for (int& percent : percents)
        percent = sum == 0 ? 100 / static_cast<int>(percents.size()) : percent * 100 / sum;
    return percents;
}

// Puts rows on pages, one after the other.
class Paginator {
public:
    Paginator(const PrintedPage& page, PageLayout& layout)
        : page_(page), layout_(layout), bottom_(layout.paper.height() - Margin) {
        NewPage();
    }

    void Add(std::size_t row) {
        const double height = HeightOf(page_.rows[row], layout_);
        const RowKind kind = page_.rows[row].kind;
        // Captions don't stand alone at the foot of a page.
        const bool leads = kind == RowKind::Captions && row + 1 < page_.rows.size();
        const double needed = height + (leads ? HeightOf(page_.rows[row + 1], layout_) : 0);
        if (y_ + needed > bottom_ && y_ > Top())
            NewPage();
        if (kind == RowKind::Captions) {
            captions_ = row;
            captionsHeight_ = height;
        } else if (kind == RowKind::Ware && captionsHeight_ > 0 && layout_.pages.back().empty()) {
            Put({captions_, y_, 0, captionsHeight_});
        }
        AddPieces(row, height);
    }

private:
    static double Top() { return Margin; }

    void NewPage() {
        layout_.pages.emplace_back();
        y_ = Top();
    }

    void Put(const Piece& piece) {
        layout_.pages.back().push_back(piece);
        y_ += piece.height;
    }

    // A row that fits is one piece; a taller one is cut between its lines.
    void AddPieces(std::size_t row, double height) {
        const double line = std::ceil(QFontMetricsF(FontOf(page_.rows[row].kind)).height());
        const double space = SpaceAround(page_.rows[row].kind);
        double skip = 0;
        while (height - skip > bottom_ - y_) {
            const double lead = skip == 0 ? space : 0;
            const double piece =
                lead + std::max(1.0, std::floor((bottom_ - y_ - lead) / line)) * line;
            Put({row, y_, skip, piece});
            skip += piece;
            NewPage();
            if (captionsHeight_ > 0)
                Put({captions_, y_, 0, captionsHeight_});
        }
        Put({row, y_, skip, height - skip});
    }

    const PrintedPage& page_;
    PageLayout& layout_;
    double bottom_;
    double y_ = 0;
    std::size_t captions_ = 0;
    double captionsHeight_ = 0; // of the table's captions, once they came
};

void DrawPiece(QPainter& painter, const PrintedPage& page, const PageLayout& layout,
               const Piece& piece) {
    const PageRow& row = page.rows[piece.row];
    const double top = piece.top - piece.skip + SpaceAround(row.kind);
    const double bottom = piece.top + piece.height;
    ForCells(row, layout, [&](const QTextLayout& text, double left, double) {
        for (int i = 0; i < text.lineCount(); ++i) {
            const QTextLine line = text.lineAt(i);
            const double y = top + line.y();
            if (y > piece.top - 1 && y < bottom - 1)
                line.draw(&painter, {Margin + left, top});
        }
    });
}

} // namespace

bool LayOut(const PrintedPage& page, QSizeF paper, PageLayout& layout, const Progress& progress) {
    layout = {paper, ColumnPercents(page), {}};
    Paginator paginator(page, layout);
    const int total = static_cast<int>(page.rows.size());
    for (int row = 0; row < total; ++row) {
        if (row % RowsBetweenReports == 0 && progress && !progress(row, total))
            return false;
        paginator.Add(static_cast<std::size_t>(row));
    }
    return true;
}

void DrawPage(QPainter& painter, const PrintedPage& page, const PageLayout& layout, int number) {
    painter.setPen(Qt::black);
    for (const Piece& piece : layout.pages[static_cast<std::size_t>(number)])
        DrawPiece(painter, page, layout, piece);
    QFont font = FontOf(RowKind::Line);
    font.setPixelSize(14);
    painter.setFont(font);
    const QRectF foot(Margin, 0, layout.paper.width() - 2 * Margin,
                      layout.paper.height() - Margin / 2);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, QString::number(number + 1));
}

} // namespace emporium::ui
