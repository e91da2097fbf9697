#include "forms/Property.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/Text.h"

namespace forms {

const PropertyBase* PropertyOwner::find_property(const std::string& name) const {
    for (const PropertyBase* property = first_property_; property; property = property->next_) {
        if (base::equal_ignoring_case(property->name(), name)) return property;
    }
    return nullptr;
}

void PropertyOwner::copy_properties(const PropertyOwner& other) {
    const PropertyBase* source = other.first_property_;
    for (PropertyBase* target = first_property_; target && source; target = target->next_, source = source->next_) {
        target->copy_from(*source);
    }
}

std::string property_text(bool value) { return value ? "true" : "false"; }
std::string property_text(int value) { return std::to_string(value); }
std::string property_text(const std::string& value) { return value; }

std::string property_text(double value) {
    std::array<char, 32> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    return error == std::errc() ? std::string(digits.data(), end) : std::to_string(value);
}

std::string property_text(base::Colour value) {
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%06X", value.value);
    return digits.data();
}

std::string property_text(const Picture& value) {
    if (!value.name.empty()) return value.name;
    return value.number == 0 ? std::string() : std::to_string(value.number);
}

}  // namespace forms
