// SPDX-License-Identifier: MIT
// The seams of what leaves the program as a picture: the clipboard and the printers.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/sheet.h"
#include "drawing/surface.h"

namespace tidewalk {

/// What draws a picture or a page: it draws on the surface, which takes pen widths in 1/300 inch, and returns the
/// rectangle that holds what it drew, in twips.
using DrawFunction = std::function<Surface::Area(Surface&)>;

/// What draws a page: the surface, and the rectangle of the paper that can be printed on, in twips from its corner.
using PageFunction = std::function<void(Surface&, const Surface::Area&)>;

/// A picture of a puzzle, in all forms in which others may want it.
struct PuzzlePicture {
    std::string title;
    DrawFunction draw;  ///< may be called more than once
    std::string svg;    ///< the same drawing as a file in SVG
    std::string text;   ///< the puzzle as a plain grid, each line with its end
};

/// The system's clipboard.
class Clipboard {
 public:
    virtual ~Clipboard() = default;

    /// The clipboard's text, "" when it holds none.
    virtual std::string Text() = 0;

    /// Puts a text on the clipboard.
    virtual void SetText(const std::string& text) = 0;

    /// Puts a picture on the clipboard, cut to what was drawn and an equal margin on all sides, and beside it its SVG
    /// and its text. False when the picture could not be made; the clipboard then stays as it was.
    virtual bool SetPicture(const PuzzlePicture& picture) = 0;
};

/// A document on its way to a printer. One that goes away before its end is not printed.
class PrintDocument {
 public:
    virtual ~PrintDocument() = default;

    /// The current page, with pen widths in 1/300 inch.
    virtual Surface& Page() = 0;

    /// The sheet that every page is.
    virtual Sheet PageSheet() const = 0;

    /// Begins the next page. False when the printer refuses.
    virtual bool NewPage() = 0;

    /// Hands the document over. False when that failed.
    virtual bool End() = 0;

    /// Why the last call failed, in words for the player.
    virtual std::string Error() const = 0;
};

/// The printer that is always there: a file.
inline constexpr std::string_view kPdfPrinter = "PDF file";

/// A document that is to be made.
struct DocumentSetup {
    std::string printer;
    std::string file;  ///< the path that `kPdfPrinter` writes to; what is there is replaced at the document's end
    std::optional<SheetFormat> format;  ///< without one the usual paper, lying as the preview was left
    std::string title;                  ///< what the document says of itself, "" for nothing
    std::string author;
    std::string subject;
    std::string keywords;
};

/// The printers.
class Printers {
 public:
    virtual ~Printers() = default;

    /// All names, the system's default first and `kPdfPrinter` last.
    virtual std::vector<std::string> Names() = 0;

    /// The paper that most documents are printed on: Letter where the system's printer or, without one, the country's
    /// measures say so, else A4.
    virtual Paper UsualPaper() = 0;

    /// A sheet as a document of this format gets it from the printer: of the paper that is in there if it has no such.
    virtual Sheet SheetOf(const std::string& printer, const SheetFormat& format) = 0;

    /// Begins a document. Nothing comes back when the printer refuses; the reason is then in `error`.
    virtual std::unique_ptr<PrintDocument> Begin(const DocumentSetup& setup, std::string& error) = 0;

    /// Shows what a document of this one page looks like on a printer.
    virtual void Preview(const std::string& printer, const PageFunction& draw) = 0;

    /// Makes the picture the content of `file`, in SVG or PDF if its name ends so and else in PNG. Returns "", or why
    /// that failed; a file that is there has then stayed as it was.
    virtual std::string SavePicture(const std::string& file, const PuzzlePicture& picture) = 0;
};

}  // namespace tidewalk
