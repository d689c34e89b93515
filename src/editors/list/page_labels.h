// The texts on the pages, in the small font.
#pragma once

#include <QLabel>

QLabel* Add_Text(const QString& text, int left, int top, QWidget* parent);
// Bold, above a group of fields.
QLabel* Add_Heading(const QString& text, int left, int top, QWidget* parent);
// Several lines within a width, pixels.
QLabel* Add_Note(const QString& text, int left, int top, int width, QWidget* parent);
