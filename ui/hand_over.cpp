// SPDX-License-Identifier: MIT
#include "ui/hand_over.h"

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QThread>
#include <algorithm>
#include <vector>

namespace tidewalk {

namespace {

using What = LocalSocket::Heard::What;

constexpr int kMostWindows = 64;

// In milliseconds.
constexpr int kPatience = 2000;        ///< with a window that does not answer
constexpr int kPatienceForMore = 200;  ///< with further windows, when one has answered

std::string NameOfPlace(const std::string& place, int window) {
    return place + "-" + std::to_string(window);
}

/// A window that was called.
struct Callee {
    LocalSocket line;
    std::optional<std::int64_t> lastActive;  ///< nothing before it has answered
    bool isGone = false;
};

/// Nothing was heard of it yet.
bool IsSilent(const Callee& callee) {
    return !callee.isGone && !callee.lastActive;
}

void Wait(std::vector<pollfd> lines, const QDeadlineTimer& deadline) {
    ::poll(lines.data(), lines.size(), deadline.isForever() ? -1 : static_cast<int>(deadline.remainingTime()));
}

/// Waits until one of the silent windows says something, or for the time given.
void WaitForWord(const std::vector<Callee>& callees, const QDeadlineTimer& deadline) {
    std::vector<pollfd> lines;
    for (const Callee& callee : callees) {
        if (IsSilent(callee)) lines.push_back({callee.line.Descriptor(), POLLIN, 0});
    }
    Wait(lines, deadline);
}

/// Hears whether a window greets.
void HearGreeting(Callee& callee) {
    const LocalSocket::Heard heard = callee.line.Hear();
    if (heard.what == What::Nothing) return;
    callee.lastActive = ParseGreeting(heard.message);
    callee.isGone = !callee.lastActive;
}

/// Calls all windows from the place numbered `first` on. Those come back that answer, the one that was active last
/// before the others.
std::vector<Callee> WindowsAt(const std::string& place, int first) {
    std::vector<Callee> callees;
    for (int window = first; window < kMostWindows; ++window) {
        if (auto line = LocalSocket::Call(NameOfPlace(place, window))) callees.push_back({std::move(*line), {}, false});
    }
    QDeadlineTimer deadline(kPatience);
    bool hasAnswer = false;
    while (std::any_of(callees.begin(), callees.end(), IsSilent) && !deadline.hasExpired()) {
        WaitForWord(callees, deadline);
        for (Callee& callee : callees) {
            if (IsSilent(callee)) HearGreeting(callee);
            if (!callee.lastActive || hasAnswer) continue;
            hasAnswer = true;
            deadline.setRemainingTime(kPatienceForMore);
        }
    }
    std::erase_if(callees, [](const Callee& callee) { return !callee.lastActive; });
    std::stable_sort(callees.begin(), callees.end(),
                     [](const Callee& a, const Callee& b) { return *a.lastActive > *b.lastActive; });
    return callees;
}

/// True when the window has taken what it is told. When it has not, it never will.
bool HandTo(const LocalSocket& window, const std::string& summons) {
    if (!window.Send(summons)) return false;
    QDeadlineTimer deadline(kPatience);
    while (true) {
        const LocalSocket::Heard heard = window.Hear();
        if (heard.what == What::Message && heard.message == kWaits) {
            deadline = QDeadlineTimer(QDeadlineTimer::Forever);
        } else if (heard.what != What::Nothing) {
            return heard.message == kTaken;
        } else if (deadline.hasExpired()) {
            break;
        }
        Wait({{window.Descriptor(), POLLIN, 0}}, deadline);
    }
    // Its answer may be on its way. From here on it cannot give one any more.
    window.StopListening();
    return window.Hear().message == kTaken;
}

/// Takes the first place that is free.
std::optional<LocalSocket> TakePlace(const std::string& place) {
    for (int window = 0; window < kMostWindows; ++window) {
        if (auto listener = LocalSocket::Listen(NameOfPlace(place, window))) return listener;
    }
    return std::nullopt;
}

/// Takes the first place, unless another start has it. Whoever has it hears calls a moment later.
std::optional<LocalSocket> TakeFirstPlace(const std::string& place) {
    constexpr int kTries = 20;
    constexpr int kMoment = 5;  // in milliseconds
    const std::string first = NameOfPlace(place, 0);
    for (int tries = 0; tries < kTries; ++tries) {
        if (auto listener = LocalSocket::Listen(first)) return listener;
        if (LocalSocket::Call(first)) break;
        QThread::msleep(kMoment);
    }
    return std::nullopt;
}

}  // namespace

std::string MeetingPlace(const QString& folder) {
    struct stat status {};
    QByteArray text;
    // What a folder is called says less than what it is.
    if (::stat(QFile::encodeName(folder).constData(), &status) == 0)
        text = QByteArray::number(quint64{status.st_dev}) + " " + QByteArray::number(quint64{status.st_ino});
    for (const char* const name : {"WAYLAND_DISPLAY", "DISPLAY", "QT_QPA_PLATFORM"})
        text += " " + qgetenv(name);
    const QByteArray hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().left(32);
    return ("tidewalk-" + QByteArray::number(::getuid()) + "-" + hash).toStdString();
}

Arrival Arrive(const std::string& place, const std::optional<Summons>& summons) {
    Arrival arrival;
    if (!summons) return {false, TakePlace(place)};
    arrival.listener = TakeFirstPlace(place);
    const std::string text = SummonsText(*summons);
    if (text.size() <= LocalSocket::kLongestMessage) {
        // Whoever has the first place need not call itself, and gives it up for a window that answers.
        for (const Callee& window : WindowsAt(place, arrival.listener ? 1 : 0)) {
            arrival.listener.reset();
            if (HandTo(window.line, text)) return {true, std::nullopt};
        }
    }
    if (!arrival.listener) arrival.listener = TakePlace(place);
    return arrival;
}

}  // namespace tidewalk
