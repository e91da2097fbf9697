#include "deals_desktop/Messages.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <iterator>

#include "deals_desktop/Reasons.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

Messages::Messages() {
    setModel(&lines_);
    setAccessibleName(words::kMessages);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* const copy_lines = new QAction(words::kCopy, this);
    copy_lines->setShortcut(QKeySequence::Copy);
    copy_lines->setShortcutContext(Qt::WidgetShortcut);
    connect(copy_lines, &QAction::triggered, this, [this] { copy(); });
    addAction(copy_lines);
}

void Messages::add(const QString& text) { add({Told{{}, text}}); }

void Messages::add(std::vector<Told> told) {
    if (told.empty()) return;
    lines_.add(std::move(told));
    scrollToBottom();
}

void Messages::copy() const {
    QModelIndexList chosen = selectionModel()->selectedIndexes();
    std::sort(chosen.begin(), chosen.end());
    QStringList texts;
    for (const QModelIndex& line : chosen)
        texts.append(line.data().toString());
    if (!texts.isEmpty()) QGuiApplication::clipboard()->setText(texts.join(QLatin1Char('\n')));
}

int Messages::Lines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(told_.size());
}

QVariant Messages::Lines::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
    const Told& told = told_[static_cast<std::size_t>(index.row())];
    QString text = told.around;
    if (!told.reason.empty()) {
        const QString reason = dutch(told.reason);
        text = text.isEmpty() ? reason : text.arg(reason);
    }
    return role == Qt::ToolTipRole ? text.toHtmlEscaped() : text;
}

void Messages::Lines::add(std::vector<Told> told) {
    const auto before = static_cast<int>(told_.size());
    beginInsertRows({}, before, before + static_cast<int>(told.size()) - 1);
    std::ranges::move(told, std::back_inserter(told_));
    endInsertRows();
}

}  // namespace deals_desktop
