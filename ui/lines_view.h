// SPDX-License-Identifier: MIT
// A list of the game's lines on the screen.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <cstdint>
#include <functional>
#include <optional>

namespace tidewalk {

/// Where the lines of a list come from. Lines are asked for one by one, as they come into view.
struct LineSource {
    std::function<std::uint64_t()> revision;  ///< changes with every change of the lines
    std::function<int()> count;
    std::function<std::string(int)> line;  ///< line 0..count-1
};

/// Shows lines and follows their changes.
class LinesView final : public QListView {
    Q_OBJECT

 public:
    explicit LinesView(const QString& name, QWidget* parent = nullptr);

    void SetSource(LineSource source);

    /// Takes the lines over anew if they have changed.
    void Refresh();

    QSize sizeHint() const override;

 private:
    class Model;

    Model* model_;
    LineSource source_;
    std::optional<std::uint64_t> shown_;
};

}  // namespace tidewalk
