#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QStringList>

#include "deals/BoardImport.h"
#include "deals_desktop/FillBox.h"
#include "deals_desktop/Page.h"

namespace deals_desktop {

// The boards of files, and what is made of them.
class DealsPage final : public Page {
public:
    explicit DealsPage(const std::string& program_folder);

    // Adds the boards of these files to the list.
    void open(const QStringList& files);
    void ask_for_files();
    void clear_list();
    // Asks about deals that were typed in and would be lost; `then` is done where none are, where they are saved, or
    // where the user says so by that word.
    void ask_about_typed(const QString& anyway, std::function<void()> then);
    // A deal is typed in, or the chosen one mended.
    void make_new();
    void change();
    // Writes what is ticked, or else chosen, into a file of PBN.
    void save_to_file();
    void save_to(const QString& file) {
        save(list().wanted(), file, [] {});
    }
    // Makes deals or lessons of what is ticked, or else chosen.
    void import();

private:
    void make_buttons();
    // `then` is done once they are written.
    void save(const std::vector<int>& entries, const QString& file, std::function<void()> then);
    void take_outcomes(const std::vector<int>& entries, const std::vector<bool>& outcomes);
    void fill(const exchange::Additions& additions);
    void entry_shown(const Entry* entry) override;

    FillBox fill_;
    QPushButton open_, new_, change_, import_;
    int made_ = 0;  // by the user
    QComboBox as_;
    QCheckBox finish_;
};

}  // namespace deals_desktop
