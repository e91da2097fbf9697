#include "page/Page.h"

#include "page/Article.h"
#include "page/Cards.h"
#include "page/Html.h"
#include "page/Player.h"
#include "page/Words.h"
#include "page_parts.inc"

namespace page {

namespace {

using exchange::Lesson;

std::string id_of(std::size_t lesson) { return "les-" + std::to_string(lesson + 1); }

std::string meta(std::string_view name, std::string_view content) {
    return "<meta" + attribute("name", name) + attribute("content", content) + ">\n";
}

// The page's own script and styles are all that a browser may run or load.
std::string policy() {
    const auto source = [](std::string_view hash) { return " 'sha256-" + std::string(hash) + "'"; };
    return "<meta" + attribute("http-equiv", "Content-Security-Policy") +
           attribute("content", "default-src 'none'; base-uri 'none'; form-action 'none'; script-src" +
                                    source(kScriptHash) + "; style-src" + source(kStyleHash)) +
           ">\n";
}

std::string head(const std::vector<Lesson>& lessons) {
    return element("head", "\n<meta charset=\"utf-8\">\n" + policy() +
                               meta("viewport", "width=device-width, initial-scale=1") +
                               element("title", escaped(title_of(lessons))) + "\n" + element("style", kStyle) + "\n");
}

std::string list(const std::vector<Lesson>& lessons) {
    std::string items;
    for (std::size_t i = 0; i < lessons.size(); ++i) {
        items += element("li", element("a",
                                       element("b", escaped(title_of(lessons[i]))) + " " +
                                           element("span", markup(*lessons[i].board.contract)),
                                       attribute("href", "#" + id_of(i)))) +
                 "\n";
    }
    return element("nav", element("h1", words::kLessons) + element("ol", items), attribute("id", "lessen")) + "\n";
}

}  // namespace

std::string refusal(const Lesson& lesson) {
    if (!lesson.problems.empty()) return lesson.problems.front();
    const exchange::Board& board = lesson.board;
    if (!lesson.has_play() || !board.deal || !board.contract || !board.play || !board.play->complete())
        return "no whole play";
    return {};
}

std::string title_of(const std::vector<Lesson>& lessons) {
    return lessons.size() == 1 ? title_of(lessons.front()) : words::kLessons;
}

// The cards, by far the largest part, come last: a browser shows the lesson while it still reads them.
std::string html(const std::vector<Lesson>& lessons, const std::function<void(std::size_t done)>& between) {
    const bool booklet = lessons.size() > 1;
    std::string articles;
    for (std::size_t i = 0; i < lessons.size(); ++i) {
        if (between) between(i);
        articles += article(lessons[i], id_of(i), booklet);
    }
    return "<!DOCTYPE html>\n" +
           element(
               "html",
               "\n" + head(lessons) + "\n" +
                   element("body", "\n" + element("main", (booklet ? list(lessons) : "") + articles) + "\n" + player() +
                                       "\n" + element("script", kScript) + "\n" + card_symbols() + "\n") +
                   "\n",
               attribute("lang", "nl")) +
           "\n";
}

}  // namespace page
