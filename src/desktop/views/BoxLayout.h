#pragma once

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QTextFormat>
#include <map>
#include <string_view>
#include <vector>

#include "forms/Label.h"

namespace desktop::views {

// Lays out the text of a box in exactly the lines in which the core breaks it, whatever font the machine has: each word
// takes the room that the core counts for it.
class BoxLayout final : public QAbstractTextDocumentLayout {
public:
    struct Measures {
        double box_width = 0;  // twips, as the core knows it
        double points = 0;
        double zoom = 1;
        double left = 0;   // logical pixels left free before the text
        double right = 0;  // and behind it, beside the margin that the core counts: the letters move together for it
        QFont font;
        forms::Alignment alignment = forms::Alignment::Left;

        friend bool operator==(const Measures&, const Measures&) = default;
    };

    explicit BoxLayout(QTextDocument* document) : QAbstractTextDocumentLayout(document) {}

    // Lays out anew if the measures are others than before.
    void set_measures(const Measures& measures);
    double line_height() const;

    void draw(QPainter* painter, const PaintContext& context) override;
    int hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override { return size_; }
    QRectF frameBoundingRect(QTextFrame*) const override { return {QPointF(), size_}; }
    QRectF blockBoundingRect(const QTextBlock& block) const override;

protected:
    void documentChanged(int from, int removed, int added) override;

private:
    // A block as it was laid out last.
    struct Laid {
        QString text;
        double height = 0;
    };
    double text_width() const;
    double zoom_across() const;  // at which a line takes that width
    // The height of the block.
    double lay_out(const QTextBlock& block) const;
    // Letters so far apart, or together, that the word gets its room.
    const QTextCharFormat& format_of(std::string_view word) const;
    // How much more room the core counts for the character than it takes, logical pixels.
    double spare_of(char character) const;

    Measures measures_;
    mutable std::map<char, double> spares_;            // of the characters that were asked for
    mutable std::map<long, QTextCharFormat> formats_;  // by the distance of their letters in kSteps of a pixel
    std::vector<Laid> laid_;
    QSizeF size_;
};

}  // namespace desktop::views
