#pragma once

#include <QMainWindow>
#include <QTabWidget>

#include "deals_desktop/DealsPage.h"
#include "deals_desktop/LessonsPage.h"
#include "deals_desktop/TextSize.h"

namespace deals_desktop {

// The window: its pages, its menus, and the files that are dropped on it.
class Window final : public QMainWindow {
public:
    // `program_folder` is Windows-1252.
    explicit Window(const std::string& program_folder);
    ~Window() override;

    DealsPage& deals() { return deals_; }
    LessonsPage& lessons() { return lessons_; }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // Asks about deals that were typed in.
    void closeEvent(QCloseEvent* event) override;

private:
    void make_menus();
    void make_view_menu();
    void make_sort_menu(QMenu& menu);
    void take_size(TextSize::Step step);
    Page& page();
    // The user sees what becomes of what he asks for.
    DealsPage& shown_deals();
    LessonsPage& shown_lessons();

    TextSize text_size_;
    bool leaves_ = false;  // nothing is asked any more
    QTabWidget pages_;     // goes behind what stands in it
    DealsPage deals_;
    LessonsPage lessons_;
};

}  // namespace deals_desktop
