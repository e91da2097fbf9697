#pragma once

#include <QTimer>

namespace desktop {

class QtHost;

// Renders the cards one by one once the first window stands, while the program waits for the user, so that no card has
// to be drawn when it is turned. Is made before that window.
class CardPreparer final : public QTimer {
public:
    explicit CardPreparer(QtHost& host);

private:
    void prepare_next();

    QtHost& host_;
    int next_;
};

}  // namespace desktop
