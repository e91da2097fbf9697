#pragma once

namespace base {

// A mode that has a value as long as this lives, however its scope ends; then it is again what it was.
template <class Mode, class Value>
class Zolang {
public:
    Zolang(Mode& mode, const Value& value) : mode_(mode), before_(mode) { mode_ = value; }
    ~Zolang() { mode_ = before_; }
    Zolang(const Zolang&) = delete;
    Zolang& operator=(const Zolang&) = delete;

private:
    Mode& mode_;
    const Value before_;
};

}  // namespace base
