// SPDX-License-Identifier: MIT
#include "support/doubles.h"

#include <algorithm>
#include <sstream>

namespace tidewalk::test {

namespace {

template <class... Parts>
std::string Join(const Parts&... parts) {
    std::ostringstream out;
    const char* blank = "";
    ((out << blank << parts, blank = " "), ...);
    return out.str();
}

const char* StyleOf(SystemButtons buttons) {
    return buttons == SystemButtons::Ok ? "system ok" : "system yesno";
}

}  // namespace

ExpectedPrompts::~ExpectedPrompts() {
    Verify();
}

void ExpectedPrompts::Verify() {
    for (const Expected& missing : expected_)
        ADD_FAILURE() << "never asked: " << missing.text;
    expected_.clear();
}

void ExpectedPrompts::Expect(std::string text, std::string style, int answer) {
    expected_.push_back({std::move(text), std::move(style), answer});
}

void ExpectedPrompts::ExpectSystemBox(std::string text, SystemButtons buttons, int answer) {
    expected_.push_back({std::move(text), StyleOf(buttons), answer});
}

int ExpectedPrompts::Show(const std::string& text, std::string_view style) {
    return Answer(text, std::string(style));
}

int ExpectedPrompts::SystemBox(const std::string& text, SystemButtons buttons) {
    return Answer(text, StyleOf(buttons));
}

int ExpectedPrompts::Answer(const std::string& text, const std::string& style) {
    if (answerToAll_) return *answerToAll_;
    if (expected_.empty()) {
        ADD_FAILURE() << "nobody expected: " << text << " (" << style << ")";
        return 0;
    }
    const Expected next = expected_.front();
    expected_.pop_front();
    EXPECT_EQ(text, next.text);
    EXPECT_EQ(style, next.style);
    return next.answer;
}

ExpectedFiles::~ExpectedFiles() {
    for (const std::string& path : answers_)
        ADD_FAILURE() << "nobody asked for a file: " << path;
}

std::string ExpectedFiles::Pick(const FileRequest& request) {
    requests.push_back(request);
    if (answers_.empty()) {
        ADD_FAILURE() << "nobody expected a question for a file: " << request.title;
        return "";
    }
    std::string path = answers_.front();
    answers_.pop_front();
    return path;
}

std::string WindowDouble::Text(Control control) const {
    const auto found = texts.find(control);
    return found == texts.end() ? "" : found->second;
}

void WindowDouble::SetText(Control control, const std::string& text) {
    texts[control] = text;
    if (control == Control::pb) statusTexts.push_back(text);
}

void WindowDouble::SetProgress(int done, int total) {
    progressDone = done;
    progressTotal = total;
}

void RecordingSurface::Clear(Colour background) {
    calls.push_back(Join("clear", background));
}

void RecordingSurface::Line(double x1, double y1, double x2, double y2, Colour colour) {
    calls.push_back(Join("line", x1, y1, x2, y2, colour));
}

void RecordingSurface::Box(double x1, double y1, double x2, double y2, Colour colour) {
    calls.push_back(Join("box", x1, y1, x2, y2, colour));
}

void RecordingSurface::FilledBox(double x1, double y1, double x2, double y2, Colour colour) {
    calls.push_back(Join("filledbox", x1, y1, x2, y2, colour));
}

void RecordingSurface::Circle(double x, double y, double radius, Colour outline, Colour fill) {
    calls.push_back(Join("circle", x, y, radius, outline, fill));
}

Surface::Extent RecordingSurface::TextExtent(const std::string& text) {
    constexpr double kTwipsPerPoint = 20;
    return {static_cast<double>(text.size()) * fontSize * kTwipsPerPoint / 2, fontSize * kTwipsPerPoint};
}

void RecordingSurface::Print(double x, double y, const std::string& text, Colour colour) {
    calls.push_back(Join("print", x, y, text, colour));
}

int RecordingSurface::Count(const std::string& kind) const {
    return static_cast<int>(std::count_if(calls.begin(), calls.end(), [&](const std::string& call) {
        return call.compare(0, kind.size() + 1, kind + " ") == 0;
    }));
}

bool ClipboardDouble::SetPicture(const DrawFunction& draw) {
    if (works) drawn = draw(picture);
    return works;
}

namespace {

class DocumentDouble final : public PrintDocument {
 public:
    explicit DocumentDouble(PrintersDouble& printers) : printers_(printers) { printers_.pages.emplace_back(); }

    Surface& Page() override { return printers_.pages.back(); }
    Surface::Area Printable() const override { return printers_.printable; }
    bool NewPage() override {
        if (static_cast<int>(printers_.pages.size()) + 1 == printers_.failAtPage) return false;
        printers_.pages.emplace_back();
        return true;
    }
    bool End() override { return printers_.printed = !printers_.failAtEnd; }
    std::string Error() const override { return "out of paper"; }

 private:
    PrintersDouble& printers_;
};

}  // namespace

std::unique_ptr<PrintDocument> PrintersDouble::Begin(const std::string& name, const std::string& path,
                                                     std::string& error) {
    printer = name;
    file = path;
    pages.clear();
    printed = false;
    error = beginError;
    if (!error.empty()) return nullptr;
    return std::make_unique<DocumentDouble>(*this);
}

void PrintersDouble::Preview(const std::string& name, const PageFunction& draw) {
    printer = name;
    pages.assign(1, {});
    draw(pages.front(), printable);
}

}  // namespace tidewalk::test
