// SPDX-License-Identifier: MIT
// The world around a game, for tests.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "game/choices.h"
#include "game/game.h"
#include "model/plain_grid.h"
#include "support/recording_surface.h"

namespace tidewalk::test {

/// The board's picture: what was drawn since it was last wiped, with its pens.
class BoardPicture final : public RecordingSurface {
 public:
    void Clear(Colour background) override {
        calls.clear();
        ++timesCleared;
        RecordingSurface::Clear(background);
    }
    void SetDrawWidth(int pixels) override { calls.push_back("pen " + std::to_string(pixels)); }

    int timesCleared = 0;
};

/// Everything that lies over the board's picture, in words.
std::string OverlayOf(const Board& board);

/// A double of every seam. It records what the game does, answers what it was told to, and fails on a question that
/// nobody expected and on an answer that nobody asked for.
class World final : public Prompts,
                    public FilePicker,
                    public Questions,
                    public MainWindow,
                    public BoardPictures,
                    public PendingEvents,
                    public Clock,
                    public Clipboard,
                    public Printers,
                    public Choices,
                    public Background,
                    public PlayStore {
 public:
    /// Fails when a question that was expected has not come.
    ~World() override;

    /// The next question has to be this message box, or the system's own one with the style "system ok" or "system
    /// yesno"; it is answered with `answer`.
    void Expect(const std::string& text, const std::string& style, int answer = kOk);
    /// The next question has to be for a file: "title|patterns|name of the patterns|open".
    void ExpectPick(const std::string& request, const std::string& path) { expected_.push_back({request, 0, path}); }
    /// From now on every box is answered with `answer`, for inputs that may or may not be refused.
    void AnswerAll(int answer) { answerToAll_ = answer; }

    std::string Status() const { return Text(WindowText::Status); }
    /// What happened since the last look, in its order and without the labels of puzzles: "busy, box, status: Solved".
    std::string Seen();

    int Show(const std::string& text, std::string_view style) override;
    int SystemBox(const std::string& text, SystemButtons buttons) override {
        return Show(text, buttons == SystemButtons::Ok ? "system ok" : "system yesno");
    }
    std::string Pick(const FileRequest& request) override;
    std::string suggested;  ///< the name that the last file was asked for with
    bool AskBatch(BatchRequest& request) override { return Note("batch?"), std::exchange(batch, nullptr)(request); }
    void ShowSolutions(const FoundSolutions& found) override { Note("solutions"), solutions = found; }
    int ChoosePuzzle() override { return Note("puzzle?"), chosen; }
    int ChooseGrid(const GridChoice& choice) override { return Note("grid? " + choice.caption), chosen; }
    int chosen = 0;
    bool AskPrint(PrintRequest& request) override { return Note("print?"), std::exchange(print, nullptr)(request); }

    bool AskBooklet(BookletRequest& request) override {
        Note("booklet?");
        const auto answer = std::exchange(booklet, nullptr);
        return answer && answer(request);
    }

    std::string Text(WindowText which) const override { return texts.count(which) == 0 ? "" : texts.at(which); }
    void SetText(WindowText which, const std::string& text) override;
    void SetToolTip(WindowText which, const std::string& text) override { toolTips[which] = text; }
    void SetPointer(Pointer to) override { Note((pointer = to) == Pointer::Busy ? "busy" : "not busy"); }
    void SetProgress(int done, int total) override {
        Note("progress: " + std::to_string(done) + " of " + std::to_string(progressTotal = total));
    }
    void Repaint() override { Note("repaint"); }
    std::string Get(std::string_view name, const std::string& otherwise) const override {
        const auto found = choices.find(name);
        return found == choices.end() ? otherwise : found->second;
    }
    void Set(std::string_view name, const std::string& value) override { choices[std::string(name)] = value; }
    void Refresh() override {}
    std::map<std::string, std::string, std::less<>> choices;
    void ApplyColours() override { Note("colours"); }
    Colour Desktop(DesktopColour colour) const override { return desktop.at(colour); }
    void EndProgram() override { Note("end"); }

    Surface::Extent ContainerExtent() const override { return container; }
    Surface& Picture() override { return picture; }
    double DragDistance() const override { return dragDistance; }
    void PlacePicture() override { placed = game->board.layout.Picture1; }
    void ShowOverlay() override { overlay = OverlayOf(game->board); }
    void SetEnabled(bool to) override { Note((enabled = to) ? "board on" : "board off"); }
    void SetVisible(bool to) override { visible = to; }
    bool IsVisible() const override { return visible; }
    void Freeze(bool to) override { Note((frozen = to) ? "frozen" : "thawed"); }
    void StartMarkerTime() override { markerTime = true; }
    void StopMarkerTime() override { markerTime = false; }

    void DoEvents() override {
        if (step == 0) Note("events");
        if (happen) happen();
    }
    double Timer() override { return 0; }
    std::int64_t Milliseconds() override { return milliseconds += step; }

    std::string Text() override { return clipboard; }
    void SetText(const std::string& text) override { clipboard = text; }
    bool SetPicture(const PuzzlePicture& given) override { return copied = given, copies; }
    std::vector<std::string> Names() override { return printers; }
    Paper UsualPaper() override { return paper; }
    Sheet SheetOf(const std::string& printer, const SheetFormat& format) override;
    std::unique_ptr<PrintDocument> Begin(const DocumentSetup& setup, std::string& error) override;
    void Preview(const std::string& printer, const PageFunction& draw) override;
    std::string SavePicture(const std::string& file, const PuzzlePicture& given) override {
        return savedTo = file, copied = given, saveError;
    }

    void Assess(const Puzzle&, std::function<void(const Assessment&)> done) override { assessed = std::move(done); }
    std::function<void(const Assessment&)> assessed;  ///< waits for what is found out about the puzzle

    std::optional<KeptPlay> Find(const Puzzle& puzzle) override;
    void Keep(const Puzzle& puzzle, const History& history, bool solved) override;
    void AddTime(const Puzzle& puzzle, int seconds) override { plays[PlainGrid(puzzle)].seconds += seconds; }
    void Forget(const Puzzle& puzzle) override { plays.erase(PlainGrid(puzzle)); }
    void Flush() override { ++flushes; }
    void LeaveUnseen(const Puzzle&) override { ++leftUnseen; }
    int leftUnseen = 0;
    std::string TakeTrouble() override { return std::exchange(trouble, ""); }
    std::string trouble;
    std::map<std::vector<std::string>, KeptPlay> plays;  ///< by the rows of the puzzle, as `PlainGrid` has them
    int flushes = 0;

    const Game* game = nullptr;  ///< the game that this is the world of
    void Note(const std::string& entry) { log_.push_back(entry); }

    std::function<bool(BatchRequest&)> batch;  ///< answers the next question for a batch
    std::function<bool(PrintRequest&)> print;  ///< answers the next question for puzzles to print
    std::function<bool(BookletRequest&)>
        booklet;  ///< answers the next question for a booklet; to further ones the player says no

    FoundSolutions solutions;  ///< that were shown last

    std::map<WindowText, std::string> texts;
    std::map<WindowText, std::string> toolTips;
    /// A light desktop.
    std::map<DesktopColour, Colour> desktop{{DesktopColour::WindowFace, Rgb(239, 239, 239)},
                                            {DesktopColour::ListBackground, Rgb(252, 252, 252)},
                                            {DesktopColour::ButtonFace, Rgb(230, 230, 230)},
                                            {DesktopColour::Highlight, Rgb(48, 140, 198)}};
    Pointer pointer = Pointer::Default;
    int progressTotal = 0;

    Surface::Extent container{9000, 9000};
    BoardPicture picture;
    double dragDistance = 150;  ///< ten pixels, as desktops have it
    Frame placed;               ///< where the board's picture was placed
    std::string overlay;        ///< what was shown over it
    bool enabled = true;
    bool visible = true;
    bool frozen = false;
    bool markerTime = false;

    std::function<void()> happen;  ///< what happens when events are let through
    std::int64_t milliseconds = 0;
    std::int64_t step = 0;  ///< what passes between two looks at the milliseconds

    std::string clipboard;
    PuzzlePicture copied;  ///< the picture that was copied or saved last
    bool copies = true;

    std::vector<std::string> printers{"Office", "PDF file"};
    std::string savedTo;     ///< the file of the last picture
    std::string saveError;   ///< why pictures cannot be saved
    std::string beginError;  ///< why no document can begin
    int failAtPage = 0;      ///< the page that the printer refuses, or the end if there are fewer; 0 for none
    std::string printedTo;   ///< "printer|file" of the last document
    DocumentSetup document;  ///< the last document's setup
    Paper paper = Paper::A4;
    std::vector<RecordingSurface> pages;
    Surface::Area printable{360, 360, 11540, 16480};

 private:
    struct Question {
        std::string text;
        int answer;
        std::string path;
    };
    Question Answer(const std::string& question);

    std::deque<Question> expected_;
    std::vector<std::string> log_;
    int answerToAll_ = 0;
};

}  // namespace tidewalk::test
