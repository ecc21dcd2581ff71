// SPDX-License-Identifier: MIT
// The seams of the main window: its texts, its pointer, its events and the board's picture.
#pragma once

#include <string>

#include "drawing/surface.h"

namespace tidewalk {

/// The texts of the main window that the game writes or reads.
enum class WindowText {
    Status,
    PuzzleNumber,
    PuzzleCount,
    CollectionName,
    BoardSize,
    Assessment,
    Tried  ///< how many were made in search of a puzzle that is as ordered
};

enum class MouseButton { Left, Right, Middle };

enum class Pointer { Default, Busy };

/// The colours of the player's desktop that the scheme "default.col" follows.
enum class DesktopColour { WindowFace, ListBackground, ButtonFace, Highlight };

/// The main window around the board.
class MainWindow {
 public:
    virtual ~MainWindow() = default;

    virtual std::string Text(WindowText which) const = 0;
    virtual void SetText(WindowText which, const std::string& text) = 0;
    virtual void SetToolTip(WindowText which, const std::string& text) = 0;
    virtual void SetPointer(Pointer pointer) = 0;

    /// Shows how far a long job is, `done` of `total` steps; a total of 0 takes the display away.
    virtual void SetProgress(int done, int total) = 0;

    /// Paints the window's controls in the colours of the active scheme.
    virtual void ApplyColours() = 0;

    /// A colour of the player's desktop, whatever scheme the windows wear.
    virtual Colour Desktop(DesktopColour colour) const = 0;

    /// Ends the program as soon as the running handler returns.
    virtual void EndProgram() = 0;
};

/// The board's picture, and the container in which it may be moved about.
class BoardPictures {
 public:
    virtual ~BoardPictures() = default;

    /// The inner size of the container, in twips of the screen, however much the board is magnified.
    virtual Surface::Extent ContainerExtent() const = 0;

    /// What is drawn here stays on the board's picture until it is drawn over.
    virtual Surface& Picture() = 0;

    /// How far the pointer goes before a press becomes a drag, in twips on the board.
    virtual double DragDistance() const = 0;

    /// The board's rectangle in its layout, or its magnification, has changed.
    virtual void PlacePicture() = 0;

    /// The rubber band, the focus or the marker has changed.
    virtual void ShowOverlay() = 0;

    virtual void SetEnabled(bool enabled) = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual bool IsVisible() const = 0;

    /// While frozen, what is drawn does not reach the screen.
    virtual void Freeze(bool frozen) = 0;

    /// Lets the marker's time, 1000 ms, begin; a marker that shows already keeps the time that it has left.
    virtual void StartMarkerTime() = 0;
    virtual void StopMarkerTime() = 0;
};

/// Clicks, keys and repaints that wait while a routine runs.
class PendingEvents {
 public:
    virtual ~PendingEvents() = default;

    /// Lets everything that waits happen now.
    virtual void DoEvents() = 0;

    /// Brings what was drawn to the screen and lets clicks and keys wait on.
    virtual void Repaint() = 0;
};

}  // namespace tidewalk
