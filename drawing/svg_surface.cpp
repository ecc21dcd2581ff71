// SPDX-License-Identifier: MIT
#include "drawing/svg_surface.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "model/characters.h"

namespace tidewalk {

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr double kAscent = 0.905;       ///< of the font, in its sizes
constexpr double kLineHeight = 1.117;   ///< from the highest letter to the lowest
constexpr double kDigitMiddle = 0.355;  ///< of a digit, above the line that it stands on

/// How far the characters from blank to "~" reach, in thousandths of the font's size.
constexpr std::array<std::uint16_t, 95> kAdvances{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr int kWidestAdvance = 1000;

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// Tenths of a twip are less than any device shows. Written without the ways of a language or a locale.
std::string Number(double value) {
    const double tenths = std::round(value * 10) / 10;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), tenths == 0 ? 0 : tenths).ptr;
    return {digits.data(), end};
}

std::string Attribute(std::string_view name, double value) {
    return " " + std::string(name) + "=\"" + Number(value) + "\"";
}

std::string ColourText(Colour colour) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    bool isShort = true;
    for (const int channel : {RedOf(colour), GreenOf(colour), BlueOf(colour)}) {
        text += {kDigits[channel / 16], kDigits[channel % 16]};
        isShort = isShort && channel / 16 == channel % 16;
    }
    return isShort ? std::string{'#', text[1], text[3], text[5]} : text;
}

/// True for the bytes of a character that XML lets stand in a text.
bool IsXmlCharacter(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    if (bytes.size() == 1) return lead >= ' ' && lead < 0x7FU;
    std::uint32_t code = lead & (0x7FU >> bytes.size());
    for (const char byte : bytes.substr(1))
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    // The least of two, three and four bytes: what is written with more of them than it needs is no UTF-8. The control
    // characters that take two are as little wanted as those that take one.
    constexpr std::array<std::uint32_t, 3> kLeast{0xA0, 0x800, 0x10000};
    const bool isSurrogate = code >= 0xD800U && code <= 0xDFFFU;
    return code >= kLeast.at(bytes.size() - 2) && code <= 0x10FFFFU && !isSurrogate && (code & 0xFFFEU) != 0xFFFEU;
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    while (!text.empty()) {
        const std::string_view character = TakeCharacter(text);
        if (character == "&") {
            escaped += "&amp;";
        } else if (character == "<") {
            escaped += "&lt;";
        } else if (character == ">") {
            escaped += "&gt;";
        } else {
            escaped += IsXmlCharacter(character) ? character : kReplacement;
        }
    }
    return escaped;
}

std::string_view ClassOf(Kind kind) {
    constexpr std::array<std::string_view, 8> kClasses{"other",  "title",         "heading", "footer",
                                                       "bridge", "double-bridge", "island",  "number"};
    return kClasses.at(static_cast<std::size_t>(kind));
}

/// A name for the picture that follows from its content, so that the styles and titles of several in one web page stay
/// apart.
std::string NameOf(std::string_view content) {
    std::uint32_t hash = 0x811C9DC5U;
    for (const char byte : content)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x01000193U;
    constexpr int kHexadecimal = 16;
    std::array<char, kHexadecimal> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash, kHexadecimal).ptr;
    return "puzzle-" + std::string(digits.data(), end);
}

std::string Rectangle(double x1, double y1, double x2, double y2) {
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    return Attribute("x", left) + Attribute("y", top) + Attribute("width", right - left) +
           Attribute("height", bottom - top);
}

}  // namespace

std::string SvgSurface::Stroke(Colour colour) const {
    return "stroke:" + ColourText(colour) + ";stroke-width:" + Number(drawWidth_ * twipsPerPen_);
}

/// Says how the element looks only where it differs from the first of its kind.
void SvgSurface::Add(std::string_view element, std::string_view attributes, const std::string& look) {
    const std::string& usual = looks_.try_emplace(kind_, look).first->second;
    elements_.append("<").append(element).append(" class=\"").append(ClassOf(kind_)).append("\"").append(attributes);
    if (look != usual) elements_.append(" style=\"").append(look).append("\"");
}

void SvgSurface::Clear(Colour background) {
    elements_.clear();
    looks_.clear();
    paper_ = ColourText(background);
}

void SvgSurface::Line(double x1, double y1, double x2, double y2, Colour colour) {
    Add("line", Attribute("x1", x1) + Attribute("y1", y1) + Attribute("x2", x2) + Attribute("y2", y2), Stroke(colour));
    elements_ += "/>\n";
}

void SvgSurface::Box(double x1, double y1, double x2, double y2, Colour colour) {
    Add("rect", Rectangle(x1, y1, x2, y2), "fill:none;" + Stroke(colour));
    elements_ += "/>\n";
}

void SvgSurface::FilledBox(double x1, double y1, double x2, double y2, Colour colour) {
    Add("rect", Rectangle(x1, y1, x2, y2), "fill:" + ColourText(colour));
    elements_ += "/>\n";
}

void SvgSurface::Circle(double x, double y, double radius, Colour outline, Colour fill) {
    const std::string look = "fill:" + ColourText(fill) + (outline == fill ? "" : ";" + Stroke(outline));
    Add("circle", Attribute("cx", x) + Attribute("cy", y) + Attribute("r", radius), look);
    elements_ += "/>\n";
}

Surface::Extent SvgSurface::TextExtent(const std::string& text) {
    const double size = fontSize_ * kTwipsPerPoint;
    double thousandths = 0;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view character = TakeCharacter(rest);
        const auto place = static_cast<std::size_t>(static_cast<unsigned char>(character.front()) - ' ');
        thousandths += place < kAdvances.size() ? kAdvances.at(place) : kWidestAdvance;
    }
    return {thousandths / 1000 * size, kLineHeight * size};
}

void SvgSurface::AddText(double x, double baseline, const std::string& text, const std::string& look) {
    const std::string size = "font-size:" + Number(fontSize_ * kTwipsPerPoint) + "px";
    Add("text", Attribute("x", x) + Attribute("y", baseline), look + ";" + size);
    elements_.append(">").append(Escaped(text)).append("</text>\n");
}

void SvgSurface::Print(double x, double y, const std::string& text, Colour colour) {
    AddText(x, y + kAscent * fontSize_ * kTwipsPerPoint, text, "fill:" + ColourText(colour));
}

/// The middle across is left to whoever shows it. Renderers disagree about the middle from top to bottom, so the line
/// that the digits stand on is told.
void SvgSurface::PrintCentred(double x, double y, const std::string& text, Colour colour) {
    AddText(x, y + kDigitMiddle * fontSize_ * kTwipsPerPoint, text,
            "fill:" + ColourText(colour) + ";text-anchor:middle");
}

std::string SvgSurface::Document(const Area& frame, std::string_view title, std::string_view description) const {
    const double left = std::round(frame.left / kTwipsPerPixel);
    const double top = std::round(frame.top / kTwipsPerPixel);
    const double width = std::round(frame.right / kTwipsPerPixel) - left + 1;
    const double height = std::round(frame.bottom / kTwipsPerPixel) - top + 1;
    const Area whole{left * kTwipsPerPixel, top * kTwipsPerPixel, (left + width) * kTwipsPerPixel,
                     (top + height) * kTwipsPerPixel};
    const std::string name = NameOf(elements_ + std::string(title));
    // Some renderers take a list of fonts for the name of one that nobody has.
    std::string style = "#" + name + " text{font-family:Arial}\n";
    for (const auto& [kind, look] : looks_)
        style.append("#").append(name).append(" .").append(ClassOf(kind)).append("{").append(look).append("}\n");
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" id=\"" +
                       name + "\"" + Attribute("width", width) + Attribute("height", height) + " viewBox=\"" +
                       Number(whole.left) + " " + Number(whole.top) + " " + Number(whole.right - whole.left) + " " +
                       Number(whole.bottom - whole.top) + "\">\n";
    text += "<title>" + Escaped(title) + "</title>\n";
    text += "<desc>" + Escaped(description) + "</desc>\n";
    text += "<style type=\"text/css\">\n" + style + "</style>\n";
    if (!paper_.empty()) {
        text += "<rect class=\"paper\"" + Rectangle(whole.left, whole.top, whole.right, whole.bottom) + " fill=\"" +
                paper_ + "\"/>\n";
    }
    return text + elements_ + "</svg>\n";
}

}  // namespace tidewalk
