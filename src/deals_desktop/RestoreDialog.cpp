#include "deals_desktop/RestoreDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr QSize kSize(620, 420);

QString counted(int count, const QString& one, const QString& many) { return count == 1 ? one : many.arg(count); }

QString text_of(const deals::Difference& difference) {
    if (difference.gone) return words::kGone;
    QStringList parts;
    if (difference.play) parts.append(words::kOtherPlay);
    if (difference.texts_lost > 0) parts.append(counted(difference.texts_lost, words::kOneTextLost, words::kTextsLost));
    if (difference.texts_other > 0)
        parts.append(counted(difference.texts_other, words::kOneOtherText, words::kOtherTexts));
    return parts.isEmpty() ? words::kOtherFiles : parts.join(QStringLiteral(", "));
}

}  // namespace

RestoreDialog::RestoreDialog(QWidget* parent, const QString& file, std::vector<deals::Difference> differences)
    : QDialog(parent), differences_(std::move(differences)), beside_(words::kBeside), in_place_(words::kInPlace) {
    setWindowTitle(words::kRestoreTitle);
    auto* const layout = new QVBoxLayout(this);
    auto* const head = new QLabel(words::kDiffers.arg(file));
    head->setWordWrap(true);
    head->setTextFormat(Qt::PlainText);
    layout->addWidget(head);
    make_lines();
    layout->addWidget(&list_);
    beside_.setChecked(true);
    layout->addWidget(&beside_);
    layout->addWidget(&in_place_);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(words::kBringBack);
    buttons->button(QDialogButtonBox::Cancel)->setText(words::kCancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(kSize);
    list_.setFocus();
}

void RestoreDialog::make_lines() {
    list_.setAccessibleName(words::kRestoreTitle);
    list_.setHeaderLabels({words::kLessonTitle, words::kDifference});
    list_.setRootIsDecorated(false);
    list_.header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    for (const deals::Difference& difference : differences_) {
        const QString name = difference.name.empty() ? words::kWithoutNumber : QString::fromStdString(difference.name);
        auto* const line = new QTreeWidgetItem(&list_, {name, text_of(difference)});
        line->setCheckState(0, Qt::Unchecked);
    }
    if (list_.topLevelItemCount() > 0) list_.setCurrentItem(list_.topLevelItem(0));
}

void RestoreDialog::accept() {
    std::vector<deals::Difference> chosen;
    for (int line = 0; line < list_.topLevelItemCount(); ++line) {
        if (list_.topLevelItem(line)->checkState(0) == Qt::Checked)
            chosen.push_back(differences_[static_cast<std::size_t>(line)]);
    }
    QDialog::accept();
    if (!chosen.empty()) Wanted(chosen, in_place_.isChecked() ? deals::BringBack::InPlace : deals::BringBack::Beside);
}

}  // namespace deals_desktop
