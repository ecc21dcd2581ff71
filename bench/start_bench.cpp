// SPDX-License-Identifier: MIT
// The start of the windowed program beside that of an empty window.
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <vector>

#include "model/collection_file.h"
#include "ui/qt_play_store.h"

namespace tidewalk::bench {
namespace {

constexpr int kLargestPuzzle = 200;  ///< in the collection that ships: 25x25

/// What the probe tells of a moment: milliseconds, milliseconds of processor time, MB in memory, and at most so far.
using Moment = std::array<double, 4>;

/// The first paint, and the first moment in the event loop with nothing left to do: the puzzle is on the board.
using Start = std::array<Moment, 2>;

struct Case {
    QString name;
    QString program;
    QString home;  ///< the user's data folder, with the program folder in it; "" for none
    QStringList arguments = {};
    std::vector<Start> starts = {};
};

/// Starts the program and waits until the probe has ended it. Nothing when it was not heard of.
std::optional<Start> Measure(const Case& of) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return std::nullopt;
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_PLUGIN_PATH", QCoreApplication::applicationDirPath() + "/plugins");
    if (!of.home.isEmpty()) environment.insert("XDG_DATA_HOME", of.home);
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    environment.insert("QT_QPA_GENERIC_PLUGINS",
                       QString("startprobe:%1:%2").arg(now.tv_sec * 1'000'000'000LL + now.tv_nsec).arg(ends[1]));
    process.setProcessEnvironment(environment);
    process.start(of.program, of.arguments);
    close(ends[1]);
    const bool ended = process.waitForFinished();
    std::FILE* const told = fdopen(ends[0], "r");
    Start start;
    int moments = 0;
    for (Moment& moment : start) {
        double time = 0;
        double work = 0;
        double kilobytes = 0;
        double most = 0;
        if (std::fscanf(told, "%lf %lf %lf %lf", &time, &work, &kilobytes, &most) != 4) break;
        moment = {time / 1000, work / 1000, kilobytes / 1024, most / 1024};
        ++moments;
    }
    std::fclose(told);
    if (!ended || moments != 2) {
        std::fprintf(stderr, "%s was not heard of\n%s", qPrintable(of.name),
                     process.readAllStandardError().constData());
        return std::nullopt;
    }
    return start;
}

/// Puts what was made by a first start in `home` to the scheme and the puzzle.
void Configure(const QString& home, const QString& scheme, int puzzle) {
    QFile file(home + "/tidewalk/tide.cfg");
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write((scheme + ".col\r\n " + QString::number(puzzle) +
                "  0  250  12  1315860  16777215  128  12632256  1  0 \r\npuzzles.txt\r\n")
                   .toUtf8());
}

/// Keeps the largest puzzle as solved.
void Play(const QString& home) {
    const QString folder = home + "/tidewalk";
    const auto puzzle = ReadPuzzle((folder + "/puzzles.txt").toStdString(), kLargestPuzzle);
    if (!puzzle) return;
    History history;
    for (const Link& link : puzzle->LinkList)
        history.Push({{link.first, link.second, kUnmarked}, link.Bridges()});
    QtPlayStore store;
    store.UseFolder(folder);
    store.Keep(*puzzle, history, false);
    store.Flush();
}

QStringList SchemeNames(const QString& folder) {
    QStringList names;
    QFile file(folder + "/tidewalk/all.col");
    if (!file.open(QIODevice::ReadOnly)) return names;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.contains(".col")) names += line.left(line.indexOf(".col"));
    }
    return names;
}

double Median(const Case& of, std::size_t moment, std::size_t figure) {
    std::vector<double> values;
    for (const Start& start : of.starts)
        values.push_back(start[moment][figure]);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Each figure, and how many per cent of that of the window with words it is. A window with nothing in it never even
/// looks for a font.
void Print(const Case& of, const Case& with) {
    std::printf("%-22s", of.name.toUtf8().constData());
    for (std::size_t moment = 0; moment < 2; ++moment) {
        for (std::size_t figure = 0; figure < 4; ++figure) {
            const double value = Median(of, moment, figure);
            std::printf(" %6.1f %4.0f%%", value, 100 * value / Median(with, moment, figure));
        }
    }
    std::printf("\n");
}

/// The empty window, one with a word in each of its bars, a first start's scheme and every other one, and the largest
/// puzzle with play on it. Empty when the program does not start.
std::vector<Case> Cases(const QString& homes) {
    const QString here = QCoreApplication::applicationDirPath();
    const QString program = here + "/../ui/tidewalk";
    const QString window = here + "/tidewalk_empty_window";
    std::vector<Case> cases{{.name = "empty window", .program = window, .home = ""},
                            {.name = "window with words", .program = window, .home = "", .arguments = {"text"}}};
    const auto add = [&](const QString& name, const QString& scheme, int puzzle) {
        cases.push_back({.name = name, .program = program, .home = homes + "/" + name});
        // The first start fills the folder.
        if (!Measure(cases.back())) return false;
        Configure(cases.back().home, scheme, puzzle);
        return true;
    };
    if (!add("25x25 with play", "xp", kLargestPuzzle)) return {};
    Play(cases.back().home);
    for (const QString& scheme : SchemeNames(cases.back().home)) {
        if (!add(scheme, scheme, 1)) return {};
    }
    return cases;
}

int Run(int rounds) {
    const QTemporaryDir homes;
    std::vector<Case> cases = Cases(homes.path());
    if (cases.empty()) return 1;
    for (int round = 0; round < rounds; ++round) {
        for (Case& each : cases) {
            const auto start = Measure(each);
            if (!start) return 1;
            each.starts.push_back(*start);
        }
    }
    std::printf("%-22s %-47s %s\n%-22s", "", "first paint", "at rest", "");
    for (int moment = 0; moment < 2; ++moment)
        std::printf(" %-11s %-11s %-11s %-11s", "   ms", "   ms of CPU", "   MB", "   MB at most");
    std::printf("\n");
    for (const Case& each : cases)
        Print(each, cases[1]);
    return 0;
}

}  // namespace
}  // namespace tidewalk::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!display && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
    return tidewalk::bench::Run(std::max(1, rounds));
}
