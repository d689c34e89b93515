#include "editors/list/misc_page.h"

#include "controls/combo_box.h"
#include "controls/combo_name.h"
#include "controls/metrics.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/page_labels.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {
enum TipNumber { Tip_Category = 25, Tip_Icon = 26 };
constexpr int TextLeft = 72;
constexpr int NoteWidth = 364;
} // namespace

MiscPage::MiscPage(QWidget* parent) : QWidget(parent) {
    setFont(Small_Font());
    QLabel* label = Add_Heading(u"Category:"_s, 8, 12, this);
    Combo1 = new ComboBox(this);
    Combo1->setEditable(true);
    // Names are taken as they are typed.
    Combo1->setCompleter(nullptr);
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    Limit_ToStoredText(Combo1->lineEdit());
    Combo1->setGeometry(TextLeft, 8, 220, 22);
    Name_Combo(Combo1, u"Category"_s, label);
    auto* wbButton11 = new wbButton(this);
    wbButton11->setGeometry(TextLeft + 226, 7, 72, 24);
    wbButton11->Set_Caption(u"Delete"_s);
    wbButton11->setAccessibleName(u"Delete category"_s);
    new TooltipPicture(Tip_Category, 444, 11, this);
    Add_Note(u"To add a new category, just insert the name, the category will be added "
             "automatically."_s,
             TextLeft, 40, NoteWidth, this);
    Add_Note(u"To delete a category, select it and press the delete button."_s, TextLeft, 72,
             NoteWidth, this);
    Add_Heading(u"Icon:"_s, 8, 104, this);
    new TooltipPicture(Tip_Icon, 444, 103, this);
    IconSelIMG = new IconPalette(this);
    IconSelIMG->move(TextLeft, 104);
    auto* wbButton12 = new wbButton(this);
    wbButton12->setGeometry(TextLeft, 300, 262, 24);
    wbButton12->Set_Caption(u"Use this icon for the selected category"_s);
    auto* wbButton13 = new wbButton(this);
    wbButton13->setGeometry(TextLeft + 268, 300, 98, 24);
    wbButton13->Set_Caption(u"No icon"_s);
    connect(Combo1, &QComboBox::textActivated, this, &MiscPage::Category_Chosen);
    connect(wbButton11, &wbButton::Click, this, &MiscPage::Delete_Category_Clicked);
    connect(wbButton12, &wbButton::Click, this, &MiscPage::Use_Icon_Clicked);
    connect(wbButton13, &wbButton::Click, this, &MiscPage::No_Icon_Clicked);
}

void MiscPage::Set_Categories(const QStringList& names) {
    const QString text = CategoryText();
    Combo1->clear();
    Combo1->addItems(names);
    Set_CategoryText(text);
}

QString MiscPage::CategoryText() const {
    return Combo1->currentText();
}

void MiscPage::Set_CategoryText(const QString& text) {
    // The arrow keys go on from the item that is shown.
    Combo1->setCurrentIndex(Combo1->findText(text, Qt::MatchFixedString));
    Combo1->setEditText(text);
}
