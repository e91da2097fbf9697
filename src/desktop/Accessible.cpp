#include "desktop/Accessible.h"

#include <QAccessibleWidget>

#include "desktop/views/ButtonViews.h"
#include "desktop/views/Surface.h"

namespace desktop {

namespace {

class AccessibleSurface final : public QAccessibleWidget {
public:
    explicit AccessibleSurface(views::Surface& surface) : QAccessibleWidget(&surface), surface_(surface) {}

    QAccessible::Role role() const override { return is_ground() ? QAccessible::Pane : surface_.accessible_role(); }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (surface_.accessibleName().isEmpty() && !is_ground()) state.invisible = true;
        return state;
    }
    QStringList actionNames() const override { return surface_.Clicked ? QStringList{pressAction()} : QStringList(); }
    void doAction(const QString& name) override {
        if (name == pressAction() && surface_.Clicked) surface_.Clicked();
    }

private:
    // Others stand on it.
    bool is_ground() const { return childCount() > 0; }

    const views::Surface& surface_;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    if (auto* surface = dynamic_cast<views::Surface*>(object)) return new AccessibleSurface(*surface);
    auto* sink = dynamic_cast<views::FocusSink*>(object);
    return sink ? new QAccessibleWidget(sink, QAccessible::Pane) : nullptr;
}

}  // namespace

void describe_widgets() { QAccessible::installFactory(&describe); }

}  // namespace desktop
