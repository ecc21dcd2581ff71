// SPDX-License-Identifier: MIT
// A surface that writes down what is drawn on it.
#pragma once

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "drawing/surface.h"

namespace tidewalk::test {

/// Every call is a line of words: its name, its numbers, the text.
class RecordingSurface : public Surface {
 public:
    void Clear(Colour background) override { Note("clear", background); }
    void SetDrawWidth(int pixels) override { drawWidth = pixels; }
    void Line(double x1, double y1, double x2, double y2, Colour c) override { Note("line", x1, y1, x2, y2, c); }
    void Box(double x1, double y1, double x2, double y2, Colour c) override { Note("box", x1, y1, x2, y2, c); }
    void FilledBox(double x1, double y1, double x2, double y2, Colour c) override {
        Note("filledbox", x1, y1, x2, y2, c);
    }
    void Circle(double x, double y, double r, Colour outline, Colour fill) override {
        Note("circle", x, y, r, outline, fill);
    }
    void SetFontSize(double points) override { fontSize = points; }
    /// Every byte is half a font size wide and one high, at 20 twips a point.
    Extent TextExtent(const std::string& text) override {
        return {static_cast<double>(text.size()) * fontSize * 10, fontSize * 20};
    }
    void Print(double x, double y, const std::string& text, Colour c) override { Note("print", x, y, text, c); }

    /// The calls that begin with `kind`.
    std::vector<std::string> Calls(const std::string& kind) const {
        std::vector<std::string> found;
        std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                     [&](const std::string& call) { return call.rfind(kind + " ", 0) == 0; });
        return found;
    }
    int Count(const std::string& kind) const { return static_cast<int>(Calls(kind).size()); }

    std::vector<std::string> calls;
    int drawWidth = 0;
    double fontSize = 0;

 private:
    template <class... Parts>
    void Note(const char* kind, const Parts&... parts) {
        std::ostringstream text;
        text << kind;
        ((text << " " << parts), ...);
        calls.push_back(text.str());
    }
};

}  // namespace tidewalk::test
