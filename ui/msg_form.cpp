// SPDX-License-Identifier: MIT
#include "ui/msg_form.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/icons.h"
#include "ui/mnemonic.h"

namespace tidewalk {

namespace {

constexpr int kIconSide = 48;     ///< in pixels
constexpr int kWidestText = 560;  ///< in pixels, unless one word alone is wider
constexpr double kFontPoints = 9;
constexpr int kTextScreenShare = 70;  ///< per cent of the screen's width that a text may take

QString PlainLines(const std::string& text) {
    return QString::fromStdString(text).replace("\r\n", "\n");
}

int WidestPiece(const QString& text, const QFontMetrics& metrics, const QRegularExpression& separator) {
    int widest = 0;
    for (const QString& piece : text.split(separator))
        widest = std::max(widest, metrics.horizontalAdvance(piece));
    return widest;
}

}  // namespace

MsgForm::MsgForm(std::string text, MessageStyle style, const QString& caption, QWidget* parent)
    : QDialog(parent, Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      message_(std::move(text)),
      style_(std::move(style)) {
    setObjectName("MsgForm");
    setWindowTitle(caption);
    QFont arial("Arial");
    arial.setPointSizeF(kFontPoints);
    setFont(arial);
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setAutoFillBackground(true);

    auto* const body = new QHBoxLayout;
    body->setSpacing(16);
    AddIcons(body);
    AddText(body);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    AddButtons(buttons);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(20, 20, 20, 16);
    all->setSpacing(18);
    all->addLayout(body);
    all->addLayout(buttons);
    // The title and the buttons of a window's frame need some room too.
    constexpr int kSmallestWidth = 200;
    all->addStrut(kSmallestWidth);
    all->setSizeConstraint(QLayout::SetFixedSize);
    if (auto* const first = findChild<QPushButton*>("cmd0")) first->setFocus();
    // Only with its size known is the box placed over the middle of its parent.
    adjustSize();
}

void MsgForm::AddIcons(QHBoxLayout* row) {
    for (const std::string_view icon : style_.icons) {
        const QString name = QString::fromLatin1(icon.data(), static_cast<qsizetype>(icon.size()));
        auto* const picture = new QLabel;
        picture->setObjectName("vb" + name);
        picture->setPixmap(MakeIcon("message-" + name, palette()).pixmap(kIconSide, kIconSide));
        row->addWidget(picture, 0, Qt::AlignTop);
    }
}

void MsgForm::AddText(QHBoxLayout* row) {
    const QString text = PlainLines(message_);
    auto* const label = new QLabel(text);
    label->setObjectName("Label1");
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::Text);
    label->setWordWrap(true);
    label->setFont(font());
    const QFontMetrics metrics(font());
    static const QRegularExpression lineEnd("\n");
    static const QRegularExpression blank("\\s");
    // A word, most often a path, is not broken: the box grows with it.
    const int widest = std::max(kWidestText, WidestPiece(text, metrics, blank));
    const int onScreen = screen()->availableSize().width() * kTextScreenShare / 100;
    constexpr int kSlack = 2;
    label->setFixedWidth(std::min({WidestPiece(text, metrics, lineEnd), widest, onScreen}) + kSlack);
    row->addWidget(label, 0, Qt::AlignVCenter);
    // In a box that its buttons make wide the text stays beside its icon.
    row->addStretch(1);
}

void MsgForm::AddButtons(QHBoxLayout* row) {
    row->addStretch();
    int index = 0;
    QString taken;
    for (const MessageButton& button : style_.buttons) {
        const QString caption =
            QString::fromLatin1(button.caption.data(), static_cast<qsizetype>(button.caption.size()));
        auto* const control = new QPushButton(WithMnemonic(caption, taken));
        control->setObjectName("cmd" + QString::number(index));
        control->setProperty("Tag", QString::number(button.code));
        control->setAutoDefault(true);
        connect(control, &QPushButton::clicked, this, [this, control] { done(control->property("Tag").toInt()); });
        row->addWidget(control);
        ++index;
    }
    row->addStretch();
}

}  // namespace tidewalk
