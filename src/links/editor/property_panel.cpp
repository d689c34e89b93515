#include "links/editor/property_panel.h"

#include "controls/metrics.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "links/editor/link_operations.h"
#include "platform/record_text.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int PanelWidth = 260;
constexpr int FieldHeight = 22;
constexpr int FieldBelow = 18; // its heading
constexpr int ButtonWidth = 28;
constexpr int OptionWidth = 86;
constexpr int TipTitle = 54;
constexpr int TipPath = 55;
constexpr int TipDescription = 56;
constexpr int TipSize = 57;

// A byte of a file may say anything.
std::size_t Shown_Size(const LinkRec& row) {
    return row.StartSize <= 2 ? row.StartSize : 0;
}

} // namespace

PropertyPanel::PropertyPanel(QWidget* parent) : QWidget(parent) {
    titleField = Add_Field(u"Title:"_s, 0, PanelWidth, TipTitle, Before::Nothing);
    pathField = Add_Field(u"Path:"_s, 50, PanelWidth - ButtonWidth - 4, TipPath, Before::Depth);
    wbButton1 = new wbButton(this);
    wbButton1->Set_Caption(u"..."_s);
    wbButton1->Set_ToolTipTextLabel(u"Choose a file"_s);
    wbButton1->setAccessibleName(u"Choose a file"_s);
    wbButton1->setGeometry(PanelWidth - ButtonWidth, 50 + FieldBelow, ButtonWidth, FieldHeight);
    hint = new QLabel(u"Can be a path to a local file (document) or a Url"_s, this);
    hint->setFont(Small_Font());
    hint->setWordWrap(true);
    hint->setGeometry(0, 92, PanelWidth, hint->heightForWidth(PanelWidth));
    const int below = std::max(hint->geometry().bottom() + 4, 116);
    descriptionField =
        Add_Field(u"Description:"_s, below, PanelWidth, TipDescription, Before::Nothing);
    Add_Sizes(below + 50);
    resize(PanelWidth, below + 92);
    connect(wbButton1, &wbButton::Click, this, &PropertyPanel::Browse);
    Show_Row(nullptr);
}

QLabel* PropertyPanel::Add_Heading(const QString& text, int top, int tip) {
    auto* label = new QLabel(text, this);
    QFont font = Small_Font();
    font.setBold(true);
    label->setFont(font);
    label->adjustSize();
    label->move(0, top + 1);
    new TooltipPicture(tip, label->geometry().right() + 6, top, this);
    return label;
}

QLineEdit* PropertyPanel::Add_Field(const QString& label, int top, int width, int tip,
                                    Before before) {
    Add_Heading(label, top, tip);
    auto* field = new QLineEdit(this);
    field->setFont(Small_Font());
    field->setGeometry(0, top + FieldBelow, width, FieldHeight);
    field->setAccessibleName(label.chopped(1));
    Limit_ToStoredText(field, before == Before::Depth ? u"0"_s : QString());
    connect(field, &QLineEdit::returnPressed, this, &PropertyPanel::Entered);
    return field;
}

void PropertyPanel::Add_Sizes(int top) {
    Add_Heading(u"Start size:"_s, top, TipSize);
    const QString names[] = {u"Normal"_s, u"Minimized"_s, u"Maximized"_s};
    for (std::size_t size = 0; size < sizes.size(); ++size) {
        sizes[size] = new QRadioButton(names[size], this);
        sizes[size]->setFont(Small_Font());
        sizes[size]->setAccessibleName(u"Start size: "_s + names[size]);
        sizes[size]->setGeometry(static_cast<int>(size) * OptionWidth, top + FieldBelow,
                                 OptionWidth, 20);
    }
}

void PropertyPanel::Show_Row(const LinkRec* row) {
    const bool isLink = row != nullptr && !Is_Category(*row);
    titleField->setText(row == nullptr ? QString() : row->LinkName);
    pathField->setText(isLink ? Row_Target(*row) : QString());
    descriptionField->setText(row == nullptr ? QString()
                              : isLink       ? row->Description
                                             : u"---- Category ----"_s);
    sizes[isLink ? Shown_Size(*row) : 0]->setChecked(true);
    titleField->setEnabled(row != nullptr);
    for (QWidget* widget : std::initializer_list<QWidget*>{pathField, descriptionField, wbButton1,
                                                           hint, sizes[0], sizes[1], sizes[2]})
        widget->setEnabled(isLink);
    for (QLineEdit* field : {titleField, pathField, descriptionField})
        field->setCursorPosition(0);
}

// A box shows a text of several lines in its own way: it counts only when somebody has typed.
void PropertyPanel::Store_Row(LinkRec& row) const {
    if (titleField->isModified())
        row.LinkName = titleField->text();
    if (Is_Category(row))
        return;
    if (pathField->text() != Row_Target(row))
        row.URL = QString::number(Row_Depth(row)) + pathField->text();
    if (descriptionField->isModified())
        row.Description = descriptionField->text();
    for (std::size_t size = 0; size < sizes.size(); ++size)
        if (sizes[size]->isChecked() && size != Shown_Size(row))
            row.StartSize = static_cast<std::uint8_t>(size);
}

bool PropertyPanel::Set_Path(const QString& path) {
    if (!Fits_RecString(u'0' + path))
        return false;
    pathField->setText(path);
    return true;
}

void PropertyPanel::Focus_Title() {
    titleField->setFocus();
    titleField->selectAll();
}
