#include "script/Names.h"

#include <array>
#include <cctype>
#include <charconv>

#include "base/Text.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/Windows.h"

namespace script {

namespace {

std::string part_property(const Target& target, const std::string& property) {
    if (const auto* grid = dynamic_cast<forms::FlexGrid*>(target.control)) {
        const forms::FlexGrid::Cell& cell = grid->cell(target.row, target.col);
        if (base::equal_ignoring_case(property, "Text")) return cell.text;
        if (base::equal_ignoring_case(property, "CellBackColor")) return forms::property_text(cell.colour);
    }
    if (const auto* list = dynamic_cast<forms::ListBox*>(target.control)) {
        if (base::equal_ignoring_case(property, "Text")) return list->List(target.row);
        if (base::equal_ignoring_case(property, "Selected")) return forms::property_text(list->Selected(target.row));
    }
    throw CommandError("no property " + property);
}

// Values that are no properties of their own.
bool derived_property(const forms::Control& control, const std::string& property, std::string& value) {
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
        if (base::equal_ignoring_case(property, "ListCount")) value = std::to_string(list->ListCount());
        if (base::equal_ignoring_case(property, "Text")) value = list->Text();
        return base::equal_ignoring_case(property, "ListCount") || base::equal_ignoring_case(property, "Text");
    }
    if (const auto* grid = dynamic_cast<const forms::FlexGrid*>(&control)) {
        if (!base::equal_ignoring_case(property, "Text")) return false;
        value = grid->Text();
        return true;
    }
    return false;
}

std::string shown_value(const forms::Control& control) {
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
        return std::to_string(list->ListCount()) + " lines, " + std::to_string(list->ListIndex());
    }
    std::string value;
    for (const char* name : {"Caption", "Text", "Picture", "Value", "Interval"}) {
        const forms::PropertyBase* property = control.find_property(name);
        if (property && !property->text().empty()) value += (value.empty() ? "" : " ") + escaped(property->text());
    }
    return value;
}

}  // namespace

int whole_number(const std::string& text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) throw CommandError("no number: " + text);
    return value;
}

double number(const std::string& text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) throw CommandError("no number: " + text);
    return value;
}

forms::Form& find_form(const forms::Windows& windows, const std::string& name) {
    forms::Form* form = windows.find(name);
    if (!form) throw CommandError("no screen " + name);
    return *form;
}

namespace {

// Takes a name apart from the left: words, and numbers in brackets.
class NameReader {
public:
    explicit NameReader(const std::string& name) : name_(name) {}

    bool at_end() const { return at_ == name_.size(); }
    bool follows(char sign) {
        const bool here = at_ < name_.size() && name_[at_] == sign;
        at_ += here ? 1 : 0;
        return here;
    }
    void expect(char sign) {
        if (!follows(sign)) fail();
    }
    std::string word() {
        return taken([](unsigned char c) { return std::isalnum(c) != 0 || c == '_'; });
    }
    int number() {
        return whole_number(taken([](unsigned char c) { return std::isdigit(c) != 0 || c == '-'; }));
    }
    [[noreturn]] void fail() const { throw CommandError("no name: " + name_); }

private:
    template <class Wanted>
    std::string taken(Wanted wanted) {
        const std::size_t from = at_;
        while (at_ < name_.size() && wanted(static_cast<unsigned char>(name_[at_])))
            ++at_;
        if (at_ == from) fail();
        return name_.substr(from, at_ - from);
    }

    const std::string& name_;
    std::size_t at_ = 0;
};

}  // namespace

Target find_target(const forms::Windows& windows, const std::string& name) {
    NameReader reader(name);
    Target target;
    const std::string form = reader.word();
    if (reader.at_end()) {
        target.form = &find_form(windows, form);
        return target;
    }
    reader.expect('.');
    const std::string control = reader.word();
    int index = forms::Control::kNoIndex;
    if (reader.follows('(')) {
        index = reader.number();
        reader.expect(')');
    }
    if (reader.follows('[')) {
        target.part = true;
        target.row = reader.number();
        if (reader.follows(',')) target.col = reader.number();
        reader.expect(']');
    }
    if (!reader.at_end()) reader.fail();
    target.form = &find_form(windows, form);
    target.control = target.form->find_control(control, index);
    if (!target.control) throw CommandError("no control " + name);
    return target;
}

std::string property_of(const forms::Windows& windows, const std::string& name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) throw CommandError("no property: " + name);
    const std::string property = name.substr(dot + 1);
    const Target target = find_target(windows, name.substr(0, dot));
    if (target.part) return part_property(target, property);
    std::string value;
    if (target.control && derived_property(*target.control, property, value)) return value;
    if (!target.control && base::equal_ignoring_case(property, "ActiveControl")) {
        return target.form->focus() ? target.form->focus()->name() : std::string();
    }
    const forms::PropertyOwner& owner =
        target.control ? static_cast<const forms::PropertyOwner&>(*target.control) : *target.form;
    const forms::PropertyBase* found = owner.find_property(property);
    if (!found) throw CommandError("no property " + property);
    return found->text();
}

std::string describe(const forms::Control& control) {
    std::string line = control.name();
    if (control.index() != forms::Control::kNoIndex) line += "(" + std::to_string(control.index()) + ")";
    line += std::string(" ") + control.kind() + (control.Visible ? " visible" : " hidden") +
            (control.Enabled ? " enabled" : " disabled");
    for (const double measure : {control.Left(), control.Top(), control.Width(), control.Height()}) {
        line += " " + forms::property_text(measure);
    }
    return line + " " + shown_value(control);
}

namespace {

constexpr std::array<std::pair<char, char>, 4> kEscapes{{{'\r', 'r'}, {'\n', 'n'}, {'\t', 't'}, {'\\', '\\'}}};

}  // namespace

std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        char letter = 0;
        for (const auto& [meant, written] : kEscapes) {
            if (meant == character) letter = written;
        }
        result += letter == 0 ? std::string(1, character) : std::string{'\\', letter};
    }
    return result;
}

std::string unescaped(const std::string& text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char character = text[at];
        if (character == '\\' && at + 1 < text.size()) {
            for (const auto& [meant, written] : kEscapes) {
                if (written == text[at + 1]) {
                    character = meant;
                    ++at;
                    break;
                }
            }
        }
        result += character;
    }
    return result;
}

}  // namespace script
