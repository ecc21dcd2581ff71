// SPDX-License-Identifier: MIT
#include "ui/lines_view.h"

#include <utility>

namespace tidewalk {

class LinesView::Model final : public QAbstractListModel {
 public:
    Model(const LineSource& source, QObject* parent) : QAbstractListModel(parent), source_(source) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }

    QVariant data(const QModelIndex& index, int role) const override {
        // Between a change of the lines and the next refresh the list may be shorter than what is shown of it.
        const bool there = index.isValid() && source_.count && index.row() < source_.count();
        if (role != Qt::DisplayRole || !there) return {};
        return QString::fromStdString(source_.line(index.row()));
    }

    void Reload() {
        beginResetModel();
        count_ = source_.count ? source_.count() : 0;
        endResetModel();
    }

 private:
    const LineSource& source_;
    int count_ = 0;
};

LinesView::LinesView(const QString& name, QWidget* parent) : QListView(parent), model_(new Model(source_, this)) {
    setObjectName(name);
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

QSize LinesView::sizeHint() const {
    constexpr int kCharacters = 24;
    return {fontMetrics().averageCharWidth() * kCharacters, QListView::sizeHint().height()};
}

void LinesView::SetSource(LineSource source) {
    source_ = std::move(source);
    shown_.reset();
    Refresh();
}

void LinesView::Refresh() {
    if (!source_.revision) return;
    const std::uint64_t revision = source_.revision();
    if (shown_ == revision) return;
    shown_ = revision;
    model_->Reload();
}

}  // namespace tidewalk
