#pragma once

#include <QDialog>
#include <QRadioButton>
#include <QTreeWidget>
#include <functional>

#include "deals/Safekeeping.h"

namespace deals_desktop {

// What differs between a saved file and the lessons there are, to be ticked and brought back.
class RestoreDialog final : public QDialog {
public:
    RestoreDialog(QWidget* parent, const QString& file, std::vector<deals::Difference> differences);

    std::function<void(const std::vector<deals::Difference>& chosen, deals::BringBack how)> Wanted;

private:
    void make_lines();
    void accept() override;

    const std::vector<deals::Difference> differences_;
    QTreeWidget list_;
    QRadioButton beside_, in_place_;
};

}  // namespace deals_desktop
