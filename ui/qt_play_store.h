// SPDX-License-Identifier: MIT
// What was played, in "play.db".
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QTimer>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "game/play_store.h"
#include "techniques/puzzle_filter.h"

namespace tidewalk {

class PlayFile;

/// How far a player has come with a puzzle, and in how many seconds.
struct PlayedSoFar {
    PlayState state = PlayState::Untouched;
    int seconds = 0;
};

/// The same of all puzzles at one moment.
class PlayStates {
 public:
    PlayedSoFar Of(const Puzzle& puzzle) const;

 private:
    friend class PlayFile;

    QHash<QByteArray, PlayedSoFar> byKey_;
};

/// Keeps play in "play.db" in the program folder, which SQLite reads and writes.
///
/// What is to be kept waits a moment, so that a quick succession of moves is written once. What cannot be written waits
/// for the next occasion, and is found meanwhile. Moves that are
/// kept and were not seen are not replaced. The file is open only while it is read or written, and is not even
/// looked for before something is asked.
class QtPlayStore final : public PlayStore {
 public:
    QtPlayStore();
    ~QtPlayStore() override;
    QtPlayStore(const QtPlayStore&) = delete;
    QtPlayStore& operator=(const QtPlayStore&) = delete;

    /// Until a folder is named nothing is written.
    void UseFolder(const QString& folder);

    std::optional<KeptPlay> Find(const Puzzle& puzzle) override;
    void LeaveUnseen(const Puzzle& puzzle) override;
    void Keep(const Puzzle& puzzle, const History& history, bool solved) override;
    void AddTime(const Puzzle& puzzle, int seconds) override;
    void Forget(const Puzzle& puzzle) override;
    /// Waits a second at most for another window that is writing.
    void Flush() override;
    std::string TakeTrouble() override;

    /// Of a file that cannot be read now all puzzles are untouched.
    PlayStates States();

 private:
    friend class PlayFile;

    /// What is to be changed about one puzzle in the file, in this order.
    struct Change {
        bool forgets = false;
        std::optional<History> history;
        bool solved = false;
        int seconds = 0;
        bool unseen = false;  ///< moves that are kept were not seen, and are not to be replaced
    };
    using Changes = std::map<QByteArray, Change>;  ///< by the puzzle's key

    Change& ToChange(const Puzzle& puzzle);
    std::optional<KeptPlay> FindInFile(const QByteArray& key);
    /// Writes what waits, and waits so many milliseconds for a file that another window holds.
    void Write(int patience);

    Changes waiting_;
    std::set<QByteArray> unseen_;  ///< keys of what could not be read, or was left alone
    QTimer write_;
    std::unique_ptr<PlayFile> file_;  ///< none as long as there is no folder
};

}  // namespace tidewalk
