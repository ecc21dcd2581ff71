// SPDX-License-Identifier: MIT
// Message boxes, file dialogs, and the windows beside the main one.
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBlock>
#include <set>

#include "model/plain_grid.h"
#include "options/colour_scheme.h"
#include "ui/colours.h"
#include "ui/msg_form.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

/// The style's buttons as "Caption=code ..." in their order, and what the frame answers.
std::string Buttons(std::string_view style) {
    const MessageStyle parsed = ParseMessageStyle(style);
    std::string all;
    for (const MessageButton& button : parsed.buttons)
        all += std::string(button.caption) + "=" + std::to_string(button.code) + " ";
    return all + "or " + std::to_string(parsed.FrameAnswer());
}

TEST(MessageBox, EachWordOfItsStyleGivesButtonsAndTheFrameTheMildestAnswer) {
    EXPECT_EQ(Buttons("vbokonly"), "Ok=1 or 1");
    EXPECT_EQ(Buttons("vbnormal"), "Ok=1 or 1");
    EXPECT_EQ(Buttons("vbokcancel"), "Ok=1 Cancel=2 or 2");
    EXPECT_EQ(Buttons("vbYesNo"), "Yes=6 No=7 or 7");
    EXPECT_EQ(Buttons("vbyesnocancel"), "Yes=6 No=7 Cancel=2 or 2");
    EXPECT_EQ(Buttons("vbretrycancel"), "Retry=4 Cancel=2 or 2");
    EXPECT_EQ(Buttons("vbabortretryignore"), "Abort=3 Retry=4 Ignore=5 or 1");
    EXPECT_EQ(Buttons("vbcontinuecancel"), "Continue=6 Cancel=2 or 2");
    EXPECT_EQ(Buttons(" vbcancel + vbignore"), "Cancel=2 Ignore=5 or 2");
    EXPECT_EQ(Buttons("vbcancelok"), "Cancel=2 Ok=1 or 2");
    EXPECT_EQ(Buttons("nonsense+vb+ok++vbprint"), "or 0");
}

TEST(MessageBox, ShowsItsPicturesAndPlainText) {
    const MsgForm box("<b>Delete</b>:\r\n/a/b",
                      ParseMessageStyle("vbopen+vbsave+vbexit+vblighton+vbcustom+vbtrash+vbprint+vbhappy+vbcritical+"
                                        "vberror+vbexclamation+vbquestion+VBINFORMATION"),
                      "caption", nullptr);
    EXPECT_EQ(box.windowTitle(), "caption");
    const auto pictures = box.findChildren<QLabel*>(QRegularExpression("^vb"));
    EXPECT_EQ(pictures.size(), 13);
    for (const QLabel* const picture : pictures)
        EXPECT_FALSE(picture->pixmap().isNull()) << picture->objectName().toStdString();
    EXPECT_EQ(Get(box, "Label1"), "<b>Delete</b>:\n/a/b");
    EXPECT_EQ(Of<QLabel>(box, "Label1").textFormat(), Qt::PlainText);
}

TEST(MessageBox, IsAnsweredByButtonsKeysAndItsFrame) {
    WindowGame window;
    const auto key = [](Qt::Key which) {
        return [which](QDialog& box) {
            box.activateWindow();
            QTest::keyClick(box.focusWidget() != nullptr ? box.focusWidget() : &box, which);
        };
    };
    const auto show = [&](const char* style, const Act& act) {
        window.Expect("text", act);
        return window.game.prompts.Show("text", style);
    };
    EXPECT_EQ(show("vbcancelok", key(Qt::Key_Return)), kCancel);
    EXPECT_EQ(show("vbyesno", key(Qt::Key_Escape)), kNo);
    EXPECT_EQ(show("vbabortretryignore", Answer("Ignore")), kIgnore);
    const auto ask = [&](SystemButtons buttons, const Act& act) {
        window.Expect("system: a\nb", act);
        return window.game.prompts.SystemBox("a\r\nb", buttons);
    };
    EXPECT_EQ(ask(SystemButtons::YesNo, Answer("Yes")), kYes);
    EXPECT_EQ(ask(SystemButtons::YesNo, key(Qt::Key_Return)), kNo);
    EXPECT_EQ(ask(SystemButtons::YesNo, key(Qt::Key_Escape)), kNo);
    EXPECT_EQ(ask(SystemButtons::Ok, Answer("OK")), kOk);
}

TEST(FilePicker, OffersTheFilesOfItsPatternsAndAllOthers) {
    WindowGame window;
    const std::string other = window.folder.Write("other.txt", "");
    const auto pick = [&](FileRequest::Mode mode, const Act& act) {
        window.Expect("file: Which?", act);
        return window.game.filePicker.Pick({"Which?", "*.tdw;*.txt", "Puzzles", window.folder.Path(""), mode});
    };
    const Act looksAround = [&](QDialog& dialog) {
        const auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.nameFilters(), (QStringList{"Puzzles (*.tdw *.txt)", "All files (*)"}));
        EXPECT_EQ(files.directory(), QDir::current());
        EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptOpen);
    };
    EXPECT_EQ(pick(FileRequest::Mode::Open, looksAround), "");
    EXPECT_EQ(pick(FileRequest::Mode::Open, Choose(other)), other);
    // A file that is there may be chosen for saving: whether it is written over is asked elsewhere.
    for (const std::string& name : {other, window.folder.Path("new")})
        EXPECT_EQ(pick(FileRequest::Mode::Save, Choose(name)), name);
}

TEST(Form2, EachControlDoesItsPartAndOnlyWhatIsAppliedShows) {
    WindowGame window;
    Options& options = window.game.options;
    const std::vector<std::tuple<const char*, const char*, Colour&>> rows{{"cmdgridcol", "Line2", options.GridColour},
                                                                          {"cmdchaincol", "Line1", options.ChainColour},
                                                                          {"cmdgivenfg", "Label1", options.GivenColour},
                                                                          {"cmdnodecol", "Label2", options.NodeColour}};
    const auto change = [&](QDialog& form2) {
        EXPECT_EQ(Get(form2, "Combo1 Check1 Check2 Option2 Text3"), "xp true false false 4")
            << "what was not applied is forgotten";
        const QColor face = form2.palette().color(QPalette::Window);
        Set(form2, "Combo1=dusk");
        emit Of<QComboBox>(form2, "Combo1").textActivated("dusk");
        EXPECT_NE(form2.palette().color(QPalette::Window), face) << "it wears the scheme before the others do";
        for (int i = 0; i < 4; ++i) {
            Set(form2, QString("red=20%1 green=10%1 blue=%1").arg(i));
            Press(form2, std::get<0>(rows[i]));
            EXPECT_EQ(Of<Swatch>(form2, std::get<1>(rows[i])).Value(), Rgb(200 + i, 100 + i, i));
        }
        Press(form2, "Line2");
        EXPECT_EQ(Get(form2, "red green blue swatch"), "200 100 0 #c86400") << "a swatch is taken into the picker";
        const auto preview = [&] { return Of(form2, "Preview").grab().toImage(); };
        QImage board = preview();
        Set(form2, "blue=9");
        EXPECT_EQ(Of<Swatch>(form2, "Line2").Value(), Rgb(200, 100, 9)) << "and from then on it follows the bars";
        EXPECT_NE(std::exchange(board, preview()), preview());
        Press(form2, "Finished islands paler");
        EXPECT_NE(board, preview());
        Press(form2, "Finished islands paler");
        Set(form2, "blue=0");
        for (const char* const button : {"Show", "Circle", "Finished islands paler"})
            Press(form2, button);
        Set(form2, "Text3=7");
    };
    const auto leaveWith = [&](const char* button) {
        window.Expect("Form2", [&, button](QDialog& form2) { change(form2), Press(form2, button); });
        window.Trigger("mnuoptset");
        QCoreApplication::processEvents();
        return options.ShowLines + 10 * options.NodeShape + 100 * options.ShowFinished + 1000 * options.PrintLineWidth;
    };
    EXPECT_EQ(leaveWith("command2"), 4001);
    EXPECT_EQ(options.ColourSchemeName, "xp.col");
    EXPECT_EQ(leaveWith("command1"), 7110);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(std::get<2>(rows[i]), Rgb(200 + i, 100 + i, i));
    EXPECT_EQ(options.ColourSchemeName, "dusk.col");
    const QColor background = ToQColor(options.SchemeColours[kBackgroundEntry]);
    EXPECT_EQ(window.form.Container().grab().toImage().pixelColor(2, 2), background);
    window.Expect("Form6", [&](QDialog& side) {
        EXPECT_EQ(side.palette().color(QPalette::Window), ToQColor(options.SchemeColours[kFaceEntry]));
    });
    window.Trigger("mnueditor");
    window.Expect("text", [&](QDialog& box) { EXPECT_EQ(box.palette().color(QPalette::Window), background); });
    window.game.prompts.Show("text", "vbok");
    window.Expect("Form2", Answer("reset"));
    window.Trigger("mnuoptset");
    EXPECT_EQ(options.ColourSchemeName + std::to_string(options.NodeShape), "xp.col0");
}

TEST(Form2, ASchemeOfOnesOwnIsNamedAndColouredPartByPart) {
    WindowGame window;
    const auto name = [](const char* text) {
        return [text](QDialog& dialog) {
            dynamic_cast<QInputDialog&>(dialog).setTextValue(text);
            dialog.accept();
        };
    };
    const auto choose = [&](const char* colour, bool take) {
        window.Expect("ColourDialog", [=](QDialog& dialog) {
            dynamic_cast<QColorDialog&>(dialog).setCurrentColor(QColor(colour));
            take ? dialog.accept() : dialog.reject();
        });
    };
    window.Expect("Form2", [&](QDialog& form2) {
        const auto part = [&] { return Of<Swatch>(form2, "PartFace").Value(); };
        EXPECT_FALSE(Of(form2, "PartFace").isEnabled() || Of(form2, "cmddeletescheme").isEnabled());
        window.Expect("SchemeName", name(" XP "));
        window.Expect("There is a colour scheme \"XP\" already.", Answer("Ok"));
        window.Expect("SchemeName", name(" mine "));
        Press(form2, "cmdnewscheme");
        EXPECT_EQ(Get(form2, "Combo1"), "mine");
        const Colour before = part();
        const auto gone = [&] { return form2.findChild<QColorDialog*>() == nullptr; };
        Press(form2, "PartFace");
        choose("#123456", false);
        Press(form2, "cmdmorecolours");
        EXPECT_TRUE(QTest::qWaitFor(gone));
        EXPECT_EQ(part(), before);
        choose("#203040", true);
        QTest::mouseClick(&Of(form2, "swatch"), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor(gone));
        EXPECT_EQ(part(), Rgb(0x20, 0x30, 0x40));
        EXPECT_EQ(form2.palette().color(QPalette::Window), QColor("#203040"));
        Press(form2, "command1");
    });
    window.Trigger("mnuoptset");
    EXPECT_EQ(window.game.options.ColourSchemeName, "mine.col");
    window.Expect("Form2", [&](QDialog& form2) {
        window.Expect("Delete the colour scheme \"mine\"?", Answer("No"));
        Press(form2, "cmddeletescheme");
        EXPECT_EQ(Get(form2, "Combo1"), "mine");
        window.Expect("Delete the colour scheme \"mine\"?", Answer("Yes"));
        Press(form2, "cmddeletescheme");
        EXPECT_EQ(Of<QComboBox>(form2, "Combo1").findText("mine"), -1);
    });
    window.Trigger("mnuoptset");
    EXPECT_NE(window.folder.Read("all.col").find("\r\nmine.col\r\n"), std::string::npos) << "it was not applied";
}

TEST(Form2, OnADarkDesktopDarkerMakesDarkerAndLighterLighter) {
    QApplication::setPalette(QPalette(QColor(45, 45, 48), QColor(32, 32, 35)));
    WindowGame window;
    window.game.options.ColourSchemeName = "default.col";
    window.game.options.SchemeColours[kAdjustedEntry] = 0;
    ApplyColourScheme(window.game);
    window.Expect("Form2", [](QDialog& form2) {
        const auto lightness = [&] { return form2.palette().color(QPalette::Button).lightness(); };
        const int before = lightness();
        EXPECT_LT(before, 60) << "the desktop's own buttons";
        Press(form2, "Darker");
        EXPECT_LT(lightness(), before);
        for (int last = lightness(), i = 0; i < 30; last = lightness(), ++i) {
            Press(form2, "Lighter");
            EXPECT_GE(lightness(), last);
        }
    });
    window.Trigger("mnuoptset");
}

TEST(Form3, MakesTheBatchThatWasTypedAndStaysWhileSomethingIsWrong) {
    WindowGame window;
    window.Expect("Form3", [&](QDialog& form3) {
        EXPECT_EQ(Get(form3, "OneSolution Grade Character"), "true Any grade As they grow");
        Press(form3, "OneSolution");
        Set(form3, "Text1=3 Combo1=7 Combo2=9 Grade=Easy");
        EXPECT_EQ(Get(form3, "OneSolution"), "true") << "a grade asks for one solution";
        window.Expect("Specify an output file");
        Press(form3, "Command1");
        window.Expect("file: Select an output Puzzle file", Choose(window.folder.Path("out")));
        Press(form3, "gf1");
        EXPECT_EQ(Get(form3, "FileNow"), window.folder.Path("out.txt"));
        Set(form3, "FileNow=out");
        window.Expect("Create 3 7x9 puzzles\r\nOutput file: out.txt\r\n\r\nProceed?", Answer("Yes"));
        window.Expect("Created 3 puzzles in file:\r\nout.txt", Answer("Ok"));
        Press(form3, "Command1");
    });
    window.Trigger("mnucreatemany");
    window.Expect("Form3", [](QDialog& form3) {
        EXPECT_EQ(Get(form3, "Text1 Combo2 FileNow Grade"), "3 9 out.txt Easy") << "it stays for the next time";
        Of<QComboBox>(form3, "Grade").setCurrentIndex(0);
        EXPECT_EQ(Get(form3, "OneSolution"), "false") << "so does the player's own wish";
    });
    window.Trigger("mnucreatemany");
}

TEST(Grids, AreChosenFromAListWithPictures) {
    WindowGame window;
    for (const char* const button : {"GridsOpen", "GridsCancel"}) {
        QApplication::clipboard()->setText("No\n\n2.2\n\n" + QString(26, '1') + "\n\n3 . . 3\n");
        window.Expect("Grids", [button](QDialog& open) {
            EXPECT_EQ(Get(open, "GridsCaption"), "Clipboard: 4 grids of 1x3 and 1x4, 2 not puzzles: lines 1 and 5");
            auto& list = Of<QListView>(open, "GridsList");
            const auto text = [&list](int row) { return list.model()->index(row, 0).data().toString().toStdString(); };
            EXPECT_EQ(list.currentIndex().row(), 1) << "the first puzzle";
            EXPECT_EQ(text(0) + text(3), "1:  1x2, line 1, not a puzzle4:  1x4, line 7");
            QTest::keyClick(&list, Qt::Key_Down);
            EXPECT_FALSE(Of(open, "GridsOpen").isEnabled()) << "no board holds it";
            const auto picture = [&list](int row) {
                return list.model()->index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
            };
            EXPECT_NE(picture(1), picture(3));
            QTest::keyClick(&list, Qt::Key_Down);
            EXPECT_EQ(list.currentIndex().row(), 3) << "one comes past it with the keys";
            Press(open, button);
        });
        window.Trigger("mnupastepuzzle");
    }
    EXPECT_EQ(PlainGrid(window.game.board.puzzle), std::vector<std::string>{"3..3"});
}

TEST(Solutions, LieSideBySideWithTheirDifferencesMarked) {
    WindowGame window({Record({"3.3", "...", "3.3"})});
    window.Expect("Solutions", [](QDialog& open) {
        EXPECT_EQ(Get(open, "Caption"), "This puzzle has several solutions. Two of them:");
        auto& list = Of<QListWidget>(open, "Differences");
        EXPECT_EQ(list.count(), 4);
        auto& first = Of(open, "Solution1");
        const auto look = [](QWidget& view) { return view.grab().toImage(); };
        const QImage before = look(first);
        EXPECT_NE(before, look(Of(open, "Solution2")));
        list.setCurrentRow(1);
        EXPECT_NE(before, look(first)) << "another place stands out";
        open.resize(open.size() * 2);
        EXPECT_GT(look(first).width(), before.width() * 3 / 2);
        Press(open, "SolutionsClose");
        EXPECT_FALSE(open.isVisible());
    });
    window.Trigger("mnusolutions");
}

TEST(Form5, HandsOverWhatWasTypedAndStaysWhileSomethingIsWrong) {
    WindowGame window({kSmallPuzzle, kSmallPuzzle, kSmallPuzzle});
    const std::string two = window.folder.Write("two.tdw", std::string(kSmallPuzzle) + "\r\n" + kSmallPuzzle + "\r\n");
    PrintRequest request;
    request.collection = window.game.collection.CollectionPath;
    window.Expect("Form5", [&](QDialog& form5) {
        EXPECT_EQ(Get(form5, "FileNow Text1 Text2 Count Combo1"), request.collection + " 1 3 of 3 PDF file");
        Set(form5, "Text1=0");
        window.Expect("Incorrect start or end puzzle number");
        Press(form5, "Command1");
        window.Expect("file: Select a Puzzle file to print", Choose(two));
        Press(form5, "gf1");
        EXPECT_EQ(Get(form5, "FileNow Text2"), two + " 2");
        Of<QComboBox>(form5, "Combo1").addItem("Another");
        Set(form5, "FileNow=collection.tdw Text1=2 Text2=3 Combo1=Another");
        Press(form5, "Command1");
    });
    EXPECT_TRUE(window.game.questions.AskPrint(request));
    EXPECT_EQ(request.collection + request.first + request.last + request.printer, "collection.tdw23Another");
}

TEST(Form6, APuzzleIsTypedClickedAndPlayed) {
    WindowGame window;
    const NumberGrid& grid = window.program.form6().grid();
    const Puzzle current = WithoutLinks(window.board.puzzle);
    window.Expect("Form6", [&](QDialog& form6) {
        auto& view = Of(form6, "NumberGrid");
        Press(form6, "cmdcurrent");
        window.Expect("file: Save the grid", Choose(window.folder.Path("grid.txt")));
        Press(form6, "cmdsave6");
        Set(form6, "SpinRows=10 SpinCols=5");
        window.Expect("file: Select a grid file", Choose(window.folder.Path("grid.txt")));
        Press(form6, "cmdload6");
        EXPECT_EQ(grid.Numbers(), current);
        EXPECT_EQ(Get(form6, "SpinRows SpinCols"), "7 7");
        Press(form6, "cmdclear");
        Set(form6, "SpinRows=10 SpinCols=5");
        const std::vector<std::pair<Qt::Key, CellPlace>> walk{
            {Qt::Key_End, {1, 5}},   {Qt::Key_Down, {2, 5}}, {Qt::Key_Left, {2, 4}}, {Qt::Key_Right, {2, 5}},
            {Qt::Key_Up, {1, 5}},    {Qt::Key_Home, {1, 1}}, {Qt::Key_4, {1, 2}},    {Qt::Key_Period, {1, 3}},
            {Qt::Key_2, {1, 4}},     {Qt::Key_7, {1, 5}},    {Qt::Key_9, {1, 5}},    {Qt::Key_Backspace, {1, 4}},
            {Qt::Key_Delete, {1, 4}}};
        for (const auto& [key, place] : walk) {
            QTest::keyClick(&view, key);
            EXPECT_EQ(grid.Cursor(), place) << key;
        }
        QTest::keyClick(&view, Qt::Key_5, Qt::ControlModifier);
        // Cells are squares in the view's middle, as large as its shorter way allows.
        const double side = std::min(48.0, (view.height() - 2) / 10.0);
        const QPointF corner((view.width() - 5 * side) / 2, (view.height() - 10 * side) / 2);
        const auto click = [&](double row, double col) {
            QTest::mouseClick(&view, Qt::LeftButton, {}, (corner + QPointF(col, row) * side).toPoint());
            return grid.Cursor();
        };
        EXPECT_EQ(click(9.5, 0.5), (CellPlace{10, 1}));
        EXPECT_EQ(click(0.5, 5.2), (CellPlace{10, 1})) << "beside the grid";
        const QImage look = view.grab().toImage();
        QTest::keyClicks(&view, "2");
        EXPECT_NE(view.grab().toImage(), look);
        Press(form6, "cmdclose");
    });
    window.Trigger("mnueditor");
    window.Expect("Form6", Answer("cmduse"));
    window.Trigger("mnueditor");
    EXPECT_EQ(window.folder.Read("tempeditpuzzle.txt").substr(0, 19), "#1005\r\n4.2..\r\n.....");
    EXPECT_EQ(window.board.puzzle, grid.Numbers());
}

/// The help page and its window.
struct Help : ::testing::Test {
    Help() { help.Open(TIDEWALK_DATA_DIR); }
    ~Help() override { QApplication::setPalette(QPalette()); }

    std::vector<QTextCharFormat> Formats() const {
        std::vector<QTextCharFormat> all;
        for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it)
                all.push_back(it.fragment().charFormat());
        }
        return all;
    }

    HelpWindow help{nullptr};
    QTextBrowser& page = Of<QTextBrowser>(help, "HelpPage");
};

TEST_F(Help, EveryLinkLeadsSomewhereEveryPictureIsThereAndEveryCommandIsNamed) {
    QStringList names;
    QStringList links;
    for (const QTextCharFormat& format : Formats()) {
        names += format.anchorNames();
        if (format.anchorHref().startsWith('#')) links += format.anchorHref().mid(1);
        if (!format.isImageFormat()) continue;
        const QUrl name(format.toImageFormat().name());
        const QPixmap picture = page.document()->resource(QTextDocument::ImageResource, name).value<QPixmap>();
        EXPECT_FALSE(picture.isNull()) << name.path().toStdString();
        EXPECT_EQ(picture.devicePixelRatio(), page.devicePixelRatioF()) << "it would be scaled, and blurred";
    }
    EXPECT_GE(links.size(), 15);
    for (const QString& link : links)
        EXPECT_TRUE(names.contains(link)) << link.toStdString();
    const QString text = page.toPlainText();
    for (const Command& command : Commands()) {
        if (command.IsSeparator() || *command.menu == '\0') continue;
        // The entries that lead through the collection share one line.
        const bool isArrow = QLatin1String(command.name) == QLatin1String("arrows");
        const QString entry = QString(command.text).remove('&').remove(isArrow ? " Puzzle" : "\n");
        EXPECT_TRUE(text.contains(entry)) << entry.toStdString();
        for (const QKeySequence& key : command.keys.mid(0, 1))
            EXPECT_TRUE(text.contains(key.toString())) << key.toString().toStdString();
    }
}

TEST_F(Help, GoesToAnAnchorBackAndForthAndSaysWhatIsMissing) {
    const auto at = [&] { return page.verticalScrollBar()->value(); };
    page.setSource(QUrl("#files"));
    const int files = at();
    EXPECT_GT(files, 0);
    for (const auto& [button, leadsTo] : {std::pair{"HelpBack", 0}, {"HelpForward", files}, {"HelpHome", 0}}) {
        Press(help, button);
        EXPECT_EQ(at(), leadsTo) << button;
    }
    help.Open("/nowhere");
    EXPECT_TRUE(page.toPlainText().contains("/nowhere/tide.htm"));
}

TEST_F(Help, LinksCanBeReadOnADarkDesktopAndOnALightOne) {
    const auto lightness = [&] {
        QCoreApplication::processEvents();
        std::set<int> found;
        for (const QTextCharFormat& format : Formats()) {
            if (!format.anchorHref().isEmpty()) found.insert(format.foreground().color().lightness());
        }
        return found.size() == 1 ? *found.begin() : -1;
    };
    EXPECT_NEAR(lightness(), 50, 49);
    QPalette dark(QColor(45, 45, 48), QColor(32, 32, 35));
    dark.setColor(QPalette::Base, QColor(25, 25, 28));
    QApplication::setPalette(dark);
    EXPECT_GT(lightness(), 150);
}

}  // namespace
}  // namespace tidewalk::test
