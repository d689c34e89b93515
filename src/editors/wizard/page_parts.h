// The controls that the pages of the wizard and the quick dialog are made of, in one look.
// Rectangles are pixels of the parent.
#pragma once

#include <QRect>
#include <QString>

#include <functional>

class ChkBox;
class ComboBox;
class MemoField;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;
class wbButton;

namespace page_parts {

enum class TextLook { Plain, Heading, Hint };

constexpr int FieldHeight = 21;
constexpr int ButtonHeight = 24;

// width 0: as wide as the text.
QLabel* Add_Text(QWidget* parent, const QString& text, int left, int top, int width = 0,
                 TextLook look = TextLook::Plain);
QLineEdit* Add_Field(QWidget* parent, const QString& name, const QString& spoken,
                     const QRect& place);
MemoField* Add_Memo(QWidget* parent, const QString& name, const QString& spoken,
                    const QRect& place);
QRadioButton* Add_Option(QWidget* parent, const QString& name, const QString& caption, int left,
                         int top);
// ticked: told of every click.
ChkBox* Add_Check(QWidget* parent, const QString& name, const QString& caption, int left, int top,
                  const std::function<void(bool on)>& ticked);
wbButton* Add_Button(QWidget* parent, const QString& name, const QString& caption,
                     const QRect& place);
// With a small picture of a calendar.
wbButton* Add_CalendarButton(QWidget* parent, const QString& name, const QPoint& place);
// "--" and the categories up to the first empty name.
ComboBox* Add_CategoryBox(QWidget* parent, const QRect& place);

// Lets the field take only characters that "allowed" takes; what it takes instead is said by word.
void Allow_Only(QLineEdit* field, bool (*allowed)(QChar), const QString& word);
// The text of a memo as it is stored, with CR LF; and the way back.
QString Memo_Text(const MemoField* memo);
void Set_MemoText(MemoField* memo, const QString& text);
// A red ground for a field at fault.
void Mark_Field(QLineEdit* field, bool marked);

} // namespace page_parts
