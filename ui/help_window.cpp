// SPDX-License-Identifier: MIT
#include "ui/help_window.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSvgRenderer>
#include <QVBoxLayout>

namespace tidewalk {

namespace {

constexpr int kWidth = 820;  ///< in pixels
constexpr int kHeight = 720;
constexpr int kScreenShare = 90;  ///< per cent of the screen that the window may take
constexpr int kPageMargin = 14;

/// The picture of a file at a screen's pixel ratio; a null one for what is no picture.
QPixmap DrawnAt(const QString& file, double ratio) {
    constexpr double kMadeFor = 2;  // the ratio that the page's pictures of pixels are made for
    QPixmap drawn;
    if (file.endsWith(".svg")) {
        QSvgRenderer picture(file);
        if (!picture.isValid()) return {};
        drawn = QPixmap(picture.viewBox().size() * ratio);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        picture.render(&painter);
    } else if (drawn.load(file)) {
        drawn = drawn.scaled(drawn.size() * (ratio / kMadeFor), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    drawn.setDevicePixelRatio(ratio);
    return drawn;
}

/// The page. It draws its pictures at the screen's own pixel ratio; Qt would draw them once and scale what it has.
class HelpPage final : public QTextBrowser {
 public:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
        const QPixmap drawn = DrawnAt(source().resolved(name).toLocalFile(), devicePixelRatioF());
        return drawn.isNull() ? QVariant() : drawn;
    }
};

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent), browser_(new HelpPage) {
    setObjectName("WebBrowser");
    setWindowTitle(tr("Help"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(QSize(kWidth, kHeight).boundedTo(screen()->availableSize() * kScreenShare / 100));
    browser_->setObjectName("HelpPage");
    browser_->setAccessibleName(tr("Help page"));
    browser_->setOpenExternalLinks(true);
    browser_->document()->setDocumentMargin(kPageMargin);
    AddControls();
    ApplyLinkColour();
}

void HelpWindow::AddControls() {
    auto* const back = new QPushButton(tr("&Back"));
    auto* const forward = new QPushButton(tr("&Forward"));
    auto* const home = new QPushButton(tr("&Contents"));
    auto* const close = new QPushButton(tr("C&lose"));
    back->setObjectName("HelpBack");
    forward->setObjectName("HelpForward");
    home->setObjectName("HelpHome");
    close->setObjectName("HelpClose");
    auto* const row = new QHBoxLayout;
    for (QPushButton* const button : {back, forward, home}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch();
    row->addWidget(close);
    auto* const all = new QVBoxLayout(this);
    all->addLayout(row);
    all->addWidget(browser_);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(back, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, browser_, &QTextBrowser::forward);
    connect(home, &QPushButton::clicked, browser_, &QTextBrowser::home);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, browser_, &QTextBrowser::backward);
    connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, browser_, &QTextBrowser::forward);
}

void HelpWindow::Open(const QString& folder) {
    const QString page = QDir(folder).absoluteFilePath("tide.htm");
    if (QFileInfo(page).isReadable()) {
        browser_->setSource(QUrl::fromLocalFile(page));
    } else {
        browser_->setPlainText(tr("The help page was not found:\n%1\n\nInstall Tidewalk again, or copy the file "
                                  "\"tide.htm\" and the folder \"help\" that came with it to this folder.")
                                   .arg(page));
    }
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

void HelpWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) ApplyLinkColour();
    QDialog::changeEvent(event);
}

/// Links in the usual dark blue cannot be read on a dark page. The text takes their colour when it is read, so it is
/// read again.
void HelpWindow::ApplyLinkColour() {
    constexpr int kMiddle = 128;
    const bool dark = palette().color(QPalette::Base).lightness() < kMiddle;
    browser_->document()->setDefaultStyleSheet(dark ? "a { color: #8ab8ff; }" : "a { color: #004aad; }");
    if (browser_->source().isValid()) browser_->reload();
}

}  // namespace tidewalk
