#pragma once

#include <filesystem>
#include <string>

#include "desktop/CardPreparer.h"
#include "desktop/QtHost.h"
#include "desktop/system/QtPlatform.h"
#include "services/Programma.h"

namespace bench {

// What a program folder holds beside the sample deals: packages, with their files or as empty folders, which a list
// tells no different, and empty folders of companion deals.
struct FolderContents {
    int packages = 0;
    int empty_packages = 0;
    int empty_deals = 0;
};

// Makes a program folder in the system's temporary folder.
std::filesystem::path make_program_folder(const std::string& samples, const FolderContents& contents);

// The real program in real windows, on a folder that goes with it.
class Stage {
public:
    explicit Stage(const std::filesystem::path& folder);
    ~Stage();

    // Waits until the cards are rendered that the program prepares while a user looks at the main screen.
    void let_cards_be_prepared();
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
    desktop::system::QtPlatform platform;
    services::Programma programma;
    desktop::CardPreparer preparer{host};
};

}  // namespace bench
