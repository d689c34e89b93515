// Fields that give back exactly what they hold, and take no more than a file can store.
#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;

// The text with its lines ended by LF; nothing in it is replaced by a look-alike.
QString Plain_Text(const QPlainTextEdit& box);
// The field stops where "before" and its text would not fit into a text with a 16-bit count.
void Limit_ToStoredText(QLineEdit* field, const QString& before = {});
