#pragma once

#include <string>
#include <vector>

#include "forms/Control.h"

namespace forms {

// Lists the files of a folder, without the hidden ones. It is never shown.
class FileListBox final : public Control {
public:
    FileListBox(Container& container, std::string name, const Rect& place = {})
        : Control(container, std::move(name), place) {
        Visible = false;
    }
    const char* kind() const override { return "FileListBox"; }

    // "*" or "*.ending". It applies from the next reading on.
    Property<std::string> Pattern{*this, "Pattern", "*"};
    // Reads the folder at once. One that is not there is failure 76 and leaves the lister as it was.
    ActiveProperty<std::string> Path{*this, "Path", "", [this](const std::string& path) { read(path); }};
    void Refresh() { read(Path()); }

    int ListCount() const { return static_cast<int>(files_.size()); }
    // Name of a file, from 0 on, in ascending order without regard to case; another number is failure 9.
    const std::string& List(int index) const;

private:
    void read(const std::string& path);
    std::vector<std::string> files_;
};

}  // namespace forms
