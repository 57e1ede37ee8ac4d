// A one-line text field that takes only what the program can store, by whatever road the text
// comes: typing, paste, drop or an input method. What is refused leaves the rest as it is.
#pragma once

#include <QLineEdit>

#include <functional>
#include <string>
#include <string_view>

namespace emporium::ui {

/// What of a text enters a field: the text, what the field holds, the place, from 0, and how many
/// characters from there it would replace.
using InputFilter = std::function<std::string(std::string_view entered, const std::string& held,
                                              std::size_t place, std::size_t replaced)>;

class LineField : public QLineEdit {
    Q_OBJECT

public:
    /// Without a filter everything enters that the code page knows.
    explicit LineField(QWidget* parent, InputFilter filter = {});

    /// Shows a text of the program, unfiltered and unannounced. Caret and selection stay if the
    /// text does not change.
    void Show(const std::string& text);

signals:
    void entered(const std::string& text);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class LineFieldFilter;

    std::string Admit(const QString& entered, qsizetype place, qsizetype replaced) const;

    InputFilter filter_;
    QString held_;
    bool showing_ = false;
};

/// Has a dialog's own text field take only what the program can store.
void GuardInput(QLineEdit& field);

} // namespace emporium::ui
