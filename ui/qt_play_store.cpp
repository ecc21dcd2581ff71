// SPDX-License-Identifier: MIT
#include "ui/qt_play_store.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <QtEndian>
#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

#include "board/kept_play_text.h"
#include "model/put_aside.h"

namespace tidewalk {

namespace {

constexpr int kVersion = 1;

// In milliseconds.
constexpr int kPause = 250;             ///< before what is to be kept is written
constexpr int kPatienceMeanwhile = 50;  ///< with another window that writes, while the player plays
/// The same where nothing may be missed: at the end, and when the next move would replace what was not found.
constexpr int kPatience = 1000;

/// What SQLite answered when it did not do what it was asked.
struct Refusal {
    explicit Refusal(const QSqlError& error) : code(error.nativeErrorCode().toInt() & 0xFF) {}

    // The answers of SQLite that matter here.
    static constexpr int kBusy = 5;
    static constexpr int kCorrupt = 11;
    static constexpr int kNoDatabase = 26;

    int code;
};

/// The file is not one of this version.
struct OtherVersion {};

/// The query's answer to `text`, with its values.
QSqlQuery Ask(const QSqlDatabase& database, const QString& text, const QVariantList& values = {}) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(text)) throw Refusal(query.lastError());
    for (const QVariant& value : values)
        query.addBindValue(value);
    if (!query.exec()) throw Refusal(query.lastError());
    return query;
}

/// False for a file with nothing in it.
bool HasTable(const QSqlDatabase& database) {
    QSqlQuery answer = Ask(database,
                           "SELECT user_version, (SELECT count(*) FROM sqlite_master) "
                           "FROM pragma_user_version");
    if (!answer.next()) throw Refusal(answer.lastError());
    const int version = answer.value(0).toInt();
    const bool empty = answer.value(1).toInt() == 0;
    if (version == 0 && empty) return false;
    if (version != kVersion) throw OtherVersion();
    return true;
}

/// Every puzzle has its own, however it is stored and whatever is stored with it.
QByteArray KeyOf(const Puzzle& puzzle) {
    QByteArray text = QByteArray::number(puzzle.Rows) + "," + QByteArray::number(puzzle.Cols) + ",";
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id)
        text += static_cast<char>('0' + puzzle.IslandAt(id));
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256);
}

/// A history is a tenth to a third as long packed, and a little longer at worst.
constexpr qint64 kLongestPacked = static_cast<qint64>(kLongestHistoryText) + 1024;

/// The history of packed moves, which in the file can be anything; then there is none.
History Unpacked(const QByteArray& packed) {
    // The first four bytes tell how much there will be.
    constexpr qsizetype kHeader = 4;
    if (packed.size() < kHeader || qFromBigEndian<quint32>(packed.constData()) > kLongestHistoryText) return {};
    const QByteArray text = qUncompress(packed);
    return ParseHistory({text.constData(), static_cast<std::size_t>(text.size())}).value_or(History());
}

/// A sum of seconds, which in the file can be anything.
int Seconds(qint64 sum) {
    return static_cast<int>(std::clamp<qint64>(sum, 0, std::numeric_limits<int>::max()));
}

}  // namespace

/// The file "play.db".
///
/// It has SQLite's rollback journal: a kill or a power cut in the middle of a write leaves a journal that the next one
/// to open the file goes back by. A write-ahead log would spare waits for the disk, but writes are few here, and a log
/// needs memory that all windows share, which folders on the net and folders for reading only do not offer.
class PlayFile {
 public:
    using Change = QtPlayStore::Change;
    using Changes = QtPlayStore::Changes;

    enum class Outcome { Done, Busy, Failed };

    /// What the player is to know of the file.
    enum class Trouble { None, PutAside, NotWritten, NotRead, NotReplaced };

    explicit PlayFile(const QString& folder) : path_(folder + "/play.db") {}
    ~PlayFile() {
        database_ = {};
        if (!connection_.isEmpty()) QSqlDatabase::removeDatabase(connection_);
    }
    PlayFile(const PlayFile&) = delete;
    PlayFile& operator=(const PlayFile&) = delete;

    /// Reads into `found` what the file holds about a puzzle.
    Outcome Find(const QByteArray& key, std::optional<KeptPlay>& found) {
        if (!QFile::exists(path_)) return Outcome::Done;
        const Outcome outcome = Use(kPatience, [&] { found = Read(key); });
        if (outcome != Outcome::Done) trouble_ = Trouble::NotRead;
        return outcome;
    }

    /// Reads what the file holds about all puzzles in short.
    PlayStates States() {
        PlayStates found;
        if (QFile::exists(path_)) Use(kPatience, [&] { found = ReadStates(); });
        return found;
    }

    /// Makes all changes, or none. What was unseen and is nothing is unseen no more.
    Outcome Write(Changes& changes, int patience) {
        const auto work = [&] {
            Ask(database_, "BEGIN IMMEDIATE");
            MakeTable();
            for (auto& [key, change] : changes)
                Write(key, change);
            Ask(database_, "COMMIT");
        };
        const Outcome outcome = Use(patience, work);
        if (outcome == Outcome::Failed && usable_ && !failed_) trouble_ = Trouble::NotWritten;
        failed_ = outcome == Outcome::Failed;
        return outcome;
    }

    Trouble TakeTrouble() { return std::exchange(trouble_, Trouble::None); }

 private:
    /// Opens the file for a piece of work on it. A file that is damaged or of another version is put
    /// aside, and the work is done on a new one.
    Outcome Use(int patience, const std::function<void()>& work) {
        if (!FindDriver()) return Outcome::Failed;
        database_.setConnectOptions("QSQLITE_BUSY_TIMEOUT=" + QString::number(patience));
        std::optional<Outcome> outcome = Try(work);
        if (!outcome) {
            usable_ = MakeRoom();
            trouble_ = usable_ ? Trouble::PutAside : Trouble::NotWritten;
            if (usable_) outcome = Try(work);
        }
        return outcome.value_or(Outcome::Failed);
    }

    /// Nothing when the file is damaged or of another version.
    std::optional<Outcome> Try(const std::function<void()>& work) {
        if (!database_.open()) return Outcome::Failed;
        std::optional<Outcome> outcome = Outcome::Done;
        try {
            work();
        } catch (const Refusal& refusal) {
            outcome = Outcome::Failed;
            if (refusal.code == Refusal::kBusy) outcome = Outcome::Busy;
            if (refusal.code == Refusal::kCorrupt || refusal.code == Refusal::kNoDatabase) outcome.reset();
        } catch (const OtherVersion&) {
            outcome.reset();
        }
        // What was begun and not finished is taken back.
        database_.close();
        return outcome;
    }

    /// Loading the driver takes longer than all else, so that it waits until there is something to do.
    bool FindDriver() {
        if (!usable_ || database_.isValid()) return usable_;
        const QString driver = "QSQLITE";
        usable_ = QSqlDatabase::isDriverAvailable(driver);
        if (!usable_) return false;
        connection_ = "play " + QString::number(reinterpret_cast<quintptr>(this));
        database_ = QSqlDatabase::addDatabase(driver, connection_);
        database_.setDatabaseName(path_);
        return true;
    }

    bool MakeRoom() const {
        // The journal of a damaged file would be taken for that of the new one.
        QFile::remove(path_ + "-journal");
        return PutAside(QFile::encodeName(path_).toStdString());
    }

    void MakeTable() {
        if (HasTable(database_)) return;
        Ask(database_,
            "CREATE TABLE play (key BLOB NOT NULL PRIMARY KEY, moves BLOB, begun INTEGER NOT NULL, "
            "seconds INTEGER NOT NULL, solved INTEGER NOT NULL)");
        Ask(database_, "PRAGMA user_version = " + QString::number(kVersion));
    }

    std::optional<KeptPlay> Read(const QByteArray& key) {
        if (!HasTable(database_)) return std::nullopt;
        // What is too long is not even fetched.
        QSqlQuery row = Ask(database_,
                            "SELECT CASE WHEN typeof(moves) = 'blob' AND length(moves) <= ? THEN moves END, seconds, "
                            "solved FROM play WHERE key = ?",
                            {kLongestPacked, key});
        if (!row.next()) {
            if (row.lastError().isValid()) throw Refusal(row.lastError());
            return std::nullopt;
        }
        KeptPlay play;
        play.history = Unpacked(row.value(0).toByteArray());
        play.seconds = Seconds(row.value(1).toLongLong());
        play.solved = row.value(2).toInt() != 0;
        return play;
    }

    PlayStates ReadStates() {
        PlayStates states;
        if (!HasTable(database_)) return states;
        QSqlQuery row = Ask(database_, "SELECT key, seconds, solved, begun FROM play");
        while (row.next()) {
            const PlayState unsolved = row.value(3).toInt() != 0 ? PlayState::Begun : PlayState::Untouched;
            const PlayState state = row.value(2).toInt() != 0 ? PlayState::Solved : unsolved;
            states.byKey_.insert(row.value(0).toByteArray(), {state, Seconds(row.value(1).toLongLong())});
        }
        if (row.lastError().isValid()) throw Refusal(row.lastError());
        return states;
    }

    bool HasMoves(const QByteArray& key) {
        return Ask(database_, "SELECT 1 FROM play WHERE key = ? AND begun != 0", {key}).next();
    }

    void Write(const QByteArray& key, Change& change) {
        if (change.forgets) Ask(database_, "DELETE FROM play WHERE key = ?", {key});
        if (!change.history && change.seconds == 0) return;
        change.unseen = change.unseen && HasMoves(key);
        if (change.unseen && change.history) trouble_ = Trouble::NotReplaced;
        const std::string text = change.history && !change.unseen ? HistoryText(*change.history) : "";
        // Without moves, or with more than can be read again, those that are there stay.
        const bool keeps = !text.empty() && text.size() <= kLongestHistoryText;
        const bool begun = keeps && change.history->Count() > 0;
        Ask(database_,
            "INSERT INTO play (key, moves, begun, seconds, solved) VALUES (?, ?, ?, ?, ?) ON CONFLICT (key) DO UPDATE "
            "SET begun = CASE WHEN excluded.moves IS NULL THEN begun ELSE excluded.begun END, "
            "moves = coalesce(excluded.moves, moves), seconds = seconds + excluded.seconds, "
            "solved = max(solved, excluded.solved)",
            {key, keeps ? qCompress(QByteArray::fromStdString(text)) : QVariant(), begun ? 1 : 0, change.seconds,
             change.solved ? 1 : 0});
    }

    QString path_;
    QString connection_;     ///< Qt's name for it, "" before its first use
    QSqlDatabase database_;  ///< none before its first use
    bool usable_ = true;
    bool failed_ = false;  ///< at the last write
    Trouble trouble_ = Trouble::None;
};

PlayedSoFar PlayStates::Of(const Puzzle& puzzle) const {
    return byKey_.isEmpty() ? PlayedSoFar() : byKey_.value(KeyOf(puzzle));
}

QtPlayStore::QtPlayStore() {
    write_.setSingleShot(true);
    write_.setInterval(kPause);
    QObject::connect(&write_, &QTimer::timeout, &write_, [this] { Write(kPatienceMeanwhile); });
}

QtPlayStore::~QtPlayStore() {
    try {
        Flush();
    } catch (...) {
        // Nothing is left to be done with it, and nobody is left to be told.
        waiting_.clear();
    }
}

void QtPlayStore::UseFolder(const QString& folder) {
    file_ = std::make_unique<PlayFile>(folder);
}

std::optional<KeptPlay> QtPlayStore::Find(const Puzzle& puzzle) {
    const QByteArray key = KeyOf(puzzle);
    const auto found = waiting_.find(key);
    if (found == waiting_.end()) return FindInFile(key);
    const Change& change = found->second;
    std::optional<KeptPlay> play;
    if (!change.forgets) play = FindInFile(key);
    if (!change.history && change.seconds == 0) return play;
    if (!play) play.emplace();
    if (change.history) play->history = *change.history;
    play->solved = play->solved || change.solved;
    play->seconds = Seconds(qint64{play->seconds} + change.seconds);
    return play;
}

std::optional<KeptPlay> QtPlayStore::FindInFile(const QByteArray& key) {
    std::optional<KeptPlay> play;
    if (!file_) return play;
    if (file_->Find(key, play) == PlayFile::Outcome::Done) {
        unseen_.erase(key);
    } else {
        unseen_.insert(key);
    }
    return play;
}

void QtPlayStore::LeaveUnseen(const Puzzle& puzzle) {
    unseen_.insert(KeyOf(puzzle));
}

void QtPlayStore::Keep(const Puzzle& puzzle, const History& history, bool solved) {
    Change& change = ToChange(puzzle);
    change.unseen = unseen_.contains(KeyOf(puzzle));
    change.history = history;
    change.solved = change.solved || solved;
}

void QtPlayStore::AddTime(const Puzzle& puzzle, int seconds) {
    ToChange(puzzle).seconds += seconds;
}

void QtPlayStore::Forget(const Puzzle& puzzle) {
    ToChange(puzzle) = {};
    ToChange(puzzle).forgets = true;
    unseen_.erase(KeyOf(puzzle));
}

void QtPlayStore::Flush() {
    Write(kPatience);
}

PlayStates QtPlayStore::States() {
    Flush();
    return file_ ? file_->States() : PlayStates();
}

std::string QtPlayStore::TakeTrouble() {
    using Trouble = PlayFile::Trouble;
    switch (file_ ? file_->TakeTrouble() : Trouble::None) {
        case Trouble::PutAside:
            return "\"play.db\" was damaged or of another version, and has another name now: play is kept in a new one";
        case Trouble::NotWritten:
            return "\"play.db\" cannot be written: what you play is not kept";
        case Trouble::NotRead:
            return "\"play.db\" cannot be read now: what you played before is out of sight";
        case Trouble::NotReplaced:
            return "What you play now is not kept, as there is play from before: open the puzzle again to see it";
        case Trouble::None:
            break;
    }
    return "";
}

QtPlayStore::Change& QtPlayStore::ToChange(const Puzzle& puzzle) {
    // Not begun anew with each move: who plays on and on would never have anything kept.
    if (!write_.isActive()) write_.start();
    return waiting_[KeyOf(puzzle)];
}

void QtPlayStore::Write(int patience) {
    write_.stop();
    if (!file_ || waiting_.empty()) return;
    const PlayFile::Outcome outcome = file_->Write(waiting_, patience);
    if (outcome == PlayFile::Outcome::Done) {
        for (const auto& [key, change] : std::exchange(waiting_, {})) {
            if (!change.unseen) unseen_.erase(key);
        }
    }
    // A disk that is full or a folder that cannot be written stays so: then the next move is time enough.
    if (outcome == PlayFile::Outcome::Busy) write_.start();
}

}  // namespace tidewalk
