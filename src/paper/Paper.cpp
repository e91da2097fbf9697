#include "paper/Paper.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <QTextDocument>
#include <QTextFrame>
#include <stdexcept>

#include "page/Page.h"
#include "paper/Sheet.h"

namespace paper {

namespace {

constexpr double kPoints = 9.5;
constexpr double kPointsInInch = 72;
constexpr double kMargin = 2 / 2.54;  // inches
constexpr double kAboveNumber = 5;    // points, between the text and the number of the page
constexpr const char* kStyle =
    "th { text-align: left } h2 { margin: 0 0 8px 0 } h3 { margin: 18px 0 4px 0 } p { margin: 6px 0 }";

// Pages of rich texts, one behind the other, with their numbers.
class Pages {
public:
    explicit Pages(QPagedPaintDevice& device) : device_(device) {
        if (!painter_.begin(&device)) fail();
        font_.setFamilies({QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
        font_.setPointSizeF(kPoints);
    }

    void add(const std::string& html) {
        QTextDocument document;
        document.setDefaultFont(font_);
        document.setDefaultStyleSheet(QString::fromLatin1(kStyle));
        document.setHtml(QString::fromStdString(html));
        document.documentLayout()->setPaintDevice(&device_);
        QTextFrameFormat frame = document.rootFrame()->frameFormat();
        // The layout takes measures of a format for those of a screen, and scales them to its device.
        frame.setMargin(kMargin * qRound(QGuiApplication::primaryScreen()->logicalDotsPerInchY()));
        document.rootFrame()->setFrameFormat(frame);
        const QSizeF size(device_.width(), device_.height());
        document.setPageSize(size);
        for (int page = 0; page < document.pageCount(); ++page) {
            if (number_++ > 0 && !device_.newPage()) fail();
            draw(document, QRectF({0, page * size.height()}, size));
        }
    }

private:
    [[noreturn]] static void fail() { throw std::runtime_error("the printer failed"); }

    void draw(const QTextDocument& document, const QRectF& page) {
        painter_.save();
        painter_.translate(-page.topLeft());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = page;
        context.palette.setColor(QPalette::Text, Qt::black);
        painter_.setClipRect(page);
        document.documentLayout()->draw(&painter_, context);
        painter_.restore();
        painter_.setFont(font_);
        const QFontMetricsF metrics(font_, &device_);
        const QString number = QString::number(number_);
        const double margin = kMargin * device_.logicalDpiY();
        painter_.drawText(
            QPointF(page.width() - margin - metrics.horizontalAdvance(number),
                    page.height() - margin + metrics.ascent() + kAboveNumber * device_.logicalDpiY() / kPointsInInch),
            number);
    }

    QPagedPaintDevice& device_;
    QPainter painter_;
    QFont font_;
    int number_ = 0;  // of the page
};

}  // namespace

void print(const std::vector<exchange::Lesson>& lessons, QPagedPaintDevice& device, const Options& options) {
    Pages pages(device);
    for (std::size_t done = 0; done < lessons.size(); ++done) {
        if (options.between) options.between(done);
        const exchange::Lesson& lesson = lessons[done];
        const auto costly =
            options.mark_costly ? exchange::best_play(lesson.board).costly : std::vector<exchange::CostlyCard>();
        pages.add(sheet_of(lesson, costly));
    }
}

std::string pdf(const std::vector<exchange::Lesson>& lessons, const Options& options, const QPageSize& size) {
    QBuffer bytes;
    bytes.open(QBuffer::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageSize(size);
    writer.setPageMargins(QMarginsF());
    writer.setCreator(QStringLiteral("Zandolin Lomert"));
    writer.setTitle(QString::fromStdString(page::title_of(lessons)));
    print(lessons, writer, options);
    return bytes.data().toStdString();
}

}  // namespace paper
