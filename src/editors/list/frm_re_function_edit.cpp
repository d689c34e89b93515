#include "editors/list/frm_re_function_edit.h"

#include "controls/chk_box.h"
#include "controls/help_topic.h"
#include "controls/page_parts.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/open_file.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int Tip_Function = 27;
constexpr int FormWidth = 400;
constexpr int FormHeight = 232;

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

void Show_Path(QLineEdit* field, const QString& path) {
    field->setText(path);
    field->setCursorPosition(0);
}

} // namespace

frmRE_FunctionEdit::frmRE_FunctionEdit(QWidget* owner) : Form(owner, Qt::Dialog) {
    setWindowTitle(u"Function Setup"_s);
    setFixedSize(FormWidth, FormHeight);
    Add_Text(this, u" Function Setup"_s, 8, 8, TextLook::Heading);
    new TooltipPicture(Tip_Function, FormWidth - 26, 8, this);
    Build_Fields();
    Add_Label(help_page::Hint, 12, FormHeight - 26);
    wbButton* ok = Add_Button(this, u"Ok"_s, {FormWidth - 172, FormHeight - 32, 78, 24});
    wbButton* cancel = Add_Button(this, u"Cancel"_s, {FormWidth - 86, FormHeight - 32, 78, 24});
    connect(ok, &wbButton::Click, this, &frmRE_FunctionEdit::Ok_Click);
    connect(cancel, &wbButton::Click, this, [this] { Unload(); });
}

void frmRE_FunctionEdit::Build_Fields() {
    static const struct {
        QString Caption;
        int Left, Top;
    } places[FunctionBoxCount] = {{u"Open page:"_s, 12, 30},
                                  {u"Open file:"_s, 12, 82},
                                  {u"Normal"_s, 28, 152},
                                  {u"Minimized"_s, 128, 152},
                                  {u"Maximized"_s, 228, 152}};
    const auto Build_Box = [this](int box) {
        boxes[At(box)] = new ChkBox(places[box].Caption, places[box].Left, places[box].Top, this);
        boxes[At(box)]->Set_Radio(true);
        connect(boxes[At(box)], &ChkBox::Checked, this, [this, box] { Tick(box); });
    };
    const QString labels[FirstSizeBox] = {u"URL:"_s, u"Path:"_s};
    const QString samples[FirstSizeBox] = {u"http://www.example.com"_s,
                                           u"c:\\Documents\\Doc1.txt"_s};
    for (int box = 0; box < FirstSizeBox; ++box) {
        Build_Box(box);
        const int top = places[box].Top + 20;
        Add_Text(this, labels[box], 28, top + 4);
        paths[At(box)] = new QLineEdit(samples[box], this);
        paths[At(box)]->setGeometry(64, top, box == 0 ? 328 : 290, 22);
        paths[At(box)]->setAccessibleName(box == 0 ? u"URL"_s : u"Path"_s);
        Limit_ToStoredText(paths[At(box)], box == 0 ? u"http://"_s : QString());
    }
    wbButton* browse =
        Add_Button(this, u"..."_s, {360, places[1].Top + 19, 32, 24}, u"Choose a file"_s);
    connect(browse, &wbButton::Click, this, &frmRE_FunctionEdit::Browse_Click);
    Add_Text(this, u"  Start size:"_s, 8, 134, TextLook::Heading);
    for (int box = FirstSizeBox; box < FunctionBoxCount; ++box)
        Build_Box(box);
    Add_Text(this, u"(Some software may not support this setting)"_s, 28, 176);
}

FunctionBoxes frmRE_FunctionEdit::Boxes() const {
    FunctionBoxes ticks{};
    for (int box = 0; box < FunctionBoxCount; ++box)
        ticks[At(box)] = boxes[At(box)]->Is_Ticked();
    return ticks;
}

void frmRE_FunctionEdit::Set_Boxes(const FunctionBoxes& ticks) {
    for (int box = 0; box < FunctionBoxCount; ++box)
        boxes[At(box)]->Set_Ticked(ticks[At(box)]);
}

void frmRE_FunctionEdit::Tick(int box) {
    FunctionBoxes ticks = Boxes();
    Tick_FunctionBox(ticks, box);
    Set_Boxes(ticks);
}

void frmRE_FunctionEdit::Edit(const ReminderRef& ofReminder, int number) {
    reminder = ofReminder;
    index = number;
    const ReminderClass* record = reminder.Peek();
    if (record == nullptr)
        return;
    const FunctionEntry& entry = record->GetFuncion(index);
    const FunctionBoxes ticks = Boxes_OfFunction(entry);
    Set_Boxes(ticks);
    for (int box = 0; box < FirstSizeBox; ++box)
        if (ticks[At(box)])
            Show_Path(paths[At(box)], entry.Function_Path);
}

void frmRE_FunctionEdit::Ok_Click() {
    // The reminder may have been deleted in the meantime.
    if (ReminderClass* record = reminder.Get()) {
        record->SetFuncion(index, Function_FromView(record->GetFuncion(index), Boxes(),
                                                    paths[0]->text(), paths[1]->text()));
        Q_EMIT Function_Changed(reminder);
    }
    Unload();
}

void frmRE_FunctionEdit::Browse_Click() {
    Choose_File(this, {{u"All Files (*.*)"_s, {}}}, [this](const QString& path) {
        paths[1]->setText(path);
        Tick(1);
    });
}

void frmRE_FunctionEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Ok_Click();
    else
        Form::keyPressEvent(event);
}
