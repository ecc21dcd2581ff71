// SPDX-License-Identifier: MIT
// The options window `Form2`.
#pragma once

#include <QDialog>
#include <functional>
#include <utility>
#include <vector>

#include "options/options_form.h"
#include "ui/col_pik.h"
#include "ui/handlers.h"
#include "ui/swatch.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;

namespace tidewalk {

class ColourPreview;
class WindowColoursBox;

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

    /// A sample that the picker can change.
    struct Sample {
        Swatch* swatch;
        std::function<void(Colour)> change;
    };

    QBoxLayout* FoldingRow();
    QScrollArea* Settings();
    QLayout* PreviewColumn();
    QWidget* SchemeBox();
    QWidget* ColoursBox();
    QWidget* WindowColoursPart();
    QWidget* NodeShapeBox();
    QWidget* LinesBox();
    void AddKept(QLayout* layout, const char* name, bool Options::*value, const QString& text, const QString& toolTip);
    QWidget* MistakesBox();
    QWidget* PlayBox();
    QWidget* PrintBox();
    QLayout* ButtonRow();
    QPushButton* AddButton(const char* name, const QString& text, const QString& toolTip);
    void AddColourRow(QGridLayout* layout, QPushButton* button, Swatch* swatch, Colour OptionsForm::*colour,
                      ColourButton routine);
    void AddSample(Swatch* swatch, const QString& name, std::function<void(Colour)> change);
    void GiveToPicker(const Swatch* swatch);
    void ChangeInPicker(Colour colour);
    void AdjustBrightness(int index);
    void ChooseScheme(const QString& name);
    void MakeScheme();
    void RemoveScheme();
    void Leave(bool (*routine)(Game&, OptionsForm&));
    void TakeControls();
    void ShowForm();
    void ShowSchemes();
    void ShowColours(const Game& game);
    void FitToScreen();

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
    std::vector<QBoxLayout*> folding_;  ///< rows that become columns where the screen is narrow
    QScrollArea* settings_ = nullptr;
    QPushButton* deleteScheme_ = nullptr;
    WindowColoursBox* windowColours_;
    ColourPreview* preview_;
    QLabel* previewNote_;
    std::vector<Sample> samples_;
    std::vector<std::pair<QCheckBox*, bool Options::*>> kept_;  ///< the boxes of `kKeptOptions`
};

}  // namespace tidewalk
