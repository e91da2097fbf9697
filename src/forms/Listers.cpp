#include "base/Fout.h"
#include "forms/DirListBox.h"
#include "forms/FileListBox.h"
#include "forms/Form.h"
#include "forms/Windows.h"

namespace forms {

namespace {

const std::string& entry(const std::vector<std::string>& entries, int index) {
    if (index < 0 || index >= static_cast<int>(entries.size())) {
        throw base::Fout(base::FoutNummer::SubscriptOutOfRange, std::to_string(index));
    }
    return entries[static_cast<std::size_t>(index)];
}

}  // namespace

const std::string& DirListBox::List(int index) const { return entry(folders_, index); }
const std::string& FileListBox::List(int index) const { return entry(files_, index); }

void DirListBox::read(const std::string& path) {
    folders_ = form().windows().folders().subfolders(path);
    Path.store(path);
}

void FileListBox::read(const std::string& path) {
    files_ = form().windows().folders().files(path, Pattern());
    Path.store(path);
}

}  // namespace forms
