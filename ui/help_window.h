// SPDX-License-Identifier: MIT
// The help window, which shows the page "tide.htm".
#pragma once

#include <QDialog>
#include <QTextBrowser>

namespace tidewalk {

/// The page of the program folder with buttons to go back, forward and home. It stays open beside the main window.
class HelpWindow final : public QDialog {
    Q_OBJECT

 public:
    explicit HelpWindow(QWidget* parent);

    /// Shows `folder`'s "tide.htm" from its beginning, or says that it is missing.
    void Open(const QString& folder);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void AddControls();
    void ApplyLinkColour();

    QTextBrowser* browser_;
};

}  // namespace tidewalk
