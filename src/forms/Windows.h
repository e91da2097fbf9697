#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/Geometry.h"

namespace forms {

class Form;
class Windows;

// Thrown to end the program. Nothing but the outermost dispatch catches it, and it is no std::exception, so that no
// statement after it runs.
struct EndOfProgram {};

// What the windows ask of the host that carries them.
class Host {
public:
    virtual ~Host() = default;
    // Twips. Of what the form can take on the display: a host may show forms at different sizes.
    virtual Size screen_size(const Form& form) const = 0;
    virtual void dispatch_ended(Windows&) {}  // draw what changed
    virtual void repaint(Form&) {}            // the same at once, in the middle of a routine
    virtual void closing(Form&) {}            // the object is about to be destroyed
    virtual void process_events(Windows&) {}  // let what waits in the window system's queue be handled
};

// The subfolders of a folder and the files in it, for the folder and file listers.
class FolderReader {
public:
    virtual ~FolderReader() = default;
    // Names in ascending order without regard to case. A folder that is not there is failure 76.
    virtual std::vector<std::string> subfolders(const std::string& folder) = 0;
    // Names of the files that are not hidden, in the same order; `pattern` is "*" or "*.ending".
    virtual std::vector<std::string> files(const std::string& folder, const std::string& pattern) = 0;
};

// The loaded forms, which of them are visible, their order, and the rule of events: a user event or a timer tick is
// one dispatch; at its end shows asked for become visible, the newly active form gets Form_Activate, unloaded forms
// are destroyed, and the host draws what changed.
class Windows {
public:
    Windows(Host& host, FolderReader& folders);
    ~Windows();

    // Runs one event to its end. Within a running dispatch it is part of that one.
    void dispatch(const std::function<void()>& event);
    bool dispatching() const { return depth_ > 0; }
    // True once the program has ended, by EndOfProgram or because no form is loaded any more.
    bool ended() const { return ended_; }

    // Takes the form over and runs its Form_Load at once.
    Form& load(std::unique_ptr<Form> form);
    // Puts it in front at the end of the dispatch.
    void show(Form& form);
    // At once; the next visible form becomes active at the end of the dispatch.
    void hide(Form& form);
    // Raises Form_QueryUnload first. The form is no longer among the loaded ones; its object lives to the end of the
    // dispatch. A form that is unloading already is left alone.
    void unload(Form& form);

    Form* find(const std::string& name) const;  // among the loaded forms; null if there is none
    bool show_pending(const Form& form) const;
    std::vector<Form*> loaded() const;                            // in the order of loading
    std::vector<Form*> in_front_order() const { return order_; }  // the front one first, hidden ones too
    Form* active() const { return active_; }
    // The user brings a visible form in front.
    void activate(Form& form);

    Host& host() { return host_; }
    FolderReader& folders() { return folders_; }

    // What F1 does, on every form; empty for nothing.
    std::function<void()> Help;

private:
    void settle();
    bool show_what_is_pending();
    bool activate_front();
    void bring_to_front(Form& form);

    Host& host_;
    FolderReader& folders_;
    std::vector<std::unique_ptr<Form>> forms_;
    std::vector<std::unique_ptr<Form>> unloaded_;
    std::vector<Form*> order_;
    std::vector<Form*> pending_;
    Form* active_ = nullptr;
    int depth_ = 0;
    bool started_ = false;
    bool ended_ = false;
};

}  // namespace forms
