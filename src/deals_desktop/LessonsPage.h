#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QStringList>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "deals/Safekeeping.h"
#include "deals_desktop/Page.h"

class QPrinter;

namespace deals_desktop {

// The lessons that there are: looked at, checked, and written for other programs.
class LessonsPage final : public Page {
public:
    explicit LessonsPage(const std::string& program_folder);

    // Reads them anew; what is ticked and chosen stays so.
    void refresh();
    // Asks for a file, and writes what is ticked or chosen into it.
    void export_to_file();
    // The same without asking. The name's ending tells the format.
    void export_to(const QString& file);
    // Asks for a printer, and prints what is ticked or chosen as hand-outs.
    void print();
    // The same without asking.
    void print_on(const std::shared_ptr<QPrinter>& printer);

    // Writes all of them into one file.
    void save_all();
    void save_all_in(const QString& file);
    // Shows what differs between such a file and the lessons, so that it can be brought back.
    void restore();
    void restore_from(const QString& file);
    // Keeps the day's copy, where something has changed.
    void keep_copy();

private:
    void ask_what_to_restore(const QString& name, const std::vector<deals::Difference>& found);
    void bring_back(const std::vector<deals::Difference>& lessons, deals::BringBack how);
    // The folders of what is ticked or chosen.
    std::vector<std::string> wanted_folders();
    // Tells "3 lessen in lessen.pbn geschreven", from the thread of the work.
    void tell_written(std::size_t lessons, const QString& name, Work::Course& course);
    // What is known of the lessons that were read before, by their folders.
    using Known = std::map<std::string, Entry>;
    void take(std::vector<Entry> entries, const Known& known);

    QPushButton refresh_, save_, restore_, print_, export_;
    QCheckBox mark_costly_;  // on paper
};

}  // namespace deals_desktop
