// SPDX-License-Identifier: MIT
// The box "Window colours" of the options window.
#pragma once

#include <QGroupBox>
#include <cstddef>
#include <vector>

#include "options/options_form.h"
#include "ui/swatch.h"

class QBoxLayout;
class QLabel;

namespace tidewalk {

/// The colours of a scheme that are none of the board's, each with a sample and a name, and a note on whether they can
/// be changed. It changes nothing itself.
class WindowColoursBox final : public QGroupBox {
    Q_OBJECT

 public:
    struct Part {
        Swatch* swatch;
        QString name;
        std::size_t entry;  ///< of the scheme's colours
    };

    explicit WindowColoursBox(QWidget* parent = nullptr);

    /// In the order in which they are shown.
    const std::vector<Part>& Parts() const { return parts_; }

    /// What lies side by side, and below each other where a window is too narrow for that.
    QBoxLayout* Columns() const { return columns_; }

    /// Shows the colours of the form's scheme. Those of a scheme that is not the player's own are shown as in
    /// `windows`, which wear it, and cannot be clicked.
    void Show(const OptionsForm& form, const WindowColours& windows);

 private:
    QBoxLayout* columns_;
    std::vector<Part> parts_;
    QLabel* note_;
};

}  // namespace tidewalk
