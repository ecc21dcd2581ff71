// SPDX-License-Identifier: MIT
#include "ui/fit_on_screen.h"

#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tidewalk {

void FitOnScreen(QDialog& dialog) {
    constexpr QSize kFrame(16, 48);  // in pixels, as window managers draw it
    const QSize room = dialog.screen()->availableSize() - kFrame;
    const QSize needed = dialog.layout()->totalMinimumSize();
    if (needed.width() <= room.width() && needed.height() <= room.height()) return;
    const QSize wanted = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    auto* const page = new QWidget;
    page->setLayout(dialog.layout());
    auto* const area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    auto* const around = new QVBoxLayout(&dialog);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(area);
    dialog.resize(wanted.expandedTo(needed).boundedTo(room));
}

}  // namespace tidewalk
