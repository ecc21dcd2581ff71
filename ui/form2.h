// SPDX-License-Identifier: MIT
// The options window `Form2`.
#pragma once

#include <QDialog>
#include <utility>
#include <vector>

#include "options/options_form.h"
#include "ui/col_pik.h"
#include "ui/handlers.h"
#include "ui/swatch.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tidewalk {

/// Shows an `OptionsForm` and hands clicks to its routines. Closing it in any other way than by the apply and reset
/// buttons leaves the options as they were.
class Form2 final : public QDialog {
    Q_OBJECT

 public:
    Form2(Handlers& handlers, QWidget* parent);

    /// Fills the controls from the current options and shows the window until it is closed.
    void Open();

 private:
    /// A colour button's routine: false when there was no colour to copy.
    using ColourButton = bool (*)(OptionsForm&, std::optional<Colour>);

    QWidget* SchemeBox();
    QWidget* ColoursBox();
    QWidget* NodeShapeBox();
    QWidget* LinesBox();
    void AddKept(QLayout* layout, const char* name, bool Options::*value, const QString& text, const QString& toolTip);
    QWidget* MistakesBox();
    QWidget* PlayBox();
    QWidget* PrintBox();
    QLayout* ButtonRow();
    QPushButton* AddButton(const char* name, const QString& text, const QString& toolTip);
    void AddColourRow(QGridLayout* layout, QPushButton* button, Swatch* swatch, ColourButton routine);
    void AdjustBrightness(int index);
    void ChooseScheme(const QString& name);
    void TakeControls();
    void ShowForm();

    Handlers& handlers_;
    OptionsForm form_;
    QComboBox* combo1_;
    ColPik* colPik1_;
    Swatch* line1_;
    Swatch* line2_;
    Swatch* label1_;
    Swatch* label2_;
    QLineEdit* text3_;
    QRadioButton* option1_;
    QRadioButton* option2_;
    QCheckBox* check1_;
    std::vector<std::pair<QCheckBox*, bool Options::*>> kept_;  ///< the boxes of `kKeptOptions`
};

}  // namespace tidewalk
