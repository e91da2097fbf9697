#pragma once

#include <QTimer>

namespace desktop {

class QtHost;

// Renders the cards one by one while the program waits for the user, so that no card has to be drawn when it is turned.
class CardPreparer final : public QTimer {
public:
    explicit CardPreparer(QtHost& host);

private:
    void prepare_next();

    QtHost& host_;
    int next_;
};

}  // namespace desktop
