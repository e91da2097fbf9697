#pragma once

#include <QObject>
#include <functional>

namespace desktop::keys {

// Sees all that the user does with mouse and keys, whatever widget gets it. Needs a QApplication.
class InputWatch final : public QObject {
public:
    InputWatch();

    // Whether the user worked with a key last, not with the mouse.
    bool by_key() const { return by_key_; }

    std::function<void()> Changed;
    // A button of the mouse went down on a widget.
    std::function<void(const QWidget& widget)> Pressed;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void set_by_key(bool by_key);

    bool by_key_ = false;
};

}  // namespace desktop::keys
