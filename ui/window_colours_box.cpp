// SPDX-License-Identifier: MIT
#include "ui/window_colours_box.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tidewalk {

namespace {

/// How a part of a scheme is shown.
struct PartSample {
    const char* name;  ///< of its swatch
    const char* text;
    std::size_t entry;
    Colour WindowColours::*seen;    ///< the colour as the windows wear it
    Colour WindowColours::*behind;  ///< what lies behind it there
    Swatch::Shape shape;
    bool startsColumn;
};

constexpr PartSample kSamples[] = {
    {"PartFace", QT_TRANSLATE_NOOP("WindowColoursBox", "Windows and buttons"), kFaceEntry, &WindowColours::face,
     &WindowColours::face, Swatch::Shape::Fill, true},
    {"PartFaceText", QT_TRANSLATE_NOOP("WindowColoursBox", "Text on them"), kFaceTextEntry, &WindowColours::faceText,
     &WindowColours::face, Swatch::Shape::Text, false},
    {"PartBackground", QT_TRANSLATE_NOOP("WindowColoursBox", "Board and boxes"), kBackgroundEntry, &WindowColours::box,
     &WindowColours::box, Swatch::Shape::Fill, true},
    {"PartBoxText", QT_TRANSLATE_NOOP("WindowColoursBox", "Text in boxes"), kBoxTextEntry, &WindowColours::boxText,
     &WindowColours::box, Swatch::Shape::Text, false},
    {"PartOutline", QT_TRANSLATE_NOOP("WindowColoursBox", "Cell outlines"), kOutlineEntry, &WindowColours::outline,
     &WindowColours::box, Swatch::Shape::Outline, false},
    {"PartHighlight", QT_TRANSLATE_NOOP("WindowColoursBox", "Selection"), kHighlightEntry, &WindowColours::highlight,
     &WindowColours::highlight, Swatch::Shape::Fill, true},
    {"PartHighlightText", QT_TRANSLATE_NOOP("WindowColoursBox", "Selected text"), kHighlightTextEntry,
     &WindowColours::highlightText, &WindowColours::highlight, Swatch::Shape::Text, false},
};

}  // namespace

WindowColoursBox::WindowColoursBox(QWidget* parent)
    : QGroupBox(tr("Window colours"), parent), columns_(new QHBoxLayout), note_(new QLabel) {
    auto* const all = new QVBoxLayout(this);
    all->addLayout(columns_);
    QGridLayout* column = nullptr;
    for (const PartSample& sample : kSamples) {
        if (column == nullptr || sample.startsColumn) columns_->addLayout(column = new QGridLayout, 1);
        auto* const swatch = new Swatch(sample.shape, sample.name);
        auto* const label = new QLabel(tr(sample.text));
        const int row = column->count() / 2;
        column->addWidget(swatch, row, 0);
        column->addWidget(label, row, 1);
        column->setColumnStretch(1, 1);
        parts_.push_back({swatch, label->text(), sample.entry});
    }
    for (QGridLayout* const grid : findChildren<QGridLayout*>())
        grid->setRowStretch(grid->rowCount(), 1);
    note_->setObjectName("PartsNote");
    note_->setWordWrap(true);
    all->addWidget(note_);
}

void WindowColoursBox::Show(const OptionsForm& form, const WindowColours& windows) {
    const bool own = IsOwnScheme(form);
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const PartSample& sample = kSamples[i];
        const Colour colour = own ? form.draft.SchemeColours[sample.entry] : windows.*sample.seen;
        parts_[i].swatch->Show(colour, windows.*sample.behind, 0, false);
        parts_[i].swatch->setEnabled(own);
    }
    note_->setText(own ? tr("Click on a colour to change it with the picker.")
                       : tr("This scheme stays as it is. \"New ...\" makes one of your own from it."));
}

}  // namespace tidewalk
