#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "base/Fout.h"
#include "forms/Control.h"

namespace forms {

// Controls of one kind and one name, told apart by a number. A number without a control is failure 340.
template <class T>
class ControlArray {
public:
    // Elements at given places.
    ControlArray(Container& container, std::string name, std::initializer_list<std::pair<int, Rect>> places)
        : container_(container), name_(std::move(name)) {
        for (const auto& [index, place] : places)
            add(index, place);
    }
    // Elements first to last, whose place a function tells from the number.
    ControlArray(Container& container, std::string name, int first, int last, const std::function<Rect(int)>& place_of)
        : container_(container), name_(std::move(name)) {
        for (int index = first; index <= last; ++index)
            add(index, place_of(index));
    }

    T& operator()(int index) const {
        const auto found = elements_.find(index);
        if (found == elements_.end()) {
            throw base::Fout(base::FoutNummer::NoSuchArrayElement, name_ + "(" + std::to_string(index) + ")");
        }
        return *found->second;
    }

    bool exists(int index) const { return elements_.contains(index); }
    int lowest() const { return elements_.begin()->first; }
    int highest() const { return elements_.rbegin()->first; }

    // Makes a new element: a hidden copy of the lowest one, in front of the others. An element that exists already
    // is left alone.
    T& Load(int index) {
        if (exists(index)) return (*this)(index);
        T& model = (*this)(lowest());
        T& made = add(index, Rect{});
        made.copy_properties(model);
        made.Visible = false;
        if (on_load_) on_load_(made);
        return made;
    }

    // Does the same with every element, those that Load makes later too.
    void each(std::function<void(T&)> action) {
        for (auto& [index, element] : elements_)
            action(*element);
        on_load_ = std::move(action);
    }

    auto begin() const { return elements_.begin(); }
    auto end() const { return elements_.end(); }

private:
    T& add(int index, const Rect& place) {
        return *elements_.emplace(index, std::make_unique<T>(container_, name_, place, index)).first->second;
    }

    Container& container_;
    std::string name_;
    std::map<int, std::unique_ptr<T>> elements_;
    std::function<void(T&)> on_load_;
};

}  // namespace forms
