#include "page/Player.h"

#include "exchange/DealWords.h"
#include "page/Html.h"
#include "page/Words.h"

namespace page {

namespace {

std::string of_class(std::string_view name) { return attribute("class", name); }

std::string button(const char* name, const char* sign, const char* label) {
    return element(
        "button", sign,
        attribute("type", "button") + of_class(name) + attribute("aria-label", label) + attribute("title", label));
}

std::string main_button() {
    return element("button", words::kStart,
                   attribute("type", "button") + of_class("main") + attribute("data-start", words::kStart) +
                       attribute("data-pause", words::kPause) + attribute("data-on", words::kGoOn) +
                       attribute("data-again", words::kAgain));
}

std::string bar() {
    const std::string speed = element("output", "", of_class("speed") + attribute("data-unit", words::kSeconds));
    return element("div",
                   button("back", "‹", words::kBack) + main_button() + button("forward", "›", words::kForward) +
                       button("slower", "−", words::kSlower) + speed + button("faster", "+", words::kFaster),
                   of_class("bar") + attribute("role", "group") + attribute("aria-label", words::kControls));
}

std::string score() {
    const auto side = [](const char* name, const char* of) {
        return element("span", std::string(name) + ": " + element("b", "0", of_class(of)));
    };
    return element("p",
                   std::string(words::kTricks) + " " + side(words::kNorthSouth, "north-south") + " " +
                       side(words::kEastWest, "east-west"),
                   of_class("score"));
}

// What is told aloud beside the text: the card that was played, who won the trick, and the hands that are open.
std::string told() {
    return element("p", "",
                   of_class("told spoken") + attribute("role", "status") + attribute("data-plays", words::kPlays) +
                       attribute("data-side-0", std::string(words::kTrickFor) + " " + words::kNorthSouth) +
                       attribute("data-side-1", std::string(words::kTrickFor) + " " + words::kEastWest)) +
           element("ul", "", of_class("open spoken") + attribute("aria-label", words::kHands));
}

std::string felt() {
    return element("svg", "",
                   of_class("felt") + attribute("aria-hidden", "true") + attribute("data-declarer", words::kDeclarer) +
                       attribute("data-dummy", words::kDummy));
}

}  // namespace

std::string player() {
    return element("template",
                   score() + element("div", felt(), of_class("stage")) + told() +
                       element("p", "", of_class("note words") + attribute("aria-live", "polite")) + bar(),
                   attribute("id", "player"));
}

}  // namespace page
