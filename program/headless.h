// SPDX-License-Identifier: MIT
// A game without windows, for the console, the benchmarks and whatever else only computes.
#pragma once

#include <map>
#include <string>

#include "model/game.h"

namespace tidewalk {

/// Keeps the last message and answers it as a player would who only reads: Ok, and No to every question.
class HeadlessPrompts final : public Prompts {
 public:
    int Show(const std::string& text, std::string_view style) override;
    int SystemBox(const std::string& text, SystemButtons buttons) override;

    std::string lastText;
};

class HeadlessFilePicker final : public FilePicker {
 public:
    std::string Pick(const FileRequest& request) override;
};

class HeadlessWindow final : public MainWindow {
 public:
    std::string Text(Control control) const override;
    void SetText(Control control, const std::string& text) override { texts_[control] = text; }
    void SetToolTip(Control /*control*/, const std::string& /*text*/) override {}
    void SetPointer(Pointer /*pointer*/) override {}
    void SetProgress(int /*done*/, int /*total*/) override {}
    void ApplyColours() override {}
    void EndProgram() override {}

 private:
    std::map<Control, std::string> texts_;
};

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

class HeadlessPictures final : public BoardPictures {
 public:
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
    static constexpr double kSide = 9600;  // twips

    HeadlessSurface surface_;
};

/// There is no board to lay out or draw.
class HeadlessBoard final : public BoardRoutines {
 public:
    void LayoutBoard(Game& /*game*/) override {}
    void RedrawBoard(Game& /*game*/, bool /*showSolution*/) override {}
    void ShowSolution(Game& /*game*/) override {}
};

class HeadlessEvents final : public PendingEvents {
 public:
    void DoEvents() override {}
};

struct HeadlessSeams {
    HeadlessPrompts prompts;
    HeadlessFilePicker filePicker;
    HeadlessWindow window;
    HeadlessPictures pictures;
    HeadlessBoard board;
    HeadlessEvents events;
    SystemClock clock;
};

/// A game with such seams.
class HeadlessGame : private HeadlessSeams, public Game {
 public:
    HeadlessGame()
        : Game(Seams{HeadlessSeams::prompts, HeadlessSeams::filePicker, HeadlessSeams::window, HeadlessSeams::pictures,
                     HeadlessSeams::board, HeadlessSeams::events, HeadlessSeams::clock}) {}

    /// The last message that would have been shown.
    const std::string& LastMessage() const { return HeadlessSeams::prompts.lastText; }
};

}  // namespace tidewalk
