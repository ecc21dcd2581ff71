// SPDX-License-Identifier: MIT
// The start of the program: its command line, its folder, and what it does without a window.
#include <sys/stat.h>

#include <QCryptographicHash>
#include <QDir>
#include <QProcess>
#include <chrono>
#include <filesystem>
#include <future>

#include "game/job.h"
#include "ui/app_folder.h"
#include "ui/command_line.h"
#include "ui/file_name.h"
#include "ui/hand_over.h"
#include "ui/running_window.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

TEST(CommandLine, PathsAreMadeAbsolute) {
    const CommandLine line = ParseCommandLine(
        {"tidewalk", "--folder", "here", "--screenshot=a.png", "--seed", "7", "-platform", "offscreen", "x.tdw", "12"});
    EXPECT_EQ(line.wish, CommandLine::Wish::Run);
    EXPECT_EQ(line.folder, QDir::current().filePath("here"));
    EXPECT_EQ(line.screenshot, QDir::current().filePath("a.png"));
    EXPECT_EQ(line.collection, QDir::current().filePath("x.tdw"));
    EXPECT_EQ(line.seed, 7U);
    EXPECT_EQ(line.puzzleNumber, 12);
    EXPECT_TRUE(line.namesPlatform);
}

TEST(CommandLine, WrongUsageIsToldApart) {
    for (const char* const arguments : {"--nosuch",
                                        "--folder",
                                        "--folder=",
                                        "--seed x",
                                        "--seed -1",
                                        "a b",
                                        "a 0",
                                        "a -3",
                                        "a 1 2",
                                        "--picture a.png x",
                                        "--picture a.png x 1-2",
                                        "--picture= x 1",
                                        "--pdf a.pdf x 7-3",
                                        "--pdf a.pdf x 0",
                                        "--pdf a.pdf x y",
                                        "--solution x 1",
                                        "--pdf a.pdf --solution x 1",
                                        "--pdf a.pdf --picture b.png x 1",
                                        "--booklet a.pdf x",
                                        "--booklet a.pdf x 7-3",
                                        "--booklet a.pdf --per-page 3 x 1-2",
                                        "--booklet a.pdf --per-page 0 x 1-2",
                                        "--booklet a.pdf --paper B5 x 1-2",
                                        "--per-page 4 x 1",
                                        "--booklet a.pdf --pdf b.pdf x 1"}) {
        const CommandLine line = ParseCommandLine(("tidewalk " + QString(arguments)).split(' '));
        EXPECT_EQ(line.wish, CommandLine::Wish::Wrong) << arguments;
        EXPECT_FALSE(line.text.isEmpty()) << arguments;
    }
    EXPECT_EQ(ParseCommandLine({"tidewalk", ""}).wish, CommandLine::Wish::Wrong);
    EXPECT_EQ(ParseCommandLine({"tidewalk"}).wish, CommandLine::Wish::Run);
}

TEST(CommandLine, ACollectionMayHaveANameOfAnyBytesAndWhatIsWrittenMayNot) {
    for (const std::string name :
         {"/k\xE4se.tdw", "/k\xC3\xA4se", "/\xF0\x9F\x98\x80\xF0\x9F", "/\xED\xB3\xA4", "/\xC3"})
        EXPECT_EQ(FileNameBytes(ParseCommandLine({"tidewalk", FileNameText(name)}).collection), name);
    const CommandLine line = ParseCommandLine({"tidewalk", "--pdf", FileNameText("a\xE4.pdf"), "x", "1"});
    EXPECT_EQ(line.wish, CommandLine::Wish::Wrong);
}

TEST(CommandLine, ThatSpeaksOfAWindowGetsOneOfItsOwn) {
    for (const char* const option : {"--new-window", "--seed 1", "--screenshot a", "-style x", "--platform y"})
        EXPECT_TRUE(ParseCommandLine(("tidewalk x 3 " + QString(option)).split(' ')).ownWindow) << option;
    EXPECT_FALSE(ParseCommandLine({"tidewalk", "--folder", "here", "x", "3"}).ownWindow);
}

TEST(Summons, AreReadAsTheyWereWrittenAndNothingElseIs) {
    const std::string nothing(1, '\0');
    const Summons summons{"/k\xE4se\n.tdw", 12, "token"};
    EXPECT_EQ(ParseSummons(SummonsText(summons)), summons);
    EXPECT_EQ(ParseSummons(SummonsText({"", 1, "no token"})), Summons());
    for (const Summons& wrong : {Summons{"relative", 1, ""}, Summons{"/x", 0, ""}, Summons{"/x", -1, ""}})
        EXPECT_EQ(ParseSummons(SummonsText(wrong)), std::nullopt);
    const std::string text = SummonsText({"/x", 1, ""});
    for (const std::string& wrong : {std::string(), nothing, text + nothing, text.substr(0, text.size() - 1),
                                     text + "x", "tidewalk 2" + text.substr(10), GreetingText(1)})
        EXPECT_EQ(ParseSummons(wrong), std::nullopt);
    EXPECT_EQ(ParseGreeting(GreetingText(7)), 7);
    EXPECT_EQ(ParseGreeting(text), std::nullopt);
}

/// A window that hears of later starts, and what those hand to it.
struct OpenWindow : WindowGame {
    OpenWindow() : WindowGame({kSmallPuzzle, kSmallPuzzle}) {
        running.emplace(std::move(*Arrive(place, std::nullopt).listener), program.handlers(), form);
        running->BeginToTake();
    }
    /// Another start. It would need a window of its own when this is false.
    std::future<bool> Start(int number, const std::string& path) {
        return std::async(std::launch::async, [=, this] { return Arrive(place, Summons{path, number, ""}).isTaken; });
    }
    std::future<bool> Start(int number) { return Start(number, folder.Path("collection.tdw")); }
    bool IsTaken(std::future<bool> start) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return start.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return start.get();
    }
    const std::string place = MeetingPlace(QString::fromStdString(folder.Path("")));
    std::optional<RunningWindow> running;
};

TEST(SecondStart, HandsItsFileToTheWindowWhichOpensItAsItsMenuWould) {
    OpenWindow window;
    EXPECT_TRUE(window.IsTaken(window.Start(2)));
    EXPECT_EQ(window.game.collection.PuzzleNumber, 2);
    EXPECT_TRUE(window.IsTaken(window.Start(1, "")));
    EXPECT_EQ(window.game.collection.PuzzleNumber, 2) << "without a file there is nothing to open";
    window.Expect("puzzle 9 not found");
    EXPECT_TRUE(window.IsTaken(window.Start(9)));
    const Job job(window.game, "AutoSolve");
    window.Expect("Cancel Autosolve first");
    EXPECT_TRUE(window.IsTaken(window.Start(1)));
}

TEST(SecondStart, WaitsWhileABoxIsOpenAndOpensItsFileItselfWhenTheWindowEnds) {
    OpenWindow window;
    std::future<bool> first;
    window.Expect("Exit?", [&](QDialog& box) {
        first = window.Start(2);
        EXPECT_FALSE(QTest::qWaitFor([&] { return window.game.collection.PuzzleNumber == 2; }, 300));
        Press(box, "No");
    });
    window.Trigger("mnuexit");
    EXPECT_TRUE(window.IsTaken(std::move(first)));
    EXPECT_EQ(window.game.collection.PuzzleNumber, 2);
    std::future<bool> second;
    window.Expect("Exit?", [&](QDialog& box) {
        second = window.Start(1);
        QTest::qWait(100);
        Press(box, "Yes");
    });
    window.Trigger("mnuexit");
    EXPECT_FALSE(window.IsTaken(std::move(second)));
    EXPECT_EQ(window.game.collection.PuzzleNumber, 2);
}

TEST(SecondStart, LeavesAWindowAloneThatHangsOrSpeaksAnotherLanguage) {
    const TempFolder folder;
    const std::string place = MeetingPlace(".");
    const auto hung = LocalSocket::Listen(place + "-0");
    const auto other = LocalSocket::Listen(place + "-1");
    EXPECT_FALSE(LocalSocket::Listen(place + "-0")) << "a place is for one";
    auto start = std::async(std::launch::async, [&] { return Arrive(place, Summons{"/x", 1, ""}); });
    std::optional<LocalSocket> line;
    while (!(line = other->Answer()))
        QTest::qWait(1);
    line->Send("tidewalk 2 window");
    const Arrival arrival = start.get();
    EXPECT_TRUE(!arrival.isTaken && arrival.listener);
    EXPECT_EQ(line->Hear().what, LocalSocket::Heard::What::End) << "nothing was told to it";
    EXPECT_TRUE(LocalSocket::Call(place + "-2"));
    QFile::link(".", "link");
    EXPECT_EQ(MeetingPlace("link"), place);
}

/// Where a program folder may be chosen.
struct Places : TempFolder {
    Places() {
        for (const char* const name : {"bin", "share", "share/icons", "empty"})
            QDir().mkdir(name);
        Write("share/all.col", "shipped");
        Write("share/tide.htm", "help");
        Write("share/icons/undo.svg", "icon");
        std::filesystem::permissions("share/all.col", std::filesystem::perms::owner_read);
    }
    QString At(const char* name) const { return QString::fromStdString(Path(name)); }
    AppFolderChoice Choose(const std::optional<QString>& requested = {}) const {
        return ChooseAppFolder(requested, {At("bin"), At("home/data/tidewalk"), At("share")});
    }
};

TEST(AppFolder, TheUsersFolderGetsWhatItLacksAndIsRenewedWhereNobodyChangedIt) {
    const Places places;
    const auto line = [](const char* bytes, const char* name) {
        return (QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() + "  " + name + "\n").toStdString();
    };
    places.Write("share/shipped.txt", line("first", "tide.htm") + line("help", "tide.htm") + line("first", "all.col"));
    const QString own = places.At("home/data/tidewalk");
    const AppFolderChoice first = places.Choose();
    EXPECT_TRUE(first.folder == own && first.isNew);
    EXPECT_TRUE(places.Choose().isNew) << "the first start has not come to its end";
    EndFirstStart(first);
    EXPECT_EQ(QDir(own).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList({"all.col", "tide.htm"}));
    EXPECT_TRUE(QFile::permissions(own + "/all.col") & QFile::WriteOwner);
    places.Write("home/data/tidewalk/tide.htm", "first");
    places.Write("home/data/tidewalk/all.col", "help");
    EXPECT_FALSE(places.Choose().isNew);
    EXPECT_EQ(places.Read("home/data/tidewalk/tide.htm"), "help");
    EXPECT_EQ(places.Read("home/data/tidewalk/all.col"), "help") << "no file of this name ever shipped so";
    // Each change of a file that ships adds a line to the list.
    QFile list(TIDEWALK_DATA_DIR "/shipped.txt");
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    const QByteArray listed = list.readAll();
    for (const char* const name : {"all.col", "tide.htm", "puzzles.txt", "help/example.svg", "help/laying.svg"}) {
        QFile file(TIDEWALK_DATA_DIR "/" + QString(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        EXPECT_TRUE(listed.contains(line(file.readAll(), name).c_str())) << name;
    }
}

TEST(AppFolder, IsTheProgramsOwnInAPortableCopyOrTheRequestedOne) {
    const Places places;
    EXPECT_EQ(places.Choose(places.At("empty")).folder, places.At("empty"));
    EXPECT_NE(places.Choose(places.At("nowhere")).error, "");
    places.Write("bin/all.col", "portable");
    EXPECT_EQ(places.Choose().folder, places.At("bin"));
    EXPECT_FALSE(QFile::exists("home"));
    QFile::remove("bin/all.col");
    places.Write("home", "a file in the way");
    EXPECT_NE(places.Choose().error, "");
    EXPECT_EQ(ShareFolder(places.At("bin"), "../share"), places.At("share"));
    EXPECT_EQ(ShareFolder(places.At("bin"), "../lost/tidewalk"), places.At("share/tidewalk"));
}

/// Runs the real program with no display at hand. Returns its exit code and what it said on its error output.
std::string Said(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"})
        environment.remove(name);
    process.setProcessEnvironment(environment);
    process.start(TIDEWALK_PROGRAM, arguments);
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    std::string said = std::to_string(process.exitCode());
    for (const QByteArray& line : process.readAllStandardError().split('\n')) {
        // The platform without windows has complaints of its own.
        const bool platform = line.contains("plugin") || line.startsWith("QStandardPaths");
        if (!line.isEmpty() && !platform) said += " " + line.toStdString();
    }
    return said;
}

const QString kPuzzles = QString(TIDEWALK_DATA_DIR) + "/puzzles.txt";

/// The program fails, with a message that tells the reason.
void ExpectFailure(const QStringList& arguments, const char* reason) {
    const std::string said = Said(arguments);
    EXPECT_TRUE(said.starts_with("1 ") && said.find(reason) != std::string::npos)
        << arguments.join(' ').toStdString() << ": " << said;
}

TEST(Program, DrawsItsWindowWithThePuzzleThatIsNamed) {
    const TempFolder folder;
    QFile::copy(QString(TIDEWALK_DATA_DIR) + "/all.col", "all.col");
    folder.Write("tide.cfg", "dusk.col\r\n 1  0  250  12  1315860  16777215  128  12632256  1  0 \r\nown.txt\r\n");
    folder.Write("own.txt", std::string(kSmallPuzzle) + "\r\n");
    const QStringList start{"--folder", ".", "--screenshot", "a.png"};
    const auto picture = [&](const QStringList& arguments, const char* said) {
        EXPECT_EQ(Said(start + arguments), said);
        return QImage("a.png");
    };
    const QImage first = picture({kPuzzles}, "0");
    EXPECT_NE(first, picture({kPuzzles, "12"}, "0"));
    EXPECT_NE(first, picture({}, "0"));
    ExpectFailure(start + QStringList{"missing.txt"}, "could not be opened");
    ExpectFailure({"--folder", ".", "--screenshot", "/nowhere/a.png"}, "/nowhere/a.png");
    ExpectFailure({"--folder", "nowhere", "--screenshot", "a.png"}, "There is no folder");
    ExpectFailure({"--folder", "."}, "no display");
    QFile::remove("all.col");
    ExpectFailure(start, "all.col");
}

TEST(Program, DrawsAndPrintsIntoFiles) {
    const TempFolder folder;
    const QString broken = QString::fromStdString(folder.Write("broken.txt", std::string(kSmallPuzzle) + "\nno\n"));
    EXPECT_EQ(Said({"--picture", "a.png", kPuzzles, "41"}), "0");
    EXPECT_EQ(Said({"--picture", "b.png", "--solution", kPuzzles, "41"}), "0");
    EXPECT_NE(QImage("a.png"), QImage("b.png"));
    EXPECT_EQ(Said({"--pdf", "a.pdf", kPuzzles, "3-7"}), "0");
    EXPECT_EQ(PagesOf("a.pdf"), 5);
    ExpectFailure({"--picture", "/nowhere/a.png", kPuzzles, "1"}, "/nowhere/a.png could not be written");
    ExpectFailure({"--picture", "a.png", "missing.txt", "1"}, "No puzzles in this file");
    ExpectFailure({"--picture", "a.png", broken, "2"}, "Puzzle 2");
    ExpectFailure({"--pdf", "/nowhere/a.pdf", kPuzzles, "1-2"}, "No such file");
    ExpectFailure({"--pdf", "a.pdf", kPuzzles, "1-201"}, "There are only 200 puzzles");
    ExpectFailure({"--pdf", "a.pdf", broken, "1-2"}, "empty: 2");
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);
    for (const char* const option : {"--pdf", "--picture"}) {
        ExpectFailure({option, "pipe", kPuzzles, "1"}, "no ordinary file");
        EXPECT_TRUE(std::filesystem::is_fifo("pipe")) << option;
    }
    EXPECT_EQ(Said({"--nosuch"}), "2 Unknown option 'nosuch'. See tidewalk --help");
    EXPECT_EQ(Said({"--help"}), "0");
}

}  // namespace
}  // namespace tidewalk::test
