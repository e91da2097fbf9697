#include "deals_desktop/ContractBox.h"

#include <QHBoxLayout>
#include <QStringList>

#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr int kLevels = 7;
constexpr int kStrains = 5;

// The first line of a box stands for nothing chosen.
int chosen_in(const QComboBox& box) { return box.currentIndex() - 1; }

// Begins with what is typed to choose it: "Harten" with its symbol, or "SA".
QString name_of(exchange::Strain strain) {
    const QString symbol = dutch_text(strain);
    return exchange::trump_of(strain) ? spoken(strain) + QLatin1Char(' ') + symbol : symbol;
}

void choose(QComboBox& box, int line) { box.setCurrentIndex(line + 1); }

}  // namespace

ContractBox::ContractBox() {
    for (QComboBox* const box : {&level_, &strain_, &declarer_})
        box->addItem(words::kNotChosen);
    for (int level = 1; level <= kLevels; ++level)
        level_.addItem(QString::number(level));
    for (int strain = 0; strain < kStrains; ++strain)
        strain_.addItem(name_of(static_cast<exchange::Strain>(strain)));
    for (const QString& doubling : words::kDoublings)
        doubling_.addItem(doubling);
    for (const exchange::Seat seat : exchange::kSeats)
        declarer_.addItem(dutch_word(seat));
    level_.setAccessibleName(words::kLevelSpoken);
    strain_.setAccessibleName(words::kStrainSpoken);
    doubling_.setAccessibleName(words::kDoublingSpoken);
    declarer_.setAccessibleName(words::kDeclarerSpoken);

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    auto* const by = new QLabel(words::kFillBy);
    by->setBuddy(&declarer_);
    for (QWidget* const part : std::initializer_list<QWidget*>{&level_, &strain_, &doubling_, by, &declarer_})
        row->addWidget(part);
    problem_.setTextFormat(Qt::PlainText);
    row->addWidget(&problem_, 1);
    setFocusPolicy(Qt::StrongFocus);  // so that a label leads here
    setFocusProxy(&level_);
    for (QComboBox* const box : {&level_, &strain_, &doubling_, &declarer_})
        connect(box, &QComboBox::activated, this, [this] {
            problem_.setText(problem());
            level_.setAccessibleDescription(problem());
            Changed();
        });
}

std::optional<exchange::Contract> ContractBox::contract() const {
    const int level = chosen_in(level_);
    const int strain = chosen_in(strain_);
    const int declarer = chosen_in(declarer_);
    if (level < 0 || strain < 0 || declarer < 0) return std::nullopt;
    return exchange::Contract{{level + 1, static_cast<exchange::Strain>(strain)},
                              static_cast<exchange::Doubling>(doubling_.currentIndex()),
                              static_cast<exchange::Seat>(declarer)};
}

void ContractBox::set_contract(const std::optional<exchange::Contract>& contract) {
    choose(level_, contract ? contract->bid.level - 1 : -1);
    choose(strain_, contract ? static_cast<int>(contract->bid.strain) : -1);
    choose(declarer_, contract ? index_of(contract->declarer) : -1);
    doubling_.setCurrentIndex(contract ? static_cast<int>(contract->doubling) : 0);
    problem_.clear();
    level_.setAccessibleDescription({});
}

QString ContractBox::problem() const {
    QStringList lacking;
    if (chosen_in(level_) < 0) lacking.append(words::kLevelLacks);
    if (chosen_in(strain_) < 0) lacking.append(words::kStrainLacks);
    if (chosen_in(declarer_) < 0) lacking.append(words::kDeclarerLacks);
    const bool begun = lacking.size() < 3 || doubling_.currentIndex() > 0;
    return begun && !lacking.isEmpty() ? words::kContractLacks.arg(lacking.join(QStringLiteral(", "))) : QString();
}

}  // namespace deals_desktop
