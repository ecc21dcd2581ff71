// SPDX-License-Identifier: MIT
#include "generator/shuffle.h"

#include "game/job.h"
#include "generator/shuffle_lines.h"
#include "model/file_error.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// Shows how far a shuffle is in the status line and lets events happen; false when it is to stop.
class ShownProgress {
 public:
    ShownProgress(Game& game, Job& job) : game_(game), job_(job) {}

    bool operator()(const ShuffleCounts& counts) {
        const bool writing = counts.written > 0;
        const std::string text = writing ? "random" + Str(static_cast<int>(counts.written))
                                         : "Dups" + Str(static_cast<int>(counts.duplicates));
        if (text != shown_ && !game_.job.CancelFlag()) {
            game_.window.SetText(WindowText::Status, text);
            shown_ = text;
        }
        if (writing) game_.window.SetProgress(static_cast<int>(counts.written), static_cast<int>(counts.Kept()));
        PollEvents(game_);
        // The lines are the job's own: another puzzle may be loaded without harm.
        job_.Adopt();
        return !game_.job.MustStop();
    }

 private:
    Game& game_;
    Job& job_;
    std::string shown_;
};

/// What the box at the end says; "" when the shuffle was cancelled.
std::string Shuffle(Game& game, const std::string& input, const std::string& output) {
    const BusyPointer pointer(game);
    Job job(game, "Shuffling");
    game.List2.Clear();
    game.List1.Clear();
    CloseFiles(game);
    ShuffleCounts counts;
    try {
        const bool complete = ShuffleLines(input, output, game.random, counts, ShownProgress(game, job));
        return complete ? output + " randomized" : "";
    } catch (const FileError& error) {
        return "The collection could not be shuffled:\r\n" + std::string(error.what());
    }
}

}  // namespace

void Command5_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string input = game.collection.CollectionPath;
    const std::string output = ShuffledName(input);
    if (output.empty()) return;
    const std::string message = Shuffle(game, input, output);
    game.window.SetText(WindowText::Status, "");
    if (!message.empty() && !game.job.Ending()) game.prompts.SystemBox(message, SystemButtons::Ok);
}

}  // namespace tidewalk
