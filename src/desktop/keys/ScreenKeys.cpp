#include "desktop/keys/ScreenKeys.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QScrollBar>
#include <string>

#include "desktop/FormWindow.h"
#include "desktop/keys/TypedCard.h"
#include "desktop/views/View.h"
#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/User.h"
#include "forms/VScrollBar.h"

namespace desktop::keys {

namespace {

template <class Kind>
Kind& named(const FormWindow& window, const char* name) {
    return dynamic_cast<Kind&>(window.form().control(name));
}

bool is_enter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

// Enter or a double click on a deal takes it to the table.
class MainKeys final : public ScreenKeys {
public:
    using ScreenKeys::ScreenKeys;

    bool pressed(const QKeyEvent& event, const forms::Control* at) override {
        if (!is_enter(event) || at != &list()) return false;
        line_opened(*at);
        return true;
    }
    void line_opened(const forms::Control& control) override {
        if (&control != &list() || list().ListIndex < 0) return;
        window_.act([this] { forms::user::click(window_.form().control("cmdTavrin")); });
    }

private:
    forms::ListBox& list() const { return named<forms::ListBox>(window_, "lstSpellen"); }
};

// Space goes on with the play, arrows change its speed, and long texts are turned over page by page. When the deal is
// over only the way back is left.
class TableKeys final : public ScreenKeys {
public:
    using ScreenKeys::ScreenKeys;

    bool pressed(const QKeyEvent& event, const forms::Control* at) override {
        switch (event.key()) {
            case Qt::Key_Space:
                if (dynamic_cast<const forms::CommandButton*>(at)) return false;
                if (!event.isAutoRepeat()) go_on();
                return true;
            case Qt::Key_Right:
            case Qt::Key_Up:
                step(window_, named<forms::VScrollBar>(window_, "vscrSnelHeid"), 1, event);
                return true;
            case Qt::Key_Left:
            case Qt::Key_Down:
                step(window_, named<forms::VScrollBar>(window_, "vscrSnelHeid"), -1, event);
                return true;
            case Qt::Key_PageUp:
                return turn_page(QAbstractSlider::SliderPageStepSub);
            case Qt::Key_PageDown:
                return turn_page(QAbstractSlider::SliderPageStepAdd);
            default:
                return false;
        }
    }
    const forms::Control* refuge() const override {
        const bool over = !button("cmdStart").Visible && !button("cmdVerder").Visible &&
                          !named<forms::Timer>(window_, "timSpeelKaart").running();
        return over ? &button("cmdTerug") : nullptr;
    }

private:
    forms::CommandButton& button(const char* name) const { return named<forms::CommandButton>(window_, name); }
    // Of the question or the text to a card, where it is longer than its box.
    bool turn_page(QAbstractSlider::SliderAction action) const {
        for (const char* name : {"txtVraag", "txtInformatie"}) {
            const forms::Control& box = window_.form().control(name);
            const views::View* shown = window_.view(box);
            auto* area =
                shown && box.visible_to_user() ? qobject_cast<QAbstractScrollArea*>(&shown->widget()) : nullptr;
            if (area) area->verticalScrollBar()->triggerAction(action);
        }
        return true;
    }
    void go_on() {
        forms::CommandButton& next = button(button("cmdVerder").Visible ? "cmdVerder" : "cmdStart");
        window_.act([&] { forms::user::click(next); });
    }
};

// Letters of suit and value play a card of the seat whose turn it is.
class PreparationKeys final : public ScreenKeys {
public:
    explicit PreparationKeys(FormWindow& window) : ScreenKeys(window) { clock_.start(); }

    bool pressed(const QKeyEvent& event, const forms::Control* at) override {
        const bool in_box = dynamic_cast<const forms::TextBox*>(at) || dynamic_cast<const forms::ListBox*>(at);
        if (in_box || event.isAutoRepeat() || event.text().size() != 1) return false;
        const auto card = typed_.take(event.text()[0], clock_.elapsed());
        if (!card) return false;
        if (forms::Control* label = in_hand(*card)) {
            window_.act([&] { forms::user::click(*label); });
        } else {
            QApplication::beep();
        }
        return true;
    }

private:
    // The card's label at the seat that is to play, if that seat still holds it: its ground is then white.
    forms::Control* in_hand(const TypedCard::Card& card) const {
        const std::string seat =
            word_of(named<forms::ListBox>(window_, "lstKlaar").Tag(), {"Noord", "Oost", "Zuid", "West"});
        const std::string suit = word_of({card.suit}, {"Schoppen", "Harten", "Ruiten", "Klaveren"});
        if (seat.empty()) return nullptr;
        for (int i = 0; forms::Control* control = window_.form().find_control("lbl" + suit + seat, i); ++i) {
            auto& label = dynamic_cast<forms::Label&>(*control);
            const bool held = label.Visible && label.BackColor == forms::kWindowColour;
            if (held && label.Caption() == std::string{card.value}) return control;
        }
        return nullptr;
    }
    // The word that begins with the letter; empty if there is none.
    static std::string word_of(const std::string& letter, std::initializer_list<const char*> words) {
        for (const std::string word : words) {
            if (word.substr(0, 1) == letter) return word;
        }
        return {};
    }

    TypedCard typed_;
    QElapsedTimer clock_;
};

// Who chose a card types its text next.
class EditorKeys final : public ScreenKeys {
public:
    using ScreenKeys::ScreenKeys;

    const forms::Control* goes_on_at() const override { return &window_.form().control("txtInformatie"); }
};

}  // namespace

std::unique_ptr<ScreenKeys> ScreenKeys::make(FormWindow& window) {
    const std::string& name = window.form().name();
    if (name == "frmTavrin01") return std::make_unique<MainKeys>(window);
    if (name == "frmTavrin02") return std::make_unique<TableKeys>(window);
    if (name == "frmTavrin03") return std::make_unique<PreparationKeys>(window);
    if (name == "frmTavrin05") return std::make_unique<EditorKeys>(window);
    return std::make_unique<ScreenKeys>(window);
}

void step(FormWindow& window, forms::VScrollBar& bar, int steps, const QKeyEvent& event) {
    const int value = bar.Value + steps;
    const bool leads_round = value <= bar.Min || value >= bar.Max;
    if (event.isAutoRepeat() && leads_round) return;
    window.act([&] { forms::user::scroll(bar, value); });
}

}  // namespace desktop::keys
