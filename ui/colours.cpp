// SPDX-License-Identifier: MIT
#include "ui/colours.h"

#include <QWidget>

namespace tidewalk {

namespace {

QColor Mixed(const QColor& a, const QColor& b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

/// Sets a background and the text on it, and a paler text for what is disabled.
void SetPair(QPalette& palette, QPalette::ColorRole background, Colour behind, QPalette::ColorRole text, Colour front) {
    palette.setColor(background, ToQColor(behind));
    palette.setColor(text, ToQColor(front));
    palette.setColor(QPalette::Disabled, text, Mixed(ToQColor(behind), ToQColor(front)));
}

}  // namespace

QPalette PaletteOf(const WindowColours& colours) {
    // Qt derives the shades of frames and grooves from these two.
    QPalette palette(ToQColor(colours.face), ToQColor(colours.frame));
    SetPair(palette, QPalette::Window, colours.frame, QPalette::WindowText, colours.frameText);
    SetPair(palette, QPalette::Button, colours.face, QPalette::ButtonText, colours.faceText);
    SetPair(palette, QPalette::Base, colours.box, QPalette::Text, colours.boxText);
    SetPair(palette, QPalette::ToolTipBase, colours.box, QPalette::ToolTipText, colours.boxText);
    SetPair(palette, QPalette::Highlight, colours.highlight, QPalette::HighlightedText, colours.highlightText);
    palette.setColor(QPalette::AlternateBase, Mixed(ToQColor(colours.box), ToQColor(colours.outline)));
    palette.setColor(QPalette::PlaceholderText, Mixed(ToQColor(colours.box), ToQColor(colours.boxText)));
    palette.setColor(QPalette::Link, ToQColor(colours.highlight));
    palette.setColor(QPalette::LinkVisited, ToQColor(colours.highlight));
    return palette;
}

void ColourFrame(QWidget& form, const WindowColours& colours) {
    form.setPalette(PaletteOf(colours));
}

}  // namespace tidewalk
