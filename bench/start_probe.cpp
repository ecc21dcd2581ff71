// SPDX-License-Identifier: MIT
// What Qt loads into any program to see how its start goes: `tidewalk_start_bench` asks for it.
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QThread>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace tidewalk::bench {
namespace {

long long Nanoseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

/// A line of "/proc/self/status" that counts kilobytes.
long Kilobytes(const char* name) {
    std::FILE* const status = std::fopen("/proc/self/status", "r");
    char line[256];
    long found = 0;
    while (status != nullptr && std::fgets(line, sizeof line, status) != nullptr) {
        if (std::strncmp(line, name, std::strlen(name)) == 0) found = std::atol(line + std::strlen(name));
    }
    if (status != nullptr) std::fclose(status);
    return found;
}

/// Notes when the first window has been painted, and when the program's own event loop has nothing left to do.
class Probe final : public QObject {
 public:
    Probe(long long start, int pipe) : start_(start), pipe_(pipe) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched->parent() == this) return false;
        quiet_ = 0;
        if (event->type() != QEvent::Paint || painted_) return false;
        painted_ = true;
        // What is posted now comes when the window has been painted and sent to the screen as a whole.
        QMetaObject::invokeMethod(this, &Probe::AfterFirstPaint, Qt::QueuedConnection);
        return false;
    }

 private:
    void Report() const {
        const long long took = Nanoseconds(CLOCK_MONOTONIC) - start_;
        dprintf(pipe_, "%lld %lld %ld %ld\n", took / 1000, Nanoseconds(CLOCK_PROCESS_CPUTIME_ID) / 1000,
                Kilobytes("VmRSS:"), Kilobytes("VmHWM:"));
    }

    void AfterFirstPaint() {
        Report();
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, &Probe::Begin);
    }

    /// A program that looks for events during its start is not at its end; and there a timer would delay it.
    void Begin() {
        if (QThread::currentThread()->loopLevel() == 0 || idle_.isActive()) return;
        connect(&idle_, &QTimer::timeout, this, &Probe::WhenIdle);
        idle_.start(0);
    }

    void WhenIdle() {
        constexpr int kQuietRounds = 3;
        if (++quiet_ < kQuietRounds) return;
        Report();
        _exit(0);
    }

    long long start_;
    int pipe_;
    bool painted_ = false;
    int quiet_ = 0;  ///< times in a row that there was no event
    QTimer idle_{this};
};

}  // namespace

class StartProbePlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "start_probe.json")

 public:
    /// `timing` is the moment of the start in nanoseconds and the number of the pipe, with a colon between.
    QObject* create(const QString&, const QString& timing) override {
        return new Probe(timing.section(':', 0, 0).toLongLong(), timing.section(':', 1, 1).toInt());
    }
};

}  // namespace tidewalk::bench

#include "start_probe.moc"
