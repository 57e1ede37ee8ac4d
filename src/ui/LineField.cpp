#include "ui/LineField.h"

#include "ui/Text.h"

#include <QKeyEvent>
#include <QValidator>

#include <algorithm>
#include <limits>

namespace emporium::ui {

namespace {

// Where two texts differ: how much they share at the start, and at the end behind that.
struct Difference {
    qsizetype start;
    qsizetype end;
};

Difference Compare(const QString& before, const QString& after) {
    const qsizetype shorter = std::min(before.size(), after.size());
    Difference same{0, 0};
    while (same.start < shorter && before[same.start] == after[same.start])
        ++same.start;
    while (same.end < shorter - same.start &&
           before[before.size() - 1 - same.end] == after[after.size() - 1 - same.end])
        ++same.end;
    return same;
}

} // namespace

// A validator sees every change of the text, whatever road it takes.
class LineFieldFilter : public QValidator {
public:
    explicit LineFieldFilter(LineField& field) : QValidator(&field), field_(field) {}

    State validate(QString& input, int& caret) const override {
        if (field_.showing_ || input == field_.held_)
            return Acceptable;
        const auto [start, end] = Compare(field_.held_, input);
        const QString inserted = input.mid(start, input.size() - start - end);
        const QString admitted =
            ToQString(field_.Admit(inserted, start, field_.held_.size() - start - end));
        if (admitted == inserted)
            return Acceptable;
        // Where nothing enters, what would have been replaced stays too.
        input = admitted.isEmpty() ? field_.held_ : input.first(start) + admitted + input.last(end);
        caret = static_cast<int>(start + admitted.size());
        return Acceptable;
    }

private:
    LineField& field_;
};

namespace {

class InputGuard : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& caret) const override {
        const QString clean = ToQString(CleanInput(input));
        caret -= static_cast<int>(input.size() - clean.size());
        input = clean;
        return Acceptable;
    }
};

} // namespace

LineField::LineField(QWidget* parent, InputFilter filter)
    : QLineEdit(parent), filter_(std::move(filter)) {
    setMaxLength(std::numeric_limits<int>::max()); // or a long stored text would lose its end
    setValidator(new LineFieldFilter(*this));
    connect(this, &QLineEdit::textChanged, this, [this](const QString& now) {
        held_ = now;
        if (!showing_)
            emit entered(ToAnsi(now));
    });
}

void LineField::Show(const std::string& shown) {
    const QString now = ToQString(shown);
    if (now == text())
        return;
    showing_ = true;
    setText(now);
    setCursorPosition(0); // a long text is read from its start
    showing_ = false;
}

// A text that its place cuts off is told whole.
bool LineField::event(QEvent* event) {
    constexpr int margins = 8;
    if (event->type() == QEvent::ToolTip) {
        const bool fits = fontMetrics().horizontalAdvance(text()) <= width() - margins;
        setToolTip(fits ? QString() : ToToolTip(ToAnsi(text())));
    }
    return QLineEdit::event(event);
}

void LineField::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    const qsizetype place = hasSelectedText() ? selectionStart() : cursorPosition();
    // With Ctrl alone a key is a command; with Alt as well it is the third character of a key.
    const auto modifiers = event->modifiers();
    const bool command = (modifiers & Qt::ControlModifier) && !(modifiers & Qt::AltModifier);
    const bool printable = !command && !typed.isEmpty() && typed[0].isPrint();
    if (printable && Admit(typed, place, selectedText().size()).empty())
        return; // the selection stays as well
    QLineEdit::keyPressEvent(event);
}

std::string LineField::Admit(const QString& entered, qsizetype place, qsizetype replaced) const {
    const std::string clean = CleanInput(entered);
    return filter_ ? filter_(clean, ToAnsi(held_), static_cast<std::size_t>(place),
                             static_cast<std::size_t>(replaced))
                   : clean;
}

void GuardInput(QLineEdit& field) {
    field.setValidator(new InputGuard(&field));
}

} // namespace emporium::ui
