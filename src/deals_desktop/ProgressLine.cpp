#include "deals_desktop/ProgressLine.h"

#include <QHBoxLayout>

#include "deals_desktop/Words.h"

namespace deals_desktop {

ProgressLine::ProgressLine() : stop_(words::kStop) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&text_);
    layout->addWidget(&bar_, 1);
    layout->addWidget(&stop_);
    text_.setTextFormat(Qt::PlainText);
    bar_.setTextVisible(false);
    connect(&stop_, &QPushButton::clicked, this, [this] { Stopped(); });
    hide();
}

void ProgressLine::tell(const QString& name, int done, int all) {
    const QString text = all > 0 ? words::kOfSo.arg(name).arg(done).arg(all) : name;
    text_.setText(text);
    bar_.setAccessibleName(name);
    stop_.setAccessibleName(words::kStop + QStringLiteral(": ") + name);
    bar_.setRange(0, all);
    bar_.setValue(done);
    show();
}

}  // namespace deals_desktop
