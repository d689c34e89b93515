// The controls that pages are made of, in one look. Places are pixels of the parent.
#pragma once

#include "controls/icons.h"

#include <QRect>
#include <QString>

class MemoField;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;
class wbButton;

enum class TextLook { Plain, Heading, Hint };

// width 0: as wide as the text; else in as many lines as it takes.
QLabel* Add_Text(QWidget* parent, const QString& text, int left, int top,
                 TextLook look = TextLook::Plain, int width = 0);
// spoken: the name for a screen reader. The field holds no more than a record can.
QLineEdit* Add_Field(QWidget* parent, const QString& spoken, const QRect& place);
MemoField* Add_Memo(QWidget* parent, const QString& spoken, const QRect& place);
QRadioButton* Add_Option(QWidget* parent, const QString& caption, int left, int top);
// Without a name of its own a screen reader says the caption.
wbButton* Add_Button(QWidget* parent, const QString& caption, const QRect& place,
                     const QString& spoken = {});
// A small picture at the left of the button, pixels from its edge.
void Add_Picture(wbButton* button, IconName icon, int left);
