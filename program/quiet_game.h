// SPDX-License-Identifier: MIT
// A game without windows, for programs that only make, solve or count puzzles.
#pragma once

#include "board/drawing.h"
#include "model/game.h"

namespace tidewalk {

/// Draws nothing.
class QuietSurface final : public Surface {
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

/// Shows nothing, answers no question with Yes and lets no events happen.
class QuietWorld final : public Prompts,
                         public FilePicker,
                         public MainWindow,
                         public BoardPictures,
                         public PendingEvents,
                         public BatchWindow {
 public:
    int Show(const std::string& /*text*/, std::string_view /*style*/) override { return 1; }
    int SystemBox(const std::string& /*text*/, SystemButtons /*buttons*/) override { return 1; }
    std::string Pick(const FileRequest& /*request*/) override { return ""; }
    bool Ask(BatchRequest& /*request*/) override { return false; }
    void DoEvents() override {}

    std::string Text(Control /*control*/) const override { return ""; }
    void SetText(Control /*control*/, const std::string& /*text*/) override {}
    void SetToolTip(Control /*control*/, const std::string& /*text*/) override {}
    void SetPointer(Pointer /*pointer*/) override {}
    void SetProgress(int /*done*/, int /*total*/) override {}
    void ApplyColours() override {}
    void EndProgram() override {}

    Surface::Extent Picture5Extent() const override { return {}; }
    Surface& Picture1() override { return surface_; }
    void PlacePicture1() override {}
    void ShowOverlay() override {}
    void SetEnabled(bool /*enabled*/) override {}
    void SetVisible(bool /*visible*/) override {}
    bool IsVisible() const override { return true; }
    void Freeze(bool /*frozen*/) override {}
    void EnableTimer1(bool /*enabled*/) override {}

 private:
    QuietSurface surface_;
};

struct QuietSeams {
    QuietWorld quietWorld;
    DrawnBoard drawnBoard;
    SystemClock systemClock;
};

/// A game in a quiet world, by the machine's clock. Make it on the heap.
struct QuietGame : private QuietSeams, public Game {
    QuietGame()
        : Game(Seams{quietWorld, quietWorld, quietWorld, quietWorld, drawnBoard, quietWorld, systemClock, quietWorld}) {
    }
};

}  // namespace tidewalk
