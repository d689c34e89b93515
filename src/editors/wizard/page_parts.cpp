#include "editors/wizard/page_parts.h"

#include "controls/chk_box.h"
#include "controls/combo_box.h"
#include "controls/combo_name.h"
#include "controls/form.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/text_fields.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "platform/record_text.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace page_parts {

namespace {

constexpr int OptionHeight = 18;
constexpr int CalendarButtonWidth = 136;
constexpr ColorValue HintColor = 0x606060;
constexpr ColorValue MarkColor = 0xC0C0FF;

} // namespace

QLabel* Add_Text(QWidget* parent, const QString& text, int left, int top, int width,
                 TextLook look) {
    auto* label = new QLabel(text, parent);
    QFont font = Small_Font();
    font.setBold(look == TextLook::Heading);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    if (look == TextLook::Hint) {
        QPalette colors = Form_Palette();
        colors.setColor(QPalette::WindowText, palette::To_Color(HintColor));
        label->setPalette(colors);
    }
    label->move(left, top);
    if (width > 0) {
        label->setWordWrap(true);
        label->setFixedWidth(width);
        label->resize(width, std::max(SmallLineHeight, label->heightForWidth(width)));
    } else {
        label->adjustSize();
    }
    return label;
}

QLineEdit* Add_Field(QWidget* parent, const QString& name, const QString& spoken,
                     const QRect& place) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setAccessibleName(spoken);
    field->setFont(Small_Font());
    field->setGeometry(place);
    Limit_ToStoredText(field);
    return field;
}

MemoField* Add_Memo(QWidget* parent, const QString& name, const QString& spoken,
                    const QRect& place) {
    auto* memo = new MemoField(parent);
    memo->setObjectName(name);
    memo->setAccessibleName(spoken);
    memo->setFont(Small_Font());
    memo->setTabChangesFocus(true);
    memo->setGeometry(place);
    return memo;
}

QRadioButton* Add_Option(QWidget* parent, const QString& name, const QString& caption, int left,
                         int top) {
    auto* button = new QRadioButton(caption, parent);
    button->setObjectName(name);
    button->setFont(Small_Font());
    button->setGeometry(left, top, button->sizeHint().width(), OptionHeight);
    return button;
}

ChkBox* Add_Check(QWidget* parent, const QString& name, const QString& caption, int left, int top,
                  const std::function<void(bool on)>& ticked) {
    auto* box = new ChkBox(caption, left, top, parent);
    box->setObjectName(name);
    QObject::connect(box, &ChkBox::Checked, box, [ticked] { ticked(true); });
    QObject::connect(box, &ChkBox::Unchecked, box, [ticked] { ticked(false); });
    return box;
}

wbButton* Add_Button(QWidget* parent, const QString& name, const QString& caption,
                     const QRect& place) {
    auto* button = new wbButton(parent);
    button->setObjectName(name);
    button->setGeometry(place);
    button->Set_Caption(caption);
    return button;
}

wbButton* Add_CalendarButton(QWidget* parent, const QString& name, const QPoint& place) {
    wbButton* button = Add_Button(parent, name, u"Open calendar..."_s,
                                  {place, QSize(CalendarButtonWidth, ButtonHeight)});
    button->Set_Picture(Load_Icon(IconName::Calendar), QSize(16, 16));
    button->Set_ImageLEFT(5);
    button->Set_ImageTOP((ButtonHeight - 16) / 2);
    return button;
}

ComboBox* Add_CategoryBox(QWidget* parent, const QRect& place) {
    auto* box = new ComboBox(parent);
    box->setObjectName(u"Combo1"_s);
    box->setFont(Small_Font());
    box->setGeometry(place);
    box->setEditable(true);
    // Names are taken as they are typed.
    box->setCompleter(nullptr);
    box->setInsertPolicy(QComboBox::NoInsert);
    Name_Combo(box, u"Category"_s);
    Limit_ToStoredText(box->lineEdit());
    box->addItem(NoCategoryText);
    box->addItems(Category_Names());
    box->setEditText(NoCategoryText);
    return box;
}

void Allow_Only(QLineEdit* field, bool (*allowed)(QChar), const QString& word) {
    Limit_Field(
        field,
        [allowed](const QString& text) {
            return Fits_RecString(text) && std::all_of(text.begin(), text.end(), allowed);
        },
        word);
}

QString Memo_Text(const MemoField* memo) {
    return memo->Text().replace("\n"_L1, "\r\n"_L1);
}

void Set_MemoText(MemoField* memo, const QString& text) {
    memo->setPlainText(QString(text).replace("\r\n"_L1, "\n"_L1));
}

void Mark_Field(QLineEdit* field, bool marked) {
    QPalette colors = Form_Palette();
    if (marked)
        colors.setColor(QPalette::Base, palette::To_Color(MarkColor));
    field->setPalette(colors);
}

} // namespace page_parts
