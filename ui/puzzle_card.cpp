// SPDX-License-Identifier: MIT
#include "ui/puzzle_card.h"

#include <QApplication>
#include <QPainter>

#include "board/keep_play.h"
#include "game/order_choices.h"

namespace tidewalk {

namespace {

constexpr int kMargin = 6;        ///< around picture and text, in pixels
constexpr int kPictureLines = 8;  ///< as high as a picture is
constexpr int kTextLines = 4;

QString GradeText(const Assessment& assessment) {
    if (!assessment.score) return {};
    const std::string_view grade = NameOf(std::optional(GradeOf(*assessment.score)));
    return QString::fromUtf8(grade.data(), static_cast<qsizetype>(grade.size()));
}

QString SolutionsText(const Assessment& assessment) {
    if (!assessment.solutions) return QObject::tr("Solutions unknown");
    if (*assessment.solutions == 1) return QObject::tr("One solution");
    return *assessment.solutions == 0 ? QObject::tr("No solution") : QObject::tr("Several solutions");
}

QString PlayedText(const PlayedSoFar& played) {
    QString text;
    if (played.state == PlayState::Begun) text = QObject::tr("Begun");
    // The sign is seen at a glance.
    if (played.state == PlayState::Solved) text = QString::fromUtf8("\xE2\x9C\x93 ") + QObject::tr("Solved");
    if (played.seconds > 0 && !text.isEmpty()) text += ", ";
    return played.seconds > 0 ? text + QString::fromStdString(TimeText(played.seconds)) : text;
}

/// What stands below the picture.
QStringList LinesOf(int number, const PuzzleCard* card, const Assessment* assessment) {
    const QString name = QString::number(number);
    if (card == nullptr) return {name};
    if (!card->isPuzzle) return {name, QObject::tr("Not a puzzle")};
    QStringList lines{name + QString::fromUtf8(" \xC2\xB7 %1x%2").arg(card->size.rows).arg(card->size.cols)};
    if (assessment != nullptr) lines += {GradeText(*assessment), SolutionsText(*assessment)};
    lines += PlayedText(card->played);
    lines.removeAll(QString());
    return lines;
}

}  // namespace

PuzzleCardDelegate::PuzzleCardDelegate(PuzzleBook& book, const PuzzleListModel& model, QObject* parent)
    : QStyledItemDelegate(parent), book_(book), model_(model) {}

int PuzzleCardDelegate::PictureSide(const QFontMetrics& font) {
    return kPictureLines * font.lineSpacing();
}

QSize PuzzleCardDelegate::CardSize(const QFontMetrics& font) {
    const int text = std::max(font.horizontalAdvance(QObject::tr("Several solutions")),
                              font.horizontalAdvance("1000000 \xB7 25x25"));
    return {std::max(PictureSide(font), text) + 2 * kMargin,
            PictureSide(font) + kTextLines * font.lineSpacing() + 3 * kMargin};
}

QSize PuzzleCardDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return CardSize(option.fontMetrics);
}

void PuzzleCardDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int number = model_.NumberAt(index);
    if (number == 0) return;
    const QWidget* const widget = option.widget;
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, widget);
    const PuzzleCard* const card = book_.Card(number);
    const int side = PictureSide(option.fontMetrics);
    const QRect inside = option.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (card != nullptr && card->isPuzzle) {
        QRect picture(QPoint(), card->picture.deviceIndependentSize().toSize());
        picture.moveCenter({inside.center().x(), inside.top() + side / 2});
        painter->drawPixmap(picture.topLeft(), card->picture);
    }
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    QRect line(inside.left(), inside.top() + side + kMargin, inside.width(), option.fontMetrics.lineSpacing());
    for (const QString& text : LinesOf(number, card, book_.AssessmentOf(number))) {
        painter->drawText(line, Qt::AlignHCenter | Qt::AlignVCenter,
                          option.fontMetrics.elidedText(text, Qt::ElideRight, line.width()));
        line.translate(0, line.height());
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, widget);
    }
}

}  // namespace tidewalk
