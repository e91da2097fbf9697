#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace deals_desktop {

// Asks by a box with a button for each of these words, the last of which is meant by Escape too; the word chosen.
QString ask(QWidget* parent, const QString& question, const QStringList& answers);

}  // namespace deals_desktop
