#pragma once

#include <vector>

#include "desktop/keys/Stop.h"

namespace desktop {
class FormWindow;
}

namespace desktop::keys {

// The labels and pictures on one container that can be clicked, such as the cards of a hand. The cursor goes from row
// to row and from column to column as they are seen.
class ClickGroup final : public Stop {
public:
    ClickGroup(FormWindow& window, const forms::Container& container) : window_(window), container_(container) {}

    // Whether the control belongs to a group: it can be clicked, and no key but those of a group reaches it.
    static bool takes(const forms::Control& control);

    bool usable() const override;
    bool move(int key) override;
    void click() override;
    QRect mark(const QWidget& canvas) override;
    QString spoken() override;

private:
    using Row = std::vector<forms::Control*>;
    std::vector<forms::Control*> cells() const;
    std::vector<Row> rows() const;
    // The control under the cursor; the first one if that has gone, null if there is none.
    forms::Control* current() const;

    FormWindow& window_;
    const forms::Container& container_;
    forms::Control* cursor_ = nullptr;
};

}  // namespace desktop::keys
