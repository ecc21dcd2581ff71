// SPDX-License-Identifier: MIT
// A game without windows: for the console, the benchmarks and whatever else only computes.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "board/drawing.h"
#include "model/game.h"

namespace tidewalk {

/// Takes every stroke and keeps none.
class HeadlessSurface final : public Surface {
 public:
    void Clear(Colour /*background*/) override {}
    void SetDrawWidth(int /*pixels*/) override {}
    void Line(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, Colour /*colour*/) override {}
    void Box(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, Colour /*colour*/) override {}
    void FilledBox(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, Colour /*colour*/) override {}
    void Circle(double /*x*/, double /*y*/, double /*radius*/, Colour /*outline*/, Colour /*fill*/) override {}
    void SetFontSize(double /*points*/) override {}
    Extent TextExtent(const std::string& /*text*/) override { return {}; }
    void Print(double /*x*/, double /*y*/, const std::string& /*text*/, Colour /*colour*/) override {}
};

/// Shows nothing and chooses nothing; no events happen but the one that its owner may name. It keeps the last message
/// for whoever wants to pass it on.
class HeadlessWorld final : public Prompts,
                            public FilePicker,
                            public MainWindow,
                            public BoardPictures,
                            public PendingEvents,
                            public BatchWindow,
                            public Clipboard,
                            public Printers,
                            public Form5Window {
 public:
    std::string lastMessage;
    std::function<void()> onEvents;  ///< what happens when a job lets events through

    /// Answers Ok, which no question takes for Yes.
    int Show(const std::string& text, std::string_view /*style*/) override { return Keep(text); }
    int SystemBox(const std::string& text, SystemButtons /*buttons*/) override { return Keep(text); }

    std::string Pick(const FileRequest& /*request*/) override { return ""; }
    bool Ask(BatchRequest& /*request*/) override { return false; }
    void DoEvents() override {
        if (onEvents) onEvents();
    }

    std::string Text(Control control) const override {
        const auto found = texts_.find(control);
        return found == texts_.end() ? "" : found->second;
    }
    void SetText(Control control, const std::string& text) override { texts_[control] = text; }
    void SetToolTip(Control /*control*/, const std::string& /*text*/) override {}
    void SetPointer(Pointer /*pointer*/) override {}
    void SetProgress(int /*done*/, int /*total*/) override {}
    void ApplyColours() override {}
    Colour Desktop(DesktopColour /*colour*/) const override { return kWhite; }
    void EndProgram() override {}

    std::string Text() override { return ""; }
    bool SetPicture(const DrawFunction& /*draw*/) override { return false; }
    std::vector<std::string> Names() override { return {}; }
    std::unique_ptr<PrintDocument> Begin(const std::string& /*printer*/, const std::string& /*file*/,
                                         std::string& error) override {
        error = "There is no printer.";
        return nullptr;
    }
    void Preview(const std::string& /*printer*/, const PageFunction& /*draw*/) override {}
    void ShowModal(Form5Fields& /*fields*/) override {}

    Surface::Extent Picture5Extent() const override { return {kSide, kSide}; }
    Surface& Picture1() override { return surface_; }
    void PlacePicture1() override {}
    void ShowOverlay() override {}
    void SetEnabled(bool /*enabled*/) override {}
    void SetVisible(bool /*visible*/) override {}
    bool IsVisible() const override { return true; }
    void Freeze(bool /*frozen*/) override {}
    void EnableTimer1(bool /*enabled*/) override {}

 private:
    static constexpr double kSide = 9600;  // twips, about the size of a window's board

    int Keep(const std::string& text) {
        lastMessage = text;
        return kOk;
    }

    std::map<Control, std::string> texts_;
    HeadlessSurface surface_;
};

struct HeadlessSeams {
    HeadlessWorld world;
    DrawnBoard drawnBoard;
    SystemClock systemClock;
};

/// A game in such a world, by the machine's clock. Make it on the heap.
class HeadlessGame : private HeadlessSeams, public Game {
 public:
    HeadlessGame()
        : Game(Seams{.prompts = HeadlessSeams::world,
                     .filePicker = HeadlessSeams::world,
                     .window = HeadlessSeams::world,
                     .pictures = HeadlessSeams::world,
                     .board = drawnBoard,
                     .events = HeadlessSeams::world,
                     .clock = systemClock,
                     .batchWindow = HeadlessSeams::world,
                     .clipboard = HeadlessSeams::world,
                     .printers = HeadlessSeams::world,
                     .form5 = HeadlessSeams::world}) {}

    /// The last message that a player would have seen.
    const std::string& LastMessage() const { return HeadlessSeams::world.lastMessage; }

    /// Calls `stopped` every now and then while a job runs. Once it says true all jobs of this game end.
    void StopWhen(std::function<bool()> stopped) {
        HeadlessSeams::world.onEvents = [this, stopped = std::move(stopped)] { ending = ending || stopped(); };
    }
};

}  // namespace tidewalk
