#pragma once

#include <filesystem>
#include <string>

#include "desktop/QtHost.h"
#include "desktop/QtPlatform.h"
#include "services/Programma.h"

namespace bench {

// The real program in real windows, on a folder of its own that goes with it.
class Stage {
public:
    // The sample deals, and as many further copies of a package and of a companion's deal.
    Stage(const std::string& samples, int packages, int companion_deals);
    ~Stage();

    // Lets the windows be drawn: returns when the active form's window was painted and nothing waits to be.
    void paint();
    // Milliseconds from the start of the action until it is painted.
    double painted(const std::function<void()>& action);

    forms::Form& form(const std::string& name);
    template <class Kind>
    Kind& control(const std::string& form_name, const std::string& name, int index = -1) {
        return dynamic_cast<Kind&>(form(form_name).control(name, index));
    }
    void click(const std::string& form_name, const std::string& name, int index = -1);
    // Chooses the line of a list that has this text.
    void choose(const std::string& form_name, const std::string& list, const std::string& text);

    const std::filesystem::path& folder() const { return folder_; }

private:
    std::filesystem::path folder_;

public:
    desktop::QtHost host;
    desktop::QtPlatform platform;
    Programma programma;
};

}  // namespace bench
