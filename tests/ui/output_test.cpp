// SPDX-License-Identifier: MIT
// What is drawn on pictures and pages, and how it leaves the program.
#include <sys/resource.h>

#include <QBuffer>
#include <QClipboard>
#include <QMimeData>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <csignal>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "board/print_pages.h"
#include "drawing/render_puzzle.h"
#include "support/board_text.h"
#include "ui/file_name.h"
#include "ui/finish_pdf.h"
#include "ui/paper.h"
#include "ui/picture.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

constexpr Colour kRed = Rgb(255, 0, 0);

/// A white picture of 40 by 40 logical pixels with what `draw` draws.
QImage Drawn(double ratio, const std::function<void(Surface&)>& draw) {
    QImage image(QSize(40, 40) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QtSurface surface(96, kTwipsPerPixel);
    surface.SetTarget(&image);
    surface.Clear(kWhite);
    draw(surface);
    surface.Finish();
    return image;
}

/// How many pixels of the row are red through and through, and how many are of any other colour but white.
std::pair<int, int> RedAndBlurred(const QImage& image, int row) {
    std::pair<int, int> count;
    for (int x = 0; x < image.width(); ++x) {
        const QColor colour = image.pixelColor(x, row);
        if (colour != QColor(Qt::white)) ++(colour == QColor(Qt::red) ? count.first : count.second);
    }
    return count;
}

QPDFObjectHandle PageOf(QPDF& file, std::size_t number) {
    return file.getAllPages().at(number);
}

QByteArray StreamText(QPDFObjectHandle stream) {
    const auto bytes = stream.getStreamData();
    return {reinterpret_cast<const char*>(bytes->getBuffer()), static_cast<qsizetype>(bytes->getSize())};
}

TEST(QtSurface, LinesFillWholePixelsAtEveryRatio) {
    for (const double ratio : {1.0, 1.25, 2.0, 3.0}) {
        for (const double at : {150.0, 154.0, 157.5, 161.0}) {
            for (const int width : {1, 2, 3}) {
                const QImage line = Drawn(ratio, [&](Surface& surface) {
                    surface.SetDrawWidth(width);
                    surface.Line(at, 30, at, 500, kRed);
                });
                EXPECT_EQ(RedAndBlurred(line, line.height() / 2), std::pair(qRound(width * ratio), 0))
                    << ratio << " " << width << " " << at;
            }
        }
    }
}

TEST(QtSurface, ShapesAreAsLargeAsTheyAreToBeWhereverTheyLie) {
    for (const double ratio : {1.0, 2.0}) {
        const QImage circle = Drawn(ratio, [](Surface& surface) { surface.Circle(300, 300, 150, kRed, kRed); });
        // The outermost pixels are a little lighter, since the edge is round.
        EXPECT_EQ(RedAndBlurred(circle, qRound(20 * ratio)), std::pair(qRound(20 * ratio) - 2, 2));
    }
    for (double x = 150; x < 165; ++x) {
        const QImage box = Drawn(1, [&](Surface& surface) { surface.FilledBox(x, 75, x + 187.5, 300, kRed); });
        EXPECT_EQ(RedAndBlurred(box, 12), std::pair(13, 0)) << x;
        const QImage neighbours = Drawn(1, [&](Surface& surface) {
            surface.Box(15, 15, x + 1, 500, kRed);
            surface.Box(x, 15, 500, 500, kRed);
        });
        EXPECT_EQ(RedAndBlurred(neighbours, 15), std::pair(3, 0)) << "a twip lies between their edges at " << x;
    }
    QtSurface nowhere(96, kTwipsPerPixel);
    nowhere.SetFontSize(10);
    EXPECT_NEAR(nowhere.TextExtent("8").height, 230, 30);
}

TEST(Picture, IsCutToWhatIsDrawnWithOneMarginAllRound) {
    const auto square = [](Surface& surface) {
        surface.FilledBox(900, 1500, 1500, 1800, kRed);
        return Surface::Area{900, 1500, 1500, 1800};
    };
    for (const double scale : {1.0, 2.0}) {
        const QImage picture = MakePicture(square, scale);
        constexpr double kMargin = 200 / 15.0;
        EXPECT_NEAR(picture.width(), (2 * kMargin + 40) * scale, 2);
        EXPECT_NEAR(picture.height(), (2 * kMargin + 20) * scale, 2);
        EXPECT_EQ(picture.pixelColor(QPoint(12, 12) * scale), QColor(Qt::white));
        EXPECT_EQ(picture.pixelColor(QPoint(15, 15) * scale), QColor(Qt::red));
        EXPECT_EQ(picture.devicePixelRatio(), 1) << "other programs are to see all of its pixels";
        EXPECT_NEAR(picture.dotsPerMeterX() * 0.0254, 96 * scale, 1);
    }
}

TEST(Picture, IsWrittenAsItsNameEnds) {
    const TempFolder folder;
    const PuzzlePicture picture = PictureOf(PuzzleFrom({"2=3-1"}), PictureRequest(RenderMode::Puzzle, "a title", 4));
    const auto write = [&](const std::string& name) {
        return WritePicture(FileNameText(folder.Path(name)), picture, 2).toStdString();
    };
    for (const char* const name : {"a.SVG", "a.pdf", "a.png", "a"})
        EXPECT_EQ(write(name), "");
    EXPECT_EQ(folder.Read("a.SVG"), picture.svg);
    const QSize size = MakePicture(picture.draw, 2).size();
    const QSize drawn = QSvgRenderer(QByteArray::fromStdString(picture.svg)).defaultSize() * 2;
    EXPECT_TRUE(qAbs(drawn.width() - size.width()) < 3 && qAbs(drawn.height() - size.height()) < 3) << "as large";
    EXPECT_EQ(QImage(FileNameText(folder.Path("a.png"))).size(), size);
    EXPECT_EQ(folder.Read("a"), folder.Read("a.png"));
    EXPECT_EQ(PagesOf("a.pdf"), 1);
    EXPECT_NE(folder.Read("a.pdf").find("MediaBox [0 0 24"), std::string::npos) << "the page is as large, too";
    EXPECT_EQ(write("none/a.svg"), "No such file or directory");
    EXPECT_EQ(write(""), "This is no ordinary file");
}

TEST(Picture, OfWhichOnlyAPartCouldBeWrittenReplacesNothing) {
    const TempFolder folder;
    const PuzzlePicture picture = PictureOf(PuzzleFrom({"2=3-1"}), PictureRequest(RenderMode::Puzzle, "a title", 4));
    // A limit is all of a full disk that a test can have.
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    for (const char* const name : {"a.svg", "a.pdf", "a.png"}) {
        const QString path = FileNameText(folder.Write(name, "old"));
        const rlimit limit{1024, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        const QString reason = WritePicture(path, picture, 1);
        setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_EQ(reason, "File too large") << name;
        EXPECT_EQ(folder.Read(name), "old");
    }
    std::signal(SIGXFSZ, handler);
}

TEST(Output, CopyReachesTheClipboardAndPasteTakesTextFromIt) {
    WindowGame window;
    window.Trigger("mnucopyclippuz");
    const QImage puzzle = QApplication::clipboard()->image();
    const double scale = window.form.devicePixelRatio();
    EXPECT_NEAR(puzzle.width(), (6252 + 360 + 10 - 400 + 2 * 200) / 15 * scale, 2 * scale);
    const QMimeData& copied = *QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied.text().count('\n'), 7) << "the rows of the puzzle";
    EXPECT_TRUE(QSvgRenderer(copied.data("image/svg+xml")).isValid());
    window.Trigger("mnucopyclipsol");
    EXPECT_NE(QApplication::clipboard()->image(), puzzle);
    QApplication::clipboard()->setText("2..2\n\xC3\xA9..1\n");
    window.Trigger("mnupastepuzzle");
    EXPECT_EQ(window.board.puzzle.Cols, 4);
    EXPECT_EQ(Get(window.form, "pb"), "Puzzle imported");
}

TEST(Output, PdfAppearsWithAllItsPagesAtItsEndOnly) {
    const TempFolder folder;
    DocumentSetup setup;
    setup.file = folder.Write("out.pdf", "old");
    std::string error;
    auto document = BeginPdf(setup, error);
    ASSERT_NE(document, nullptr);
    EXPECT_TRUE(document->NewPage()) << "the first page is empty, and a page all the same";
    document->Page().Line(100, 100, 200, 200, kBlack);
    EXPECT_TRUE(document->NewPage());
    EXPECT_EQ(folder.Read("out.pdf"), "old");
    EXPECT_TRUE(document->End());
    EXPECT_EQ(PagesOf("out.pdf"), 3);
    document = BeginPdf(setup, error);
    document->NewPage();
    document.reset();
    EXPECT_EQ(PagesOf("out.pdf"), 3) << "what was cancelled has replaced the file";
    setup.file = "/nowhere/at/all.pdf";
    EXPECT_EQ(BeginPdf(setup, error), nullptr);
    EXPECT_EQ(error.substr(0, 32), "/nowhere/at/all.pdf\nNo such file");
}

TEST(Output, PdfTellsItsPropertiesInAnyScript) {
    const TempFolder folder;
    DocumentSetup setup;
    setup.file = folder.Path("out.pdf");
    setup.title =
        "Br\xC3\xBC"
        "cken &\n<\xE6\xA9\x8B>";
    setup.author = "Zo\xC3\xAB";
    setup.subject = "Puzzles";
    setup.keywords = "bridges, islands";
    std::string error;
    ASSERT_TRUE(BeginPdf(setup, error)->End());
    QPDF file;
    file.processFile(setup.file.c_str());
    const auto property = [&](const char* key) { return file.getTrailer().getKey("/Info").getKey(key).getUTF8Value(); };
    const std::string title =
        "Br\xC3\xBC"
        "cken & <\xE6\xA9\x8B>";
    EXPECT_EQ(property("/Title") + property("/Author"), title + setup.author);
    EXPECT_EQ(property("/Subject") + property("/Keywords") + property("/Creator"), "Puzzlesbridges, islandsTidewalk");
    EXPECT_EQ(file.getRoot().getKey("/Lang").getUTF8Value(), "en");
    QXmlStreamReader xmp(StreamText(file.getRoot().getKey("/Metadata")));
    QString texts;
    while (!xmp.atEnd()) {
        if (xmp.readNext() == QXmlStreamReader::Characters && !xmp.isWhitespace()) texts += xmp.text().toString() + "|";
    }
    EXPECT_FALSE(xmp.hasError()) << xmp.errorString().toStdString();
    EXPECT_EQ(texts.toStdString().find(title + "|Zo\xC3\xAB|Puzzles|bridges, islands|Tidewalk|"), 0U)
        << texts.toStdString();
    QBuffer closed;
    const std::string whole = folder.Read("out.pdf");
    EXPECT_NE(FinishPdf(whole, {}, closed), "") << "it cannot be written there";
    closed.open(QIODevice::WriteOnly);
    EXPECT_EQ(FinishPdf(whole, {}, closed), "");
    EXPECT_NE(FinishPdf(QByteArrayView(whole).first(qsizetype(whole.size() / 2)), {}, closed), "") << "half a document";
}

TEST(Output, PdfSaysALookOnceAndDrawsInOrder) {
    const TempFolder folder;
    DocumentSetup setup;
    setup.file = folder.Path("out.pdf");
    std::string error;
    const auto document = BeginPdf(setup, error);
    Surface& page = document->Page();
    for (const double x : {100, 200, 300})
        page.Line(x, 100, x, 900, kRed);
    for (const double x : {1000, 2000, 2100})
        page.Circle(x, 1000, 200, kBlack, kWhite);
    page.Print(100, 2000, "AV", kBlack);
    page.Print(900, 2000, "\xD7\xA9\xD7\x9C", kBlack);
    EXPECT_TRUE(document->NewPage());
    page.Circle(1000, 1000, 200, kRed, kRed);
    EXPECT_TRUE(document->End());
    QPDF file;
    file.processFile(setup.file.c_str());
    const auto drawn = [&](std::size_t number) { return StreamText(PageOf(file, number).getKey("/Contents")); };
    const QByteArray first = drawn(0);
    EXPECT_EQ(first.count("\nS\n"), 5)
        << "the lines; two circles apart and one that lies upon them, each with its fill";
    EXPECT_EQ(first.count("Tj"), 4) << "all letters, those that run to the left as well";
    EXPECT_LT(first.indexOf("1 0 0 SCN"), first.indexOf("1 1 1 SCN"));
    EXPECT_LT(first.lastIndexOf("1 1 1 SCN"), first.indexOf("BT\n"));
    EXPECT_EQ(drawn(1).count("\nS\n"), 1) << "what one page waited with is not on the next";
}

TEST(Output, SheetsAreAsLargeAsDocumentsHaveThem) {
    WindowGame window;
    Printers& printers = window.game.printers;
    DocumentSetup setup;
    setup.printer = kPdfPrinter;
    setup.file = window.folder.Path("sheet.pdf");
    std::string error;
    for (const auto& [format, width, height] :
         {std::tuple(SheetFormat{Paper::A4, false}, 595, 842), std::tuple(SheetFormat{Paper::A5, true}, 595, 420),
          std::tuple(SheetFormat{Paper::Letter, true}, 792, 612)}) {
        const Sheet sheet = printers.SheetOf(setup.printer, format);
        EXPECT_EQ(std::pair(sheet.size.width, sheet.size.height), std::pair(width * 20.0, height * 20.0));
        setup.format = format;
        const auto document = printers.Begin(setup, error);
        const Surface::Area printable = document->PageSheet().printable;
        EXPECT_EQ(printable.right, sheet.printable.right);
        EXPECT_EQ(std::pair(printable.left, sheet.size.height - printable.bottom), std::pair(360.0, 360.0));
    }
}

TEST(Output, PuzzlesArePreviewedAndPrintedFromTheWindow) {
    WindowGame window;
    EXPECT_EQ(window.game.printers.Names().back(), kPdfPrinter);
    Surface::Area paper;
    window.Expect("PrintPreview", [&](QDialog& preview) {
        QCoreApplication::processEvents();
        // A4 or Letter, with a quarter of an inch free on each side.
        EXPECT_EQ(std::pair(paper.left, paper.top), std::pair(360.0, 360.0));
        Press(preview, "Landscape");
        QCoreApplication::processEvents();
        EXPECT_NEAR(paper.right, paper.bottom > 11700 ? 15480 : 16478, 2) << "it is drawn anew";
        window.Expect("Print Current Puzzle and its Solution?", Answer("Yes"));
        window.Expect("file: Print to a PDF file", Choose(window.folder.Path("wide.pdf")));
        window.Expect("Printed");
        Press(preview, "Print");
    });
    window.game.printers.Preview(std::string(kPdfPrinter), [&](Surface&, const Surface::Area& area) { paper = area; });
    QPDF wide;
    wide.processFile("wide.pdf");
    const auto sheet = PageOf(wide, 0).getKey("/MediaBox").getArrayAsRectangle();
    EXPECT_TRUE(sheet.urx == 842 || sheet.urx == 792) << sheet.urx;
    window.Expect("Form5", Answer("Command1"));
    window.Expect("file: Print to a PDF file", Choose(window.folder.Path("a.pdf")));
    window.Expect("Printed 1 puzzles from file:\r\n" + window.game.collection.CollectionPath);
    window.Trigger("control27");
    EXPECT_EQ(PagesOf("a.pdf"), 1);
    window.Expect("file: Save Picture As", [](QDialog& files) {
        EXPECT_EQ(Get(files, "fileNameEdit"), "collection-1-solution.png");
        files.reject();
    });
    window.Trigger("mnusavesolpicture");
}

}  // namespace
}  // namespace tidewalk::test
