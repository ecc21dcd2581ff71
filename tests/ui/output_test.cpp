// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <filesystem>

#include "board/copy_and_print.h"
#include "board/render_puzzle.h"
#include "ui/commands.h"
#include "ui/form5.h"
#include "ui/help_window.h"
#include "ui/paper.h"
#include "ui/picture.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

/// Runs the real program with no display at hand. Returns its exit code; `said` is its error output.
int RunTidewalk(const QStringList& arguments, QString* said = nullptr) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"}) {
        environment.remove(name);
    }
    process.setProcessEnvironment(environment);
    process.start(TIDEWALK_PROGRAM, arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    if (said != nullptr) *said = QString::fromLocal8Bit(process.readAllStandardError());
    return process.exitCode();
}

QString Data(const char* name) {
    return QString(TIDEWALK_DATA_DIR) + "/" + name;
}

/// The smallest rectangle that holds everything that is not white.
QRect InkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y).lightness() < 128) ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

int PagesOf(const std::string& pdf) {
    static const QRegularExpression page("/Type\\s*/Page\\b");
    int pages = 0;
    auto found = page.globalMatch(QString::fromLatin1(pdf.data(), static_cast<qsizetype>(pdf.size())));
    for (; found.hasNext(); found.next())
        ++pages;
    return pages;
}

TEST(Picture, IsCutToWhatIsDrawnWithOneMarginAllRound) {
    TestGame game({kSmallPuzzle});
    game.Load(1);
    const auto request = PictureRequest(RenderMode::Solution, "Solution# 1 file:x", 4);
    const auto draw = [&](Surface& surface) { return RenderPuzzle(game, surface, request); };
    for (const double scale : {1.0, 2.0}) {
        const QImage picture = MakePicture(draw, scale);
        const QRect ink = InkOf(picture);
        const double margin = 200 / 15.0 * scale;
        const double slack = 4 * scale;  // a text is a little larger than its letters
        EXPECT_NEAR(ink.left(), margin, slack);
        EXPECT_NEAR(ink.top(), margin, slack);
        EXPECT_NEAR(picture.width() - 1 - ink.right(), margin, slack);
        EXPECT_NEAR(picture.height() - 1 - ink.bottom(), margin, slack);
        EXPECT_EQ(picture.devicePixelRatio(), 1) << "other programs are to see all of its pixels";
    }
}

TEST(Picture, DoubleBridgeShowsTwoStrokesBetweenNearIslandsOfALargeBoard) {
    TestGame game({Record(std::vector<std::string>(25, "2=2" + std::string(22, '.')))});
    game.Load(1);
    const auto request = PictureRequest(RenderMode::Solution, "x", 40);
    const auto draw = [&](Surface& surface) { return RenderPuzzle(game, surface, request); };
    const QImage picture = MakePicture(draw, 1);
    const PrintedBoard board = LayoutPrintedPuzzle(game, request);
    // The picture begins a margin of 200 twips before the title, which stands at (400, 200).
    const auto pixel = [](double twips) { return static_cast<int>(twips / 15); };
    const int x = pixel(board.X(2) - 200);
    int strokes = 0;
    for (int y = pixel(board.Y(5) - board.cell / 3.0); y < pixel(board.Y(5) + board.cell / 3.0); ++y) {
        const bool dark = picture.pixelColor(x, y).lightness() < 128;
        const bool before = picture.pixelColor(x, y - 1).lightness() < 128;
        if (dark && !before) ++strokes;
    }
    EXPECT_EQ(strokes, 2);
}

TEST(Output, CopyReachesTheClipboard) {
    WindowGame window;
    QGuiApplication::clipboard()->clear();
    window.Find<QAction>("mnucopyclippuz").trigger();
    const QImage picture = QGuiApplication::clipboard()->image();
    const double scale = window.form().devicePixelRatio();
    EXPECT_NEAR(picture.width(), (6252 + 360 + 10 - 400 + 2 * 200) / 15 * scale, 2 * scale);
    EXPECT_EQ(window.form().TextOf(Control::pb), "Puzzle copied to clipboard");
}

TEST(Output, PdfAppearsWithAllItsPagesAtItsEndOnly) {
    const TempFolder folder;
    const std::string path = folder.Write("out.pdf", "old");
    std::string error;
    auto document = BeginPdf(path, error);
    ASSERT_NE(document, nullptr);
    EXPECT_TRUE(document->NewPage()) << "the first page is empty, and a page all the same";
    document->Page().Line(100, 100, 200, 200, kBlack);
    EXPECT_TRUE(document->NewPage());
    EXPECT_EQ(folder.Read("out.pdf"), "old");
    EXPECT_TRUE(document->End());
    EXPECT_EQ(PagesOf(folder.Read("out.pdf")), 3);

    document = BeginPdf(path, error);
    document->NewPage();
    document.reset();
    EXPECT_EQ(PagesOf(folder.Read("out.pdf")), 3) << "what was cancelled has replaced the file";
}

TEST(Output, PdfThatCannotBeWrittenSaysWhy) {
    std::string error;
    EXPECT_EQ(BeginPdf("/nowhere/at/all.pdf", error), nullptr);
    EXPECT_NE(error.find("/nowhere/at/all.pdf"), std::string::npos);
    EXPECT_NE(error.find("No such file"), std::string::npos);
}

TEST(Output, FormFiveHandsOverWhatWasTyped) {
    WindowGame window({kSmallPuzzle, kSmallPuzzle, kSmallPuzzle});
    Form5Fields fields;
    fields.FileNow = window.game().CollectionPath;
    Form5 form(window.program->handlers(), fields, &window.form());
    form.show();
    EXPECT_EQ(form.windowTitle(), "Print Puzzles From File");
    auto* const first = form.findChild<QLineEdit*>("Text1");
    auto* const last = form.findChild<QLineEdit*>("Text2");
    EXPECT_EQ(first->text() + "-" + last->text(), "1-3");
    EXPECT_GE(form.findChild<QComboBox*>("Combo1")->findText("PDF file"), 0);
    auto* const ok = form.findChild<QPushButton*>("Command1");
    first->setText("0");
    {
        BoxAnswer box("Incorrect start or end puzzle number", "");
        QTest::mouseClick(ok, Qt::LeftButton);
    }
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(fields.Tag, "X");
    first->setText("2");
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(fields.Tag + fields.Text1 + fields.Text2, "Y23");
}

TEST(Output, CommandLineDrawsAndPrintsWithoutADisplay) {
    const TempFolder folder;
    const QString puzzles = Data("puzzles.txt");
    EXPECT_EQ(RunTidewalk({"--picture", "a.png", puzzles, "41"}), 0);
    EXPECT_EQ(RunTidewalk({"--picture", "b.png", "--solution", puzzles, "41"}), 0);
    const QImage puzzle("a.png");
    const QImage solution("b.png");
    EXPECT_GT(puzzle.width(), 500);
    EXPECT_EQ(puzzle.height(), solution.height());
    EXPECT_NE(puzzle, solution);
    EXPECT_EQ(RunTidewalk({"--pdf", "a.pdf", puzzles, "3-7"}), 0);
    EXPECT_EQ(PagesOf(folder.Read("a.pdf")), 5);
}

TEST(Output, CommandLineTellsFailuresFromWrongUsage) {
    const TempFolder folder;
    const QString puzzles = Data("puzzles.txt");
    const QString broken = QString::fromStdString(folder.Write("broken.txt", std::string(kSmallPuzzle) + "\nno\n"));
    QString said;
    const QList<QStringList> failing = {{"--picture", "/nowhere/a.png", puzzles, "1"},
                                        {"--picture", "a.png", "missing.txt", "1"},
                                        {"--picture", "a.png", broken, "2"},
                                        {"--pdf", "/nowhere/a.pdf", puzzles, "1-2"},
                                        {"--pdf", "a.pdf", puzzles, "1-9999"}};
    for (const QStringList& arguments : failing) {
        EXPECT_EQ(RunTidewalk(arguments, &said), 1) << arguments.join(' ').toStdString();
        EXPECT_FALSE(said.isEmpty());
    }
    const QList<QStringList> wrong = {
        {"--picture", "a.png", puzzles},    {"--picture", "a.png", puzzles, "1-2"},
        {"--pdf", "a.pdf", puzzles, "7-3"}, {"--pdf", "a.pdf", puzzles, "0"},
        {"--solution", puzzles, "1"},       {"--pdf", "a.pdf", "--solution", puzzles, "1"},
        {"--picture", "", puzzles, "1"}};
    for (const QStringList& arguments : wrong) {
        EXPECT_EQ(RunTidewalk(arguments), 2) << arguments.join(' ').toStdString();
    }
    EXPECT_EQ(RunTidewalk({"--pdf", "a.pdf", broken, "1-2"}, &said), 1);
    EXPECT_TRUE(said.contains("empty: 2")) << said.toStdString();
    EXPECT_EQ(PagesOf(folder.Read("a.pdf")), 2);
}

TEST(Output, NothingButAFileIsReplaced) {
    const TempFolder folder;
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);
    QString said;
    for (const char* const option : {"--pdf", "--picture"}) {
        EXPECT_EQ(RunTidewalk({option, "pipe", Data("puzzles.txt"), "1"}, &said), 1) << option;
        EXPECT_TRUE(said.contains("no ordinary file")) << said.toStdString();
        EXPECT_TRUE(std::filesystem::is_fifo("pipe")) << option;
    }
}

/// The help page and its window.
class Help : public ::testing::Test {
 protected:
    Help() {
        help.Open(TIDEWALK_DATA_DIR);
        page = help.findChild<QTextBrowser*>("HelpPage");
    }
    ~Help() override { QApplication::setPalette(QPalette()); }

    HelpWindow help{nullptr};
    QTextBrowser* page = nullptr;
};

TEST_F(Help, EveryLinkLeadsSomewhereAndEveryPictureIsThere) {
    QStringList names;
    QStringList links;
    int pictures = 0;
    for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            names += format.anchorNames();
            if (format.anchorHref().startsWith('#')) links += format.anchorHref().mid(1);
            if (!format.isImageFormat()) continue;
            ++pictures;
            const QUrl name(format.toImageFormat().name());
            EXPECT_FALSE(page->document()->resource(QTextDocument::ImageResource, name).isNull())
                << name.toString().toStdString();
        }
    }
    EXPECT_GE(pictures, 4);
    EXPECT_GE(links.size(), 15);
    for (const QString& link : links)
        EXPECT_TRUE(names.contains(link)) << link.toStdString();
}

TEST_F(Help, NamesEveryMenuEntryAndEveryShortcut) {
    const QString text = page->toPlainText();
    for (const Command& command : Commands()) {
        if (command.IsSeparator() || *command.menu == '\0') continue;
        QString entry(command.text);
        // The entries that lead through the collection share one line.
        if (QLatin1String(command.name) == QLatin1String("arrows")) entry.remove(" Puzzle");
        EXPECT_TRUE(text.contains(entry)) << entry.toStdString();
        for (const QKeySequence& key : command.keys.mid(0, 1)) {
            EXPECT_TRUE(text.contains(key.toString())) << key.toString().toStdString();
        }
    }
}

TEST_F(Help, GoesToAnAnchorAndBack) {
    page->setSource(QUrl("#files"));
    EXPECT_GT(page->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(help.findChild<QPushButton*>("HelpBack")->isEnabled());
    help.findChild<QPushButton*>("HelpBack")->click();
    EXPECT_EQ(page->verticalScrollBar()->value(), 0);
}

TEST_F(Help, LinksCanBeReadOnADarkDesktop) {
    QPalette dark(QColor(45, 45, 48), QColor(32, 32, 35));
    dark.setColor(QPalette::Base, QColor(25, 25, 28));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    int links = 0;
    for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.anchorHref().isEmpty()) continue;
            ++links;
            EXPECT_GT(format.foreground().color().lightness(), 150);
        }
    }
    EXPECT_GT(links, 0);
}

TEST(HelpWithoutItsPage, SaysWhatIsMissing) {
    const TempFolder folder;
    HelpWindow help(nullptr);
    help.Open(QString::fromStdString(folder.Path("")));
    EXPECT_TRUE(help.findChild<QTextBrowser*>()->toPlainText().contains("tide.htm"));
}

}  // namespace
}  // namespace tidewalk::test
