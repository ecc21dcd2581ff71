// SPDX-License-Identifier: MIT
#include "ui/about.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/fit_on_screen.h"
#include "ui/icons.h"

namespace tidewalk {

namespace {

constexpr int kIconSide = 64;    ///< in pixels
constexpr int kTextWidth = 380;  ///< in pixels

QString AboutText() {
    return QString("<h2>Tidewalk " TIDEWALK_VERSION
                   "</h2>"
                   "<p>Play, solve, make and print bridges puzzles.</p>"
                   "<p><b>Licence</b><br>Tidewalk is free software under the MIT licence: use it, change it and pass "
                   "it on, "
                   "as long as the licence goes with it. It comes without any warranty.</p>"
                   "<p><b>Libraries</b><br>Qt %1, under the GNU Lesser General Public License, version 3: "
                   "Core, Gui, Widgets, Print Support, SQL and SVG.<br>"
                   "qpdf, under the Apache License, version 2.0.<br>"
                   "The C++ standard library.</p>")
        .arg(QString::fromLatin1(qVersion()));
}

}  // namespace

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
    setObjectName("About");
    setWindowTitle(tr("About Tidewalk"));
    auto* const icon = new QLabel;
    icon->setPixmap(ProgramIcon().pixmap(kIconSide, kIconSide));
    auto* const text = new QLabel(AboutText());
    text->setObjectName("AboutText");
    text->setTextFormat(Qt::RichText);
    text->setWordWrap(true);
    text->setMinimumWidth(kTextWidth);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QPushButton* const aboutQt = buttons->addButton(tr("About &Qt"), QDialogButtonBox::HelpRole);
    aboutQt->setObjectName("AboutQt");
    aboutQt->setAutoDefault(false);
    QPushButton* const ok = buttons->button(QDialogButtonBox::Ok);
    ok->setText(tr("&OK"));
    ok->setIcon({});
    ok->setDefault(true);
    ok->setFocus();

    auto* const body = new QHBoxLayout;
    body->setSpacing(18);
    body->addWidget(icon, 0, Qt::AlignTop);
    body->addWidget(text, 1);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(20, 18, 24, 14);
    all->addLayout(body);
    all->addWidget(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(aboutQt, &QPushButton::clicked, this, [this] { QMessageBox::aboutQt(this); });
    FitOnScreen(*this);
}

}  // namespace tidewalk
