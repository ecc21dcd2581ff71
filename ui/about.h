// SPDX-License-Identifier: MIT
// The about box.
#pragma once

#include <QDialog>

namespace tidewalk {

/// Tells the program's version and licence and the libraries that it uses.
class AboutBox final : public QDialog {
    Q_OBJECT

 public:
    explicit AboutBox(QWidget* parent);
};

}  // namespace tidewalk
