#include "desktop/views/ListView.h"

#include <QItemSelectionModel>

#include "desktop/FormWindow.h"
#include "desktop/views/ListWidget.h"
#include "forms/User.h"

namespace desktop::views {

ListView::ListView(FormWindow& window, forms::ListBox& list, QWidget* parent)
    : View(window, list, new ListWidget(list, parent)),
      list_(list),
      widget_(static_cast<ListWidget&>(widget())),
      model_(static_cast<LineModel*>(widget_.model())) {
    widget_.Chosen = [this](int line) { user_did([this, line] { forms::user::select(list_, line); }); };
    widget_.Opened = [this] {
        if (!this->window().retired()) this->window().keyboard().line_opened(list_);
    };
}

void ListView::retire() { model_->renew(nullptr); }

void ListView::show_state() {
    QPalette colours = widget_.palette();
    if (colours.color(QPalette::Base) != colour(list_.BackColor)) {
        colours.setColor(QPalette::Base, colour(list_.BackColor));
        widget_.setPalette(colours);
    }
    widget_.set_many(list_.MultiSelect);
    if (shown_version_ != list_.lines_version()) {
        shown_version_ = list_.lines_version();
        shown_index_ = -1;
        model_->renew(&list_);
    }
    show_selection();
}

void ListView::show_selection() {
    QItemSelectionModel& selection = *widget_.selectionModel();
    const int index = list_.ListIndex;
    widget_.set_chosen(index);
    const QModelIndex current = index < 0 ? QModelIndex() : model_->index(index, 0);
    if (widget_.currentIndex() != current) selection.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (list_.MultiSelect) {
        QItemSelection selected;
        // Lines that follow each other are one range: the model gets slow with many.
        for (int line = 0; line < list_.ListCount(); ++line) {
            if (!list_.Selected(line)) continue;
            const int first = line;
            while (line + 1 < list_.ListCount() && list_.Selected(line + 1))
                ++line;
            selected.select(model_->index(first, 0), model_->index(line, 0));
        }
        selection.select(selected, QItemSelectionModel::ClearAndSelect);
    } else if (current.isValid()) {
        selection.select(current, QItemSelectionModel::ClearAndSelect);
    } else {
        selection.clearSelection();
    }
    if (index >= 0 && index != shown_index_) widget_.scrollTo(current);
    shown_index_ = index;
}

}  // namespace desktop::views
