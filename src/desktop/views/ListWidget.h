#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <functional>

#include "forms/ListBox.h"

namespace desktop::views {

// Reads the lines straight from the list of the core, so that a long list is never copied.
class LineModel final : public QAbstractListModel {
public:
    LineModel(const forms::ListBox* list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // The lines became others; the list may be gone: null.
    void renew(const forms::ListBox* list);

private:
    const forms::ListBox* list_;
};

// Shows lines and the selection that it is told; what the user asks for it only reports.
class ListWidget final : public QListView {
public:
    ListWidget(const forms::ListBox& list, QWidget* parent);

    std::function<void(int line)> Chosen;
    // A line was clicked twice, and chosen by that.
    std::function<void()> Opened;
    // With several selected lines the arrow keys move a mark without choosing.
    void set_many(bool many) { many_ = many; }
    // The line that is chosen, -1 for none. Qt's own current line tells less: it moves to the first with the focus.
    void set_chosen(int line) { chosen_ = line; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The line that a key leads to; -1 for a key that means nothing here.
    int line_for(const QKeyEvent& event) const;
    int next_line_with(const QString& letter) const;

    int from() const { return many_ ? currentIndex().row() : chosen_; }

    bool many_ = false;
    int chosen_ = -1;
    bool pressed_ = false;
    bool pressed_twice_ = false;
};

}  // namespace desktop::views
