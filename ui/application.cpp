// SPDX-License-Identifier: MIT
#include "ui/application.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPixmap>
#include <cstdio>

#include "model/system_file.h"
#include "ui/app_folder.h"
#include "ui/command_line.h"
#include "ui/end_signals.h"
#include "ui/file_name.h"
#include "ui/hand_over.h"
#include "ui/icons.h"
#include "ui/program.h"
#include "ui/running_window.h"
#include "ui/save_file.h"

namespace tidewalk {

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

void Say(FILE* where, const QString& text) {
    std::fprintf(where, "%s\n", FileNameBytes(text.trimmed()).c_str());
}

CommandLine ReadCommandLine(int argc, char** argv) {
    // Qt's own list of them has lost the bytes that are not UTF-8.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += FileNameText(argv[i]);
    return ParseCommandLine(arguments);
}

/// Answers help, version and wrong usage; nothing when the program is to run.
std::optional<int> AnswerAtOnce(const CommandLine& line) {
    switch (line.wish) {
        case CommandLine::Wish::Run:
            return std::nullopt;
        case CommandLine::Wish::Help:
        case CommandLine::Wish::Version:
            Say(stdout, line.text);
            return 0;
        case CommandLine::Wish::Wrong:
            Say(stderr, line.text + "\nSee tidewalk --help");
            return kWrongUsage;
    }
    return std::nullopt;
}

/// Makes sure that there is something to show windows on. False when there is not.
bool FindDisplay(const CommandLine& line) {
    const bool given = line.namesPlatform || qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
                       !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (given) return true;
    if (line.screenshot) qputenv("QT_QPA_PLATFORM", "offscreen");
    return line.screenshot.has_value();
}

int Fail(const QString& text, bool unattended) {
    Say(stderr, text);
    if (unattended) return kFailed;
    QApplication::setWindowIcon(ProgramIcon());
    QMessageBox::critical(nullptr, QString::fromUtf8(AppTitle.data(), AppTitle.size()), text);
    return kFailed;
}

int TakeScreenshot(Program& program, const QString& file) {
    // What the first puzzle changed is laid out and painted by the events that wait.
    QCoreApplication::processEvents();
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    const bool drawn = program.form1().grab().save(&picture, "PNG");
    const QString reason = drawn ? WriteFile(file, picture.data()) : "it is too large";
    if (reason.isEmpty()) return 0;
    Say(stderr, "The picture could not be written: " + file + ": " + reason);
    return kFailed;
}

/// The number of this window among those of the program folder, held as long as the object lives.
class WindowNumber {
 public:
    explicit WindowNumber(const QString& folder)
        : file_(SystemFile::Open(QFile::encodeName(folder + "/tide.lock").toStdString(),
                                 SystemFile::Mode::MakeOrChange)) {
        constexpr int kMost = 100;
        // In a folder that cannot be written no work file can be, either.
        while (file_ && number_ < kMost && !file_->TryLockPlace(number_))
            ++number_;
    }
    int Value() const { return number_; }

 private:
    std::optional<SystemFile> file_;
    int number_ = 1;
};

StartRequest RequestOf(const CommandLine& line, const AppFolderChoice& choice, const WindowNumber& window) {
    StartRequest request;
    request.appFolder = QFile::encodeName(choice.folder).toStdString();
    request.folderIsNew = choice.isNew;
    request.windowNumber = window.Value();
    request.collection = FileNameBytes(line.collection);
    request.puzzleNumber = line.puzzleNumber;
    return request;
}

Summons SummonsOf(const CommandLine& line) {
    Summons summons;
    summons.collection = FileNameBytes(line.collection);
    summons.puzzleNumber = line.puzzleNumber.value_or(1);
    // Older desktops know the second name alone.
    summons.token =
        qEnvironmentVariable("XDG_ACTIVATION_TOKEN", qEnvironmentVariable("DESKTOP_STARTUP_ID")).toStdString();
    return summons;
}

/// Looks for a window that can take what the command line asks for.
Arrival LookForWindow(const CommandLine& line, const AppFolderChoice& choice) {
    // A window that is to be seen elsewhere, or by nobody, is not for later starts either.
    if (!choice.error.isEmpty() || line.screenshot || line.namesPlatform) return {};
    return Arrive(MeetingPlace(choice.folder), line.ownWindow ? std::nullopt : std::optional(SummonsOf(line)));
}

int RunWindows(const CommandLine& line, const AppFolderChoice& choice, std::optional<LocalSocket> listener) {
    const bool unattended = line.screenshot.has_value();
    if (!choice.error.isEmpty()) return Fail(choice.error, unattended);
    if (!QDir::setCurrent(choice.folder)) return Fail("The folder cannot be entered: " + choice.folder, unattended);

    const WindowNumber window(choice.folder);
    Program program;
    program.prompts().SetUnattended(unattended);
    if (line.seed) program.game().random.UseSeed(*line.seed);
    // QApplication::quit would ask every window first; here the decision is made.
    QObject::connect(&program.handlers(), &Handlers::Ended, qApp, [] { QCoreApplication::exit(0); });
    const EndSignals ends(program.handlers());
    std::optional<RunningWindow> running;
    if (listener) running.emplace(std::move(*listener), program.handlers(), program.form1());
    const auto fatal = program.Start(RequestOf(line, choice, window));
    if (fatal) return Fail(QString::fromStdString(*fatal), unattended);
    EndFirstStart(choice);
    if (running) running->BeginToTake();
    if (unattended && !line.collection.isEmpty() &&
        program.game().collection.CollectionPath != FileNameBytes(line.collection)) {
        return Fail("The puzzle could not be opened: " + line.collection, unattended);
    }
    if (program.game().job.Ending()) return ends.ExitCode(0);
    return unattended ? TakeScreenshot(program, *line.screenshot) : ends.ExitCode(QCoreApplication::exec());
}

/// Writes the file that the command line asks for, with no need of a display.
int RunOutput(int argc, char** argv, const OutputOrder& order) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const QString error = WriteOutput(order);
    if (error.isEmpty()) return 0;
    Say(stderr, error);
    return kFailed;
}

}  // namespace

int RunApplication(int argc, char** argv) {
    // Help, complaints and a window that is open already need no display here.
    auto plain = std::make_unique<QCoreApplication>(argc, argv);
    const CommandLine line = ReadCommandLine(argc, argv);
    if (const auto answer = AnswerAtOnce(line)) return *answer;
    if (line.output) {
        plain.reset();
        return RunOutput(argc, argv, *line.output);
    }
    if (!FindDisplay(line)) {
        Say(stderr,
            "There is no display to show a window on. Use tidewalk --screenshot FILE.png for a picture of the window,\n"
            "or the console program tidewalk-cli.");
        return kFailed;
    }
    const AppFolderChoice choice = ChooseAppFolder(line.folder, SystemPlaces());
    Arrival arrival = LookForWindow(line, choice);
    if (arrival.isTaken) return 0;
    plain.reset();
    QApplication app(argc, argv);
    QApplication::setApplicationName("tidewalk");
    QApplication::setDesktopFileName("tidewalk");
    QApplication::setQuitOnLastWindowClosed(false);
    return RunWindows(line, choice, std::move(arrival.listener));
}

}  // namespace tidewalk
