#include "desktop/views/ListWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/Text.h"

namespace desktop::views {

int LineModel::rowCount(const QModelIndex& parent) const { return parent.isValid() || !list_ ? 0 : list_->ListCount(); }

QVariant LineModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || index.row() >= rowCount()) return {};
    return to_qt(list_->List(index.row()));
}

void LineModel::renew(const forms::ListBox* list) {
    beginResetModel();
    list_ = list;
    endResetModel();
}

ListWidget::ListWidget(const forms::ListBox& list, QWidget* parent) : QListView(parent) {
    setModel(new LineModel(&list, this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(MultiSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setTabKeyNavigation(false);
}

void ListWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    pressed_twice_ = false;
}

void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    pressed_twice_ = pressed_;
}

void ListWidget::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = pressed_ && event->button() == Qt::LeftButton && viewport()->rect().contains(event->pos());
    pressed_ = false;
    const QModelIndex line = indexAt(event->pos());
    if (!clicked || !line.isValid()) return;
    if (Chosen) Chosen(line.row());
    if (pressed_twice_ && Opened) Opened();
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
    const int line = line_for(*event);
    if (line < 0) {
        event->ignore();
        return;
    }
    if (many_ && event->key() != Qt::Key_Space) {
        selectionModel()->setCurrentIndex(model()->index(line, 0), QItemSelectionModel::NoUpdate);
    } else if (many_ || line != chosen_) {
        if (Chosen) Chosen(line);
    }
}

int ListWidget::line_for(const QKeyEvent& event) const {
    const int last = model()->rowCount() - 1;
    const int current = from();
    const int page = std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)) - 1);
    if (last < 0) return -1;
    const auto within = [&](int line) { return std::clamp(line, 0, last); };
    switch (event.key()) {
        case Qt::Key_Up:
            return within(current - 1);
        case Qt::Key_Down:
            return within(current + 1);
        case Qt::Key_PageUp:
            return within(current - page);
        case Qt::Key_PageDown:
            return within(current + page);
        case Qt::Key_Home:
            return 0;
        case Qt::Key_End:
            return last;
        case Qt::Key_Space:
            return many_ || current >= 0 ? current : std::max(0, currentIndex().row());
        default:
            break;
    }
    const bool plain = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    return plain && !event.text().isEmpty() && event.text()[0].isPrint() ? next_line_with(event.text()) : -1;
}

int ListWidget::next_line_with(const QString& letter) const {
    const int count = model()->rowCount();
    for (int step = 1; step <= count; ++step) {
        const int line = (from() + step) % count;
        if (model()->index(line, 0).data().toString().startsWith(letter, Qt::CaseInsensitive)) return line;
    }
    return -1;
}

}  // namespace desktop::views
