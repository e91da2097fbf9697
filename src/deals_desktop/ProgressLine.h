#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>
#include <functional>

namespace deals_desktop {

// How far some work is, with a button that stops it; gone where there is none.
class ProgressLine final : public QWidget {
public:
    ProgressLine();

    // `all` is 0 where nobody knows.
    void tell(const QString& name, int done, int all);
    std::function<void()> Stopped;

private:
    QLabel text_;
    QProgressBar bar_;
    QPushButton stop_;
};

}  // namespace deals_desktop
