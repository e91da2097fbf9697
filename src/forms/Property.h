#pragma once

#include <functional>
#include <string>
#include <utility>

#include "base/Colour.h"
#include "forms/Picture.h"

namespace forms {

class PropertyBase;

// What has properties: a control or a form. It is told when one of them changes.
class PropertyOwner {
public:
    PropertyOwner() = default;
    PropertyOwner(const PropertyOwner&) = delete;
    PropertyOwner& operator=(const PropertyOwner&) = delete;
    virtual ~PropertyOwner() = default;

    virtual void changed() = 0;

    // The property of that name, without regard to case; null if there is none.
    const PropertyBase* find_property(const std::string& name) const;

    // Takes over the value of every property from an object of the same class, without events.
    void copy_properties(const PropertyOwner& other);

private:
    friend class PropertyBase;
    PropertyBase* first_property_ = nullptr;
};

class PropertyBase {
public:
    PropertyBase(PropertyOwner& owner, const char* name)
        : owner_(owner), name_(name), next_(std::exchange(owner.first_property_, this)) {}
    PropertyBase(const PropertyBase&) = delete;
    virtual ~PropertyBase() = default;

    const char* name() const { return name_; }

    // The value as text: true or false, 0xBBGGRR, a number without superfluous fraction, a picture's number or name.
    virtual std::string text() const = 0;

protected:
    PropertyOwner& owner() { return owner_; }

private:
    friend class PropertyOwner;
    virtual void copy_from(const PropertyBase& other) = 0;

    PropertyOwner& owner_;
    const char* name_;
    PropertyBase* next_;
};

std::string property_text(bool value);
std::string property_text(int value);
std::string property_text(double value);
std::string property_text(base::Colour value);
std::string property_text(const std::string& value);
std::string property_text(const Picture& value);

// A value that marks its owner as changed when another one is assigned.
template <class T>
class Property : public PropertyBase {
public:
    Property(PropertyOwner& owner, const char* name, T initial = {})
        : PropertyBase(owner, name), value_(std::move(initial)) {}

    Property& operator=(const T& value) {
        store(value);
        return *this;
    }
    Property& operator=(const Property& other) { return *this = other.value_; }

    operator const T&() const { return value_; }
    const T& operator()() const { return value_; }
    friend bool operator==(const Property& property, const T& value) { return property.value_ == value; }

    std::string text() const override { return property_text(value_); }

    // True if the value is another one than before.
    bool store(const T& value) {
        if (value_ == value) return false;
        value_ = value;
        owner().changed();
        return true;
    }

private:
    void copy_from(const PropertyBase& other) override { store(static_cast<const Property&>(other).value_); }

    T value_;
};

// A property whose assignment does more than store: its owner's routine decides, and stores with `store`.
template <class T>
class ActiveProperty : public Property<T> {
public:
    ActiveProperty(PropertyOwner& owner, const char* name, T initial, std::function<void(const T&)> assign)
        : Property<T>(owner, name, std::move(initial)), assign_(std::move(assign)) {}

    ActiveProperty& operator=(const T& value) {
        assign_(value);
        return *this;
    }
    ActiveProperty& operator=(const Property<T>& other) { return *this = other(); }
    ActiveProperty& operator=(const ActiveProperty& other) { return *this = other(); }

private:
    std::function<void(const T&)> assign_;
};

}  // namespace forms
