#include "forms/Windows.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "forms/Form.h"

namespace forms {

Windows::Windows(Host& host, FolderReader& folders) : host_(host), folders_(folders) {}
Windows::~Windows() = default;

void Windows::dispatch(const std::function<void()>& event) {
    if (ended_) return;
    if (depth_ > 0) {
        event();
        return;
    }
    ++depth_;
    try {
        event();
        settle();
    } catch (const EndOfProgram&) {
        ended_ = true;
    } catch (...) {
        --depth_;
        throw;
    }
    --depth_;
    for (const auto& form : unloaded_)
        host_.closing(*form);
    unloaded_.clear();
    if (started_ && forms_.empty()) ended_ = true;
    host_.dispatch_ended(*this);
}

Form& Windows::load(std::unique_ptr<Form> form) {
    Form& loaded = *form;
    started_ = true;
    forms_.push_back(std::move(form));
    order_.push_back(&loaded);
    loaded.Form_Load();
    return loaded;
}

void Windows::show(Form& form) {
    if (form.unloading() || show_pending(form)) return;
    pending_.push_back(&form);
}

void Windows::hide(Form& form) {
    std::erase(pending_, &form);
    form.Visible.store(false);
    if (active_ == &form) active_ = nullptr;
}

void Windows::unload(Form& form) {
    if (form.unloading_) return;
    form.unloading_ = true;
    form.Form_QueryUnload();
    hide(form);
    std::erase(order_, &form);
    const auto here = std::ranges::find_if(forms_, [&](const auto& owned) { return owned.get() == &form; });
    unloaded_.push_back(std::move(*here));
    forms_.erase(here);
}

Form* Windows::find(const std::string& name) const {
    const auto found =
        std::ranges::find_if(forms_, [&](const auto& form) { return base::equal_ignoring_case(form->name(), name); });
    return found == forms_.end() ? nullptr : found->get();
}

bool Windows::show_pending(const Form& form) const { return std::ranges::find(pending_, &form) != pending_.end(); }

std::vector<Form*> Windows::loaded() const {
    std::vector<Form*> all;
    for (const auto& form : forms_)
        all.push_back(form.get());
    return all;
}

void Windows::activate(Form& form) {
    if (!form.Visible()) return;
    bring_to_front(form);
    activate_front();
}

// Form_Activate may ask for further shows and unloads; they are carried out until nothing is left to do.
void Windows::settle() {
    while (show_what_is_pending() || activate_front()) {
    }
}

bool Windows::show_what_is_pending() {
    if (pending_.empty()) return false;
    std::vector<Form*> shows = std::exchange(pending_, {});
    std::stable_partition(shows.begin(), shows.end(), [](const Form* form) { return !form->is_report(); });
    for (Form* form : shows) {
        form->Visible.store(true);
        bring_to_front(*form);
    }
    return true;
}

bool Windows::activate_front() {
    const auto front = std::ranges::find_if(order_, [](const Form* form) { return form->Visible(); });
    Form* now = front == order_.end() ? nullptr : *front;
    if (now == active_) return false;
    active_ = now;
    if (now) {
        bring_to_front(*now);
        now->Form_Activate();
    }
    return true;
}

void Windows::bring_to_front(Form& form) {
    const auto here = std::ranges::find(order_, &form);
    std::rotate(order_.begin(), here, here + 1);
}

}  // namespace forms
