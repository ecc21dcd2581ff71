// SPDX-License-Identifier: MIT
// Doubles of the seams: they record what was asked, answer what they were told to, and fail on what nobody expected.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/seams.h"

namespace tidewalk::test {

/// Message boxes that are expected in their order.
class ExpectedPrompts final : public Prompts {
 public:
    ~ExpectedPrompts() override;

    /// The next message box has to be this one; it is answered with `answer`.
    void Expect(std::string text, std::string style, int answer);
    /// The next box has to be this plain one of the system.
    void ExpectSystemBox(std::string text, SystemButtons buttons, int answer);
    /// From now on every box is answered with `answer`, for tests of inputs that may or may not be refused.
    void AnswerAll(int answer) { answerToAll_ = answer; }
    /// Fails when a box that was expected has not come yet.
    void Verify();

    int Show(const std::string& text, std::string_view style) override;
    int SystemBox(const std::string& text, SystemButtons buttons) override;

 private:
    struct Expected {
        std::string text;
        std::string style;
        int answer;
    };
    int Answer(const std::string& text, const std::string& style);

    std::deque<Expected> expected_;
    std::optional<int> answerToAll_;
};

/// Answers one path a question.
class ExpectedFiles final : public FilePicker {
 public:
    ~ExpectedFiles() override;

    void Answer(std::string path) { answers_.push_back(std::move(path)); }
    std::string Pick(const FileRequest& request) override;

    std::vector<FileRequest> requests;

 private:
    std::deque<std::string> answers_;
};

/// Answers with a request that was typed, or as a window that is left without OK.
class BatchDouble final : public BatchWindow {
 public:
    bool Ask(BatchRequest& request) override {
        ++timesAsked;
        if (accepted) request = typed;
        return accepted;
    }

    BatchRequest typed;
    bool accepted = true;
    int timesAsked = 0;
};

/// Remembers the texts and states of the main window.
class WindowDouble final : public MainWindow {
 public:
    std::string Text(Control control) const override;
    void SetText(Control control, const std::string& text) override;
    void SetToolTip(Control control, const std::string& text) override { toolTips[control] = text; }
    void SetPointer(Pointer to) override { pointer = to; }
    void SetProgress(int done, int total) override;
    void ApplyColours() override { ++timesColoured; }
    Colour Desktop(DesktopColour colour) const override { return desktop.at(colour); }
    void EndProgram() override { ended = true; }

    std::map<Control, std::string> texts;
    std::map<Control, std::string> toolTips;
    std::vector<std::string> statusTexts;  ///< everything that the status line has shown
    Pointer pointer = Pointer::Default;
    int progressDone = 0;
    int progressTotal = 0;
    int timesColoured = 0;
    /// A light desktop.
    std::map<DesktopColour, Colour> desktop{{DesktopColour::WindowFace, Rgb(239, 239, 239)},
                                            {DesktopColour::ListBackground, Rgb(252, 252, 252)},
                                            {DesktopColour::ButtonFace, Rgb(230, 230, 230)},
                                            {DesktopColour::Highlight, Rgb(48, 140, 198)}};
    bool ended = false;
};

/// Records drawing calls as lines of text, such as "line 0 0 10 10 255".
class RecordingSurface final : public Surface {
 public:
    void Clear(Colour background) override;
    void SetDrawWidth(int pixels) override { drawWidth = pixels; }
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    void Box(double x1, double y1, double x2, double y2, Colour colour) override;
    void FilledBox(double x1, double y1, double x2, double y2, Colour colour) override;
    void Circle(double x, double y, double radius, Colour outline, Colour fill) override;
    void SetFontSize(double points) override { fontSize = points; }
    /// Every character is half a font size wide and one high.
    Extent TextExtent(const std::string& text) override;
    void Print(double x, double y, const std::string& text, Colour colour) override;

    /// How many calls begin with `kind`.
    int Count(const std::string& kind) const;

    std::vector<std::string> calls;
    int drawWidth = 0;
    double fontSize = 0;
};

class PicturesDouble final : public BoardPictures {
 public:
    Surface::Extent Picture5Extent() const override { return extent; }
    Surface& Picture1() override { return surface; }
    void PlacePicture1() override { ++timesPlaced; }
    void ShowOverlay() override {}
    void SetEnabled(bool to) override { enabled = to; }
    void SetVisible(bool to) override { visible = to; }
    bool IsVisible() const override { return visible; }
    void Freeze(bool to) override { frozen = to; }
    void EnableTimer1(bool to) override { timerEnabled = to; }

    RecordingSurface surface;
    Surface::Extent extent{9000, 9000};
    int timesPlaced = 0;
    bool enabled = true;
    bool visible = true;
    bool frozen = false;
    bool timerEnabled = false;
};

/// Does what a test wants to happen while a routine lets events through.
class EventsDouble final : public PendingEvents {
 public:
    void DoEvents() override {
        ++count;
        if (happen) happen();
    }

    int count = 0;
    std::function<void()> happen;
};

class ClipboardDouble final : public Clipboard {
 public:
    std::string Text() override { return text; }

    std::string text;
};

/// A clock that a test sets; each look at the milliseconds lets `step` pass.
class ClockDouble final : public Clock {
 public:
    double Timer() override { return seconds; }
    std::int64_t Milliseconds() override { return milliseconds += step; }

    double seconds = 0;
    std::int64_t milliseconds = 0;
    std::int64_t step = 0;
};

}  // namespace tidewalk::test
