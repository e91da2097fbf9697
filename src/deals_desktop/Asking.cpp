#include "deals_desktop/Asking.h"

#include <QMessageBox>
#include <QPushButton>

#include "deals_desktop/Words.h"

namespace deals_desktop {

QString ask(QWidget* parent, const QString& question, const QStringList& answers) {
    QMessageBox box(QMessageBox::Question, words::kTitle, question, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    for (const QString& answer : answers) {
        QPushButton* const button =
            box.addButton(answer, answer == answers.last() ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
        if (answer == answers.last()) box.setEscapeButton(button);
    }
    box.exec();
    return box.clickedButton() ? box.clickedButton()->text() : answers.last();
}

}  // namespace deals_desktop
