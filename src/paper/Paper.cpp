#include "paper/Paper.h"

#include <QFont>
#include <QTextDocument>

#include "paper/Sheet.h"

namespace paper {

namespace {

constexpr double kPoints = 9.5;
constexpr const char* kStyle =
    "th { text-align: left } h2 { margin: 0 0 8px 0 } h3 { margin: 18px 0 4px 0 } p { margin: 6px 0 }";

}  // namespace

void print(const std::vector<exchange::Lesson>& lessons, QPagedPaintDevice& device, const Options& options) {
    std::string text;
    for (const exchange::Lesson& lesson : lessons) {
        const auto costly =
            options.mark_costly ? exchange::best_play(lesson.board).costly : std::vector<exchange::CostlyCard>();
        text += sheet_of(lesson, costly, text.empty() ? Sheet::First : Sheet::Next);
    }
    QFont font;
    font.setFamilies({QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(kPoints);
    QTextDocument document;
    document.setDefaultFont(font);
    document.setDefaultStyleSheet(QString::fromLatin1(kStyle));
    document.setHtml(QString::fromStdString(text));
    document.print(&device);
}

}  // namespace paper
