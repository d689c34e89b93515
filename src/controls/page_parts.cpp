#include "controls/page_parts.h"

#include "controls/form.h"
#include "controls/metrics.h"
#include "controls/text_fields.h"
#include "controls/wb_button.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr int OptionHeight = 18;
constexpr QSize PictureSize(16, 16);
constexpr ColorValue HintColor = 0x606060;

} // namespace

QLabel* Add_Text(QWidget* parent, const QString& text, int left, int top, TextLook look,
                 int width) {
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

QLineEdit* Add_Field(QWidget* parent, const QString& spoken, const QRect& place) {
    auto* field = new QLineEdit(parent);
    field->setAccessibleName(spoken);
    field->setFont(Small_Font());
    field->setGeometry(place);
    Limit_ToStoredText(field);
    return field;
}

MemoField* Add_Memo(QWidget* parent, const QString& spoken, const QRect& place) {
    auto* memo = new MemoField(parent);
    memo->setAccessibleName(spoken);
    memo->setFont(Small_Font());
    memo->setTabChangesFocus(true);
    memo->setGeometry(place);
    return memo;
}

QRadioButton* Add_Option(QWidget* parent, const QString& caption, int left, int top) {
    auto* button = new QRadioButton(caption, parent);
    button->setFont(Small_Font());
    button->setGeometry(left, top, button->sizeHint().width(), OptionHeight);
    return button;
}

wbButton* Add_Button(QWidget* parent, const QString& caption, const QRect& place,
                     const QString& spoken) {
    auto* button = new wbButton(parent);
    button->setGeometry(place);
    button->Set_Caption(caption);
    if (!spoken.isEmpty())
        button->setAccessibleName(spoken);
    return button;
}

void Add_Picture(wbButton* button, IconName icon, int left) {
    button->Set_Picture(Load_Icon(icon), PictureSize);
    button->Set_ImageLEFT(left);
    button->Set_ImageTOP((button->height() - PictureSize.height()) / 2);
}
