// SPDX-License-Identifier: MIT
// What was played is kept in "play.db" and found again, whatever happens to that file.
#include <QSqlDatabase>
#include <QSqlQuery>
#include <random>

#include "board/kept_play_text.h"
#include "ui/qt_play_store.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const Puzzle kOne = PuzzleFrom({"1.2", "...", "..1"});
const Puzzle kOther = PuzzleFrom({"1.2...", "..1"});
/// Three moves, two of them done.
const History kMoves({{{1, 3, 0}, 1}, {{3, 9, kUnmarked}, kMarked}, {{0, 5, 0}, 0}}, 2, {0, 2});
const History kMove({{{3, 9, 0}, 2}}, 1, {});

/// A store as a window has it.
struct Store {
    explicit Store(const std::string& folder = ".") { plays.UseFolder(QString::fromStdString(folder)); }
    QtPlayStore* operator->() { return &plays; }

    /// What is found: "3 moves, 60 s, solved".
    std::string Found(const Puzzle& puzzle = kOne) {
        const auto play = plays.Find(puzzle);
        if (!play) return "nothing";
        return std::to_string(play->history.Count()) + " moves, " + std::to_string(play->seconds) + " s" +
               (play->solved ? ", solved" : "");
    }
    void KeepNow(const History& history = kMoves, bool solved = false) {
        plays.Keep(kOne, history, solved);
        plays.Flush();
    }

    QtPlayStore plays;
};

/// Does something to the file that the program would not do.
void Sql(const char* statement) {
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "test");
        database.setDatabaseName("play.db");
        EXPECT_TRUE(database.open());
        QSqlQuery query(database);
        EXPECT_TRUE(query.exec(statement)) << statement;
    }
    QSqlDatabase::removeDatabase("test");
}

TEST(HistoryText, IsReadAsItWasWritten) {
    EXPECT_EQ(HistoryText(kMoves), "2\n0,2\n 1, 3, 0, 1\n 3, 9,-1,-2\n 0, 5, 0, 0\n");
    for (const History& history : {kMoves, History()})
        EXPECT_EQ(ParseHistory(HistoryText(history)), history);
}

TEST(HistoryText, OfAnotherFormIsNoHistory) {
    for (const char* const text :
         {"", "0", "2\n\n 1, 3, 0, 1\n", "-1\n\n", "1\n2\n 1, 3, 0, 1\n", "1\n1,0\n 1, 3, 0, 1\n", "1\n\n 1, 3, 0, 3\n",
          "1\n\n 1, 3, 0\n", "1\n\n 1, 3, 3, 1\n", "1\n\n 1, 626, 0, 1\n", "1\n\n 1, 3, 0, 1", "0\n\n\n",
          "1e0\n\n 1, 3, 0, 1\n"})
        EXPECT_FALSE(ParseHistory(text)) << text;
    EXPECT_FALSE(ParseHistory(std::string(kLongestHistoryText + 1, '\n')));
    std::mt19937 random(1);
    const std::string good = HistoryText(kMoves);
    for (int trial = 0; trial < 20000; ++trial) {
        std::string text = good;
        for (int change = 0; change < 2; ++change)
            text[random() % text.size()] = "\n ,-0123"[random() % 8];
        const auto history = ParseHistory(text);
        if (!history) continue;
        EXPECT_TRUE(history->Done() >= 0 && history->Done() <= history->Count()) << text;
        for (const int moment : history->Checkpoints())
            EXPECT_TRUE(moment >= 0 && moment <= history->Count()) << text;
        EXPECT_EQ(ParseHistory(HistoryText(*history)), history) << text;
    }
}

TEST(PlayStore, FindsInAnotherRunWhatWasKept) {
    const TempFolder folder;
    EXPECT_EQ(Store().Found(), "nothing");
    EXPECT_EQ(folder.Entries(), 0) << "who only looks makes no file";
    Store().KeepNow();
    EXPECT_EQ(Store()->Find(kOne)->history, kMoves);
    EXPECT_EQ(Store().Found(kOther), "nothing") << "the same numbers on another board";
    Puzzle stored = kOne;
    stored.LinkList.resize(2);
    EXPECT_EQ(Store().Found(stored), "3 moves, 0 s");
    EXPECT_EQ(folder.Entries(), 1) << "no journal stays beside it";
}

TEST(PlayStore, FindsWhatWaitsAndWritesItSoon) {
    const TempFolder folder;
    Store().KeepNow(kMoves, true);
    Store store;
    store->Keep(kOne, kMove, false);
    store->AddTime(kOne, 5);
    EXPECT_EQ(store.Found(), "1 moves, 5 s, solved");
    EXPECT_EQ(Store().Found(), "3 moves, 0 s, solved");
    for (int move = 0; move < 20 && Store().Found() == "3 moves, 0 s, solved"; ++move) {
        store->Keep(kOne, kMove, false);
        QTest::qWait(50);
    }
    EXPECT_EQ(Store().Found(), "1 moves, 5 s, solved") << "it is written while the player plays on";
    store->Forget(kOne);
    EXPECT_EQ(store.Found(), "nothing");
    store->AddTime(kOne, 2);
    EXPECT_EQ(store.Found(), "0 moves, 2 s");
    store->Flush();
    EXPECT_EQ(Store().Found(), "0 moves, 2 s");
}

TEST(PlayStore, OfTwoWindowsTheLastMoveWinsAndTimeAdds) {
    const TempFolder folder;
    Store first;
    Store second;
    first->AddTime(kOne, 7);
    first.KeepNow(kMoves, true);
    second->AddTime(kOne, 4);
    second.KeepNow(kMove);
    EXPECT_EQ(first.Found(), "1 moves, 11 s, solved");
    first->AddTime(kOne, 1);
    first->Flush();
    EXPECT_EQ(second.Found(), "1 moves, 12 s, solved") << "time alone leaves the moves";
    second->Forget(kOne);
    second->Flush();
    EXPECT_EQ(first.Found(), "nothing");
}

TEST(PlayStore, WaitsForAnotherWindowThatWrites) {
    const TempFolder folder;
    Store().KeepNow();
    QSqlDatabase holder = QSqlDatabase::addDatabase("QSQLITE", "holder");
    holder.setDatabaseName("play.db");
    ASSERT_TRUE(holder.open());
    ASSERT_TRUE(QSqlQuery(holder).exec("BEGIN IMMEDIATE"));
    {
        Store store;
        store->Keep(kOne, kMove, false);
        QTest::qWait(400);
        EXPECT_EQ(Store().Found(), "3 moves, 0 s") << "it can be read";
        EXPECT_TRUE(QSqlQuery(holder).exec("COMMIT"));
        QTest::qWait(400);
        EXPECT_EQ(Store().Found(), "1 moves, 0 s");
    }
    ASSERT_TRUE(QSqlQuery(holder).exec("BEGIN EXCLUSIVE"));
    {
        Store store;
        EXPECT_EQ(store.Found(), "nothing");
        EXPECT_EQ(store->Find(kOther), std::nullopt);
        EXPECT_EQ(store->TakeTrouble(), "\"play.db\" cannot be read now: what you played before is out of sight");
        EXPECT_TRUE(QSqlQuery(holder).exec("COMMIT"));
        store.KeepNow(kMoves);
        EXPECT_EQ(Store().Found(), "1 moves, 0 s") << "what could not be read is not replaced";
        EXPECT_EQ(store->TakeTrouble().substr(0, 29), "What you play now is not kept");
        for (const History& history : {kMove, kMoves}) {
            store->Keep(kOther, history, false);
            store->Flush();
            EXPECT_EQ(Store()->Find(kOther)->history, history) << "where there was nothing, play goes on";
        }
        EXPECT_EQ(store.Found(), "1 moves, 0 s");
        store.KeepNow(kMoves);
        EXPECT_EQ(Store().Found(), "3 moves, 0 s");
    }
    holder = {};
    QSqlDatabase::removeDatabase("holder");
}

TEST(PlayStore, PutsADamagedFileAside) {
    const TempFolder folder;
    Store().KeepNow();
    const std::string good = folder.Read("play.db");
    std::string torn = good;
    std::fill(torn.begin() + 4096, torn.end(), 'x');
    std::string foreign = good;
    std::fill(foreign.begin() + 60, foreign.begin() + 64, '\0');
    std::string later = good;
    later[63] = 99;
    int aside = 0;
    for (const std::string& bytes :
         {std::string("This is no database."), std::string(5000, 'x'), torn, foreign, later}) {
        folder.Write("play.db", bytes);
        folder.Write("play.db-journal", "of another time");
        Store store;
        EXPECT_EQ(store.Found(), "nothing");
        EXPECT_EQ(store->TakeTrouble().substr(0, 21), "\"play.db\" was damaged");
        store.KeepNow(kMove);
        EXPECT_EQ(Store().Found(), "1 moves, 0 s");
        EXPECT_EQ(folder.Read("play-" + std::to_string(++aside) + ".db"), bytes);
        EXPECT_EQ(folder.Entries(), aside + 1);
    }
}

TEST(PlayStore, GoesOnWithoutAFile) {
    const TempFolder folder;
    Store nowhere(folder.Path("nowhere"));
    nowhere.KeepNow();
    EXPECT_EQ(nowhere.Found(), "3 moves, 0 s");
}

TEST(PlayStore, WritesWhatADiskThatWasFullDidNotTake) {
    const TempFolder folder;
    Store().KeepNow();
    Store store;
    {
        const NoSpace nothing;
        store.KeepNow(kMove);
        EXPECT_EQ(store->TakeTrouble(), "\"play.db\" cannot be written: what you play is not kept");
        store.KeepNow(kMove);
        EXPECT_EQ(store->TakeTrouble(), "") << "said once";
    }
    EXPECT_EQ(Store().Found(), "3 moves, 0 s");
    store->Flush();
    EXPECT_EQ(Store().Found(), "1 moves, 0 s");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(PlayStore, NeverReplacesWhatItHasNotSeen) {
    const TempFolder folder;
    Store().KeepNow();
    std::filesystem::rename("play.db", "away");
    std::filesystem::create_directory("play.db");
    Store store;
    EXPECT_EQ(store.Found(), "nothing");
    std::filesystem::remove("play.db");
    std::filesystem::rename("away", "play.db");
    store->AddTime(kOne, 3);
    store.KeepNow(kMove);
    EXPECT_EQ(Store().Found(), "3 moves, 3 s");
    Store other;
    other->LeaveUnseen(kOne);
    other.KeepNow(kMove, true);
    EXPECT_EQ(Store().Found(), "3 moves, 3 s, solved");
    other->Forget(kOne);
    other.KeepNow(kMove);
    EXPECT_EQ(Store().Found(), "1 moves, 0 s");
}

TEST(PlayStore, TellsHowFarAllPuzzlesArePlayed) {
    const TempFolder folder;
    Store store;
    store.KeepNow();
    store->AddTime(kOther, 7);
    const PlayStates states = store->States();
    EXPECT_EQ(states.Of(kOne).state, PlayState::Begun);
    EXPECT_EQ(states.Of(kOther).state, PlayState::Untouched);
    EXPECT_EQ(states.Of(kOther).seconds, 7);
    store->Keep(kOne, History(), true);
    EXPECT_EQ(store->States().Of(kOne).state, PlayState::Solved);
}

TEST(PlayStore, TakesARowForNoMoreThanItIsGoodFor) {
    const TempFolder folder;
    Store().KeepNow();
    Sql("UPDATE play SET moves = zeroblob(20000000), seconds = 9000000000");
    EXPECT_EQ(Store().Found(), "0 moves, 2147483647 s");
    Sql("UPDATE play SET moves = x'7fffffff789c'");
    EXPECT_EQ(Store().Found(), "0 moves, 2147483647 s");
    Sql("UPDATE play SET moves = 'text', seconds = 'x', solved = 1");
    EXPECT_EQ(Store().Found(), "0 moves, 0 s, solved");
    Store().KeepNow(History(std::vector<PlayedMove>(100000), 100000, {}));
    EXPECT_EQ(Store().Found(), "0 moves, 0 s, solved") << "more than can be read is not kept";
}

}  // namespace
}  // namespace tidewalk::test
