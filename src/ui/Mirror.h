// Keeps widgets showing the states of their controls: each is bound once, and Update brings all of
// them up to date, touching only what differs, so that caret, scroll position and focus stay.
#pragma once

#include "base/Controls.h"
#include "ui/LineField.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include <functional>
#include <vector>

namespace emporium::ui {

class Mirror {
public:
    /// A button that is disabled while it has the focus hands it to the refuge, if there is one.
    void Bind(QAbstractButton* widget, const Button& state, QWidget* refuge = nullptr);
    void Bind(LineField* widget, const TextField& state);
    void Bind(QComboBox* widget, const ChoiceList& state);
    void Bind(QListWidget* widget, const ChoiceList& state);
    void Bind(QLabel* widget, const Label& state);
    void Bind(QCheckBox* widget, const CheckBox& state);
    void Bind(QWidget* widget, std::function<bool()> visible);
    void Bind(std::function<void()> update);

    void Update() const;

private:
    std::vector<std::function<void()>> updates_;
};

} // namespace emporium::ui
