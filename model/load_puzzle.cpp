// SPDX-License-Identifier: MIT
#include "model/load_puzzle.h"

#include "board/keep_play.h"
#include "board/show_board.h"
#include "model/collection_file.h"
#include "model/numbers.h"
#include "model/puzzle_record.h"

namespace tidewalk {

namespace {

/// Opens the collection and reads the line, which has to look like a record. The file is left open.
bool OpenAt(Game& game, const std::string& path, int number, std::string& line) {
    if (game.collection.leftOpen) return false;
    const LineRead read = game.lineIndex.Read(path, number, line);
    game.collection.leftOpen = read != LineRead::NotOpened;
    return read == LineRead::Done && MayBeRecord(line);
}

/// Puts the puzzle of the record on the board, or as much of it as there is; true when it is whole.
bool StartAfresh(Game& game, const std::string& record) {
    Puzzle puzzle;
    const RecordRead read = ReadPuzzleRecord(record, puzzle);
    if (read == RecordRead::Nothing) {
        PutOnBoard(game, Puzzle(game.board.puzzle.Size()));
        return false;
    }
    PutOnBoard(game, puzzle);
    FitBoard(game);
    return read == RecordRead::Whole;
}

}  // namespace

bool LoadPuzzle(Game& game, const std::string& path, int number) {
    std::string record;
    const bool opened = OpenAt(game, path, number, record);
    // Whatever comes onto the board now, it is no longer the line that was loaded before.
    if (opened) game.collection.loadedLine.clear();
    const bool loaded = opened && StartAfresh(game, record);
    if (opened) RedrawBoard(game, false);
    if (!loaded) {
        game.prompts.Show("puzzle" + Str(number) + " not found", "vbinformation+vbok");
        return false;
    }
    game.job.TakeBackCancel();
    game.collection.CollectionPath = path;
    game.collection.PuzzleCount = CountPuzzles(game, path);
    game.collection.PuzzleNumber = number;
    game.collection.loadedLine = record;
    game.collection.importedFrom.clear();
    game.window.SetText(WindowText::PuzzleNumber, NumText(number));
    ShowPuzzleLabels(game, path);
    BringBackPlay(game);
    return true;
}

ShownPuzzle PuzzleShown(const Game& game) {
    return {game.board.puzzle, game.collection};
}

void ShowAgain(Game& game, const ShownPuzzle& before) {
    const Collection& collection = before.collection;
    if (!collection.importedFrom.empty()) return TakeImported(game, before.puzzle, collection.importedFrom);
    CloseFiles(game);
    if (LoadPuzzle(game, collection.CollectionPath, collection.PuzzleNumber)) return;
    CloseFiles(game);
    ShowEmptyBoard(game);
}

void TakeImported(Game& game, const Puzzle& puzzle, const std::string& from) {
    game.collection.importedFrom = from;
    PutOnBoard(game, WithoutLinks(puzzle));
    FitBoard(game);
    RedrawBoard(game, false);
    ShowPuzzleLabels(game, from);
    BringBackPlay(game);
}

void CloseFiles(Game& game) {
    game.collection.leftOpen = false;
}

int CountPuzzles(Game& game, const std::string& path) {
    CloseFiles(game);
    // The places of the open collection's lines stay known while another one is counted.
    return path == game.collection.CollectionPath ? game.lineIndex.Count(path) : CountLines(path);
}

}  // namespace tidewalk
