#include "links/editor/property_panel.h"

#include "controls/metrics.h"
#include "controls/wb_button.h"
#include "links/editor/link_operations.h"
#include "platform/record_text.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QValidator>

using namespace Qt::StringLiterals;

namespace {

constexpr int PanelWidth = 260;
constexpr int FieldHeight = 22;
constexpr int ButtonWidth = 28;

// A field takes no more than its place in the file holds, with the digit before a path.
class StoredText : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& text, int&) const override {
        return Fits_RecString(u'0' + text) ? Acceptable : Invalid;
    }
};

QLabel* Add_Text(const QString& text, int top, QWidget* parent, bool bold) {
    auto* label = new QLabel(text, parent);
    QFont font = Small_Font();
    font.setBold(bold);
    label->setFont(font);
    label->setWordWrap(true);
    label->setGeometry(0, top, PanelWidth, label->heightForWidth(PanelWidth));
    return label;
}

} // namespace

PropertyPanel::PropertyPanel(QWidget* parent) : QWidget(parent) {
    titleField = Add_Field(u"Title:"_s, 0, PanelWidth);
    pathField = Add_Field(u"Path:"_s, 48, PanelWidth - ButtonWidth - 4);
    wbButton1 = new wbButton(this);
    wbButton1->Set_Caption(u"..."_s);
    wbButton1->Set_ToolTipTextLabel(u"Choose a file"_s);
    wbButton1->setGeometry(PanelWidth - ButtonWidth, 64, ButtonWidth, FieldHeight);
    hints[0] = Add_Text(u"Can be a path to a local file (document) or a Url"_s, 90, this, false);
    hints[1] = Add_Text(u"\"-\" makes a separator"_s, 104, this, false);
    descriptionField = Add_Field(u"Description:"_s, 128, PanelWidth);
    Add_Text(u"Start size:"_s, 176, this, true);
    const QString names[] = {u"Normal"_s, u"Minimized"_s, u"Maximized"_s};
    for (std::size_t size = 0; size < sizes.size(); ++size) {
        sizes[size] = new QRadioButton(names[size], this);
        sizes[size]->setFont(Small_Font());
        sizes[size]->setAccessibleName(u"Start size: "_s + names[size]);
        sizes[size]->setGeometry(static_cast<int>(size) * 86, 192, 86, 20);
    }
    resize(PanelWidth, 214);
    connect(wbButton1, &wbButton::Click, this, &PropertyPanel::Browse);
    Show_Row(nullptr);
}

QLineEdit* PropertyPanel::Add_Field(const QString& label, int top, int width) {
    Add_Text(label, top, this, true);
    auto* field = new QLineEdit(this);
    field->setFont(Small_Font());
    field->setGeometry(0, top + 16, width, FieldHeight);
    field->setAccessibleName(label.chopped(1));
    field->setMaxLength(static_cast<int>(MaxRecStringBytes));
    field->setValidator(new StoredText(field));
    return field;
}

void PropertyPanel::Show_Row(const LinkRec* row) {
    const bool isLink = row != nullptr && !Is_Category(*row);
    titleField->setText(row == nullptr ? QString() : row->LinkName);
    pathField->setText(isLink ? Row_Target(*row) : QString());
    descriptionField->setText(row == nullptr ? QString()
                              : isLink       ? row->Description
                                             : u"---- Category ----"_s);
    // A byte of a file may say anything.
    const std::size_t size = isLink && row->StartSize < sizes.size() ? row->StartSize : 0;
    sizes[size]->setChecked(true);
    titleField->setEnabled(row != nullptr);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{pathField, descriptionField, wbButton1, sizes[0], sizes[1],
                                         sizes[2], hints[0], hints[1]})
        widget->setEnabled(isLink);
    for (QLineEdit* field : {titleField, pathField, descriptionField})
        field->setCursorPosition(0);
}

bool PropertyPanel::Store_Row(LinkRec& row) const {
    LinkRec stored = row;
    // A line of the box stands for the text as long as nobody changes it.
    const auto take = [](const QLineEdit* field, QString& target) {
        if (field->isModified())
            target = field->text();
    };
    take(titleField, stored.LinkName);
    if (!Is_Category(row)) {
        if (pathField->text() != Row_Target(row))
            stored.URL = QString::number(Row_Depth(row)) + pathField->text();
        take(descriptionField, stored.Description);
        for (std::size_t size = 0; size < sizes.size(); ++size)
            if (sizes[size]->isChecked() && (size != 0 || row.StartSize < sizes.size()))
                stored.StartSize = static_cast<std::uint8_t>(size);
    }
    if (stored == row)
        return false;
    row = stored;
    return true;
}

void PropertyPanel::Set_Path(const QString& path) {
    pathField->setText(path);
}

void PropertyPanel::Focus_Title() {
    titleField->setFocus();
    titleField->selectAll();
}
