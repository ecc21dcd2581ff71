// SPDX-License-Identifier: MIT
// What the routines ask of the world around them. The windows implement these seams, and so do the tests' doubles.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/clock.h"
#include "model/surface.h"

namespace tidewalk {

struct Game;

enum class SystemButtons { Ok, YesNo };

// The codes that buttons answer with.
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kAbort = 3;
inline constexpr int kRetry = 4;
inline constexpr int kIgnore = 5;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;

/// Messages and questions.
class Prompts {
 public:
    virtual ~Prompts() = default;

    /// Shows the program's own message box and returns the code of the button that ended it. `style` holds keywords
    /// joined by "+", such as "vbYesNo+vbexit".
    virtual int Show(const std::string& text, std::string_view style) = 0;

    /// Shows a plain box of the system. Returns `kOk`, `kYes` or `kNo`.
    virtual int SystemBox(const std::string& text, SystemButtons buttons) = 0;
};

/// What the file-name picker is to ask.
struct FileRequest {
    enum class Mode { Open, Save };

    std::string title;
    std::string patterns;     ///< "*.tdw;*.txt;*.dat"
    std::string patternName;  ///< "Tidewalk Files"
    std::string startFolder;
    Mode mode = Mode::Open;
};

/// Asks for a file name.
class FilePicker {
 public:
    virtual ~FilePicker() = default;

    /// The chosen path, or "" when the player thinks better of it. Never asks about overwriting.
    virtual std::string Pick(const FileRequest& request) = 0;
};

/// The texts of the main window that routines write or read.
enum class Control { pb, PuzNumNow, PuzNumber, Puzfile, GridSize };

enum class Pointer { Default, Busy };

/// The colours of the player's desktop that the scheme "default.col" follows.
enum class DesktopColour { WindowFace, ListBackground, ButtonFace, Highlight };

/// The main window around the board.
class MainWindow {
 public:
    virtual ~MainWindow() = default;

    virtual std::string Text(Control control) const = 0;
    virtual void SetText(Control control, const std::string& text) = 0;
    virtual void SetToolTip(Control control, const std::string& text) = 0;
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

/// The board's picture `Picture1` and its container `Picture5`.
class BoardPictures {
 public:
    virtual ~BoardPictures() = default;

    /// The inner size of the container, in twips.
    virtual Surface::Extent Picture5Extent() const = 0;

    /// What is drawn here stays on the board's picture until it is drawn over.
    virtual Surface& Picture1() = 0;

    /// The board's rectangle in the game has changed.
    virtual void PlacePicture1() = 0;

    /// The rubber band or the marker in the game has changed.
    virtual void ShowOverlay() = 0;

    virtual void SetEnabled(bool enabled) = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual bool IsVisible() const = 0;

    /// While frozen, what is drawn does not reach the screen.
    virtual void Freeze(bool frozen) = 0;

    /// Starts or stops `Timer1`, whose tick comes 1000 ms later.
    virtual void EnableTimer1(bool enabled) = 0;
};

/// What lower routines need done to the board: the loader lays out and redraws it.
class BoardRoutines {
 public:
    virtual ~BoardRoutines() = default;

    /// Lays the board out for the game's cell size.
    virtual void LayoutBoard(Game& game) = 0;

    /// Draws the whole board, with the player's bridges or with the stored solution.
    virtual void RedrawBoard(Game& game, bool showSolution) = 0;

    /// Draws the board with the solution that the link list holds, until it is drawn anew.
    virtual void ShowSolution(Game& game) = 0;
};

/// Clicks, keys and repaints that wait while a routine runs.
class PendingEvents {
 public:
    virtual ~PendingEvents() = default;

    /// Lets everything that waits happen now.
    virtual void DoEvents() = 0;
};

/// What draws a picture or a page: it draws on the surface, which takes pen widths in 1/300 inch, and returns the
/// rectangle that holds what it drew, in twips.
using DrawFunction = std::function<Surface::Area(Surface&)>;

/// What draws a page: the surface, and the rectangle of the paper that can be printed on, in twips from its corner.
using PageFunction = std::function<void(Surface&, const Surface::Area&)>;

/// The system's clipboard.
class Clipboard {
 public:
    virtual ~Clipboard() = default;

    /// The clipboard's text, "" when it holds none.
    virtual std::string Text() = 0;

    /// Puts a picture on the clipboard, cut to what `draw` drew and an equal margin on all sides. `draw` may be called
    /// more than once. False when the picture could not be made; the clipboard then stays as it was.
    virtual bool SetPicture(const DrawFunction& draw) = 0;
};

/// A document on its way to a printer. One that goes away before its end is not printed.
class PrintDocument {
 public:
    virtual ~PrintDocument() = default;

    /// The current page, with pen widths in 1/300 inch.
    virtual Surface& Page() = 0;

    /// The rectangle of the page that can be printed on, in twips from the paper's corner.
    virtual Surface::Area Printable() const = 0;

    /// Begins the next page. False when the printer refuses.
    virtual bool NewPage() = 0;

    /// Hands the document over. False when that failed.
    virtual bool End() = 0;

    /// Why the last call failed, in words for the player.
    virtual std::string Error() const = 0;
};

/// The printer that is always there: a file.
inline constexpr std::string_view kPdfPrinter = "PDF file";

/// The printers.
class Printers {
 public:
    virtual ~Printers() = default;

    /// All names, the system's default first and `kPdfPrinter` last.
    virtual std::vector<std::string> Names() = 0;

    /// Begins a document. `file` is the path that `kPdfPrinter` writes to; a file that is there is replaced at the end
    /// of the document. Nothing comes back when the printer refuses; the reason is then in `error`.
    virtual std::unique_ptr<PrintDocument> Begin(const std::string& printer, const std::string& file,
                                                 std::string& error) = 0;

    /// Shows what a document of this one page looks like on a printer.
    virtual void Preview(const std::string& printer, const PageFunction& draw) = 0;
};

/// What the window `Form5` shows, under the names of its controls.
struct Form5Fields {
    std::string FileNow;                ///< the path of the collection
    std::string Text1;                  ///< the first puzzle to print
    std::string Text2;                  ///< the last one
    std::vector<std::string> printers;  ///< the lines of `Combo1`
    std::string Combo1;                 ///< the chosen line
    int count = 0;                      ///< the puzzles in the file, as last counted
    std::string Tag = "X";              ///< "Y" once the player has decided
};

/// The window "Print Puzzles From File".
class Form5Window {
 public:
    virtual ~Form5Window() = default;

    /// Shows the window until the player closes it and keeps the fields up to date with it.
    virtual void ShowModal(Form5Fields& fields) = 0;
};

/// What the window for batches asks: the texts as they were typed.
struct BatchRequest {
    std::string count;
    std::string rows;
    std::string cols;
    std::string outputFile;
};

/// The window that asks for a batch of new puzzles.
class BatchWindow {
 public:
    virtual ~BatchWindow() = default;

    /// Shows the window until the player ends it. True when OK was accepted; `request` then holds what was typed.
    virtual bool Ask(BatchRequest& request) = 0;
};

/// One reference to each seam.
struct Seams {
    Prompts& prompts;
    FilePicker& filePicker;
    MainWindow& window;
    BoardPictures& pictures;
    BoardRoutines& board;
    PendingEvents& events;
    Clock& clock;
    BatchWindow& batchWindow;
    Clipboard& clipboard;
    Printers& printers;
    Form5Window& form5;
};

}  // namespace tidewalk
