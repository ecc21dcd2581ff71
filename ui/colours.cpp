// SPDX-License-Identifier: MIT
#include "ui/colours.h"

#include "ui/qt_surface.h"

namespace tidewalk {

namespace {

constexpr std::size_t kBackgroundEntry = 2;
constexpr std::size_t kFaceEntry = 4;

QColor Mixed(const QColor& a, const QColor& b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

}  // namespace

bool HasScheme(const Options& options) {
    return options.SchemeColours[kBackgroundEntry] != kBlack || options.SchemeColours[kFaceEntry] != kBlack;
}

QColor ReadableOn(const QColor& background) {
    // The weights with which the eye sees brightness in the three channels.
    const double brightness = 0.299 * background.red() + 0.587 * background.green() + 0.114 * background.blue();
    constexpr double kMiddle = 128;
    return brightness < kMiddle ? Qt::white : Qt::black;
}

QPalette SchemePalette(const Options& options) {
    const QColor background = ToQColor(options.SchemeColours[kBackgroundEntry]);
    const QColor face = ToQColor(options.SchemeColours[kFaceEntry]);
    QPalette palette(face, face);
    const QColor onFace = ReadableOn(face);
    const QColor onBackground = ReadableOn(background);
    palette.setColor(QPalette::Base, background);
    palette.setColor(QPalette::AlternateBase, Mixed(background, face));
    palette.setColor(QPalette::Text, onBackground);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, onFace);
    palette.setColor(QPalette::ToolTipBase, background);
    palette.setColor(QPalette::ToolTipText, onBackground);
    palette.setColor(QPalette::PlaceholderText, Mixed(background, onBackground));
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Text, Mixed(background, onBackground));
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, Mixed(face, onFace));
    }
    return palette;
}

}  // namespace tidewalk
