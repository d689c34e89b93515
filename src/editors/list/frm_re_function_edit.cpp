#include "editors/list/frm_re_function_edit.h"

#include "controls/chk_box.h"
#include "controls/help_topic.h"
#include "controls/program_end.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/open_file.h"
#include "editors/list/page_labels.h"

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

wbButton* Add_Button(const QString& caption, const QRect& place, QWidget* parent) {
    auto* button = new wbButton(parent);
    button->setGeometry(place);
    button->Set_Caption(caption);
    button->setAccessibleName(caption);
    return button;
}

} // namespace

frmRE_FunctionEdit::frmRE_FunctionEdit(QWidget* owner) : Form(owner, Qt::Dialog) {
    setWindowTitle(u"Function Setup"_s);
    setFixedSize(FormWidth, FormHeight);
    Add_Heading(u" Function Setup"_s, 8, 8, this);
    new TooltipPicture(Tip_Function, FormWidth - 26, 8, this);
    Build_Fields();
    Add_Label(help_page::Hint, 12, FormHeight - 26);
    wbButton* ok = Add_Button(u"Ok"_s, {FormWidth - 172, FormHeight - 32, 78, 24}, this);
    wbButton* cancel = Add_Button(u"Cancel"_s, {FormWidth - 86, FormHeight - 32, 78, 24}, this);
    connect(ok, &wbButton::Click, this, &frmRE_FunctionEdit::wbButton1_Click);
    connect(cancel, &wbButton::Click, this, [this] { Unload(); });
}

void frmRE_FunctionEdit::Build_Fields() {
    static const struct {
        QString Caption;
        int Left, Top;
    } boxes[FunctionBoxCount] = {{u"Open page:"_s, 12, 30},
                                 {u"Open file:"_s, 12, 82},
                                 {u"Normal"_s, 28, 152},
                                 {u"Minimized"_s, 128, 152},
                                 {u"Maximized"_s, 228, 152}};
    const auto Build_Box = [this](int box) {
        p0ChkImage[At(box)] = new ChkBox(boxes[box].Caption, boxes[box].Left, boxes[box].Top, this);
        p0ChkImage[At(box)]->Set_Radio(true);
        connect(p0ChkImage[At(box)], &ChkBox::Checked, this, [this, box] { Tick(box); });
    };
    const QString labels[FirstSizeBox] = {u"URL:"_s, u"Path:"_s};
    const QString samples[FirstSizeBox] = {u"http://www.example.com"_s,
                                           u"c:\\Documents\\Doc1.txt"_s};
    for (int box = 0; box < FirstSizeBox; ++box) {
        Build_Box(box);
        const int top = boxes[box].Top + 20;
        Add_Text(labels[box], 28, top + 4, this);
        Text10[At(box)] = new QLineEdit(samples[box], this);
        Text10[At(box)]->setGeometry(64, top, box == 0 ? 328 : 290, 22);
        Text10[At(box)]->setAccessibleName(box == 0 ? u"URL"_s : u"Path"_s);
        Limit_ToStoredText(Text10[At(box)], box == 0 ? u"http://"_s : QString());
    }
    wbButton* browse = Add_Button(u"..."_s, {360, boxes[1].Top + 19, 32, 24}, this);
    browse->setAccessibleName(u"Choose a file"_s);
    connect(browse, &wbButton::Click, this, &frmRE_FunctionEdit::wbButton3_Click);
    Add_Heading(u"  Start size:"_s, 8, 134, this);
    for (int box = FirstSizeBox; box < FunctionBoxCount; ++box)
        Build_Box(box);
    Add_Text(u"(Some software may not support this setting)"_s, 28, 176, this);
}

FunctionBoxes frmRE_FunctionEdit::Boxes() const {
    FunctionBoxes boxes{};
    for (int box = 0; box < FunctionBoxCount; ++box)
        boxes[At(box)] = p0ChkImage[At(box)]->Is_Ticked();
    return boxes;
}

void frmRE_FunctionEdit::Set_Boxes(const FunctionBoxes& boxes) {
    for (int box = 0; box < FunctionBoxCount; ++box)
        p0ChkImage[At(box)]->Set_Ticked(boxes[At(box)]);
}

void frmRE_FunctionEdit::Tick(int box) {
    FunctionBoxes boxes = Boxes();
    Tick_FunctionBox(boxes, box);
    Set_Boxes(boxes);
}

void frmRE_FunctionEdit::UpdateView() {
    const ReminderClass* reminder = wOBJ.Peek();
    if (reminder == nullptr)
        return;
    const FunctionEntry& entry = reminder->GetFuncion(Index);
    const FunctionBoxes boxes = Boxes_OfFunction(entry);
    Set_Boxes(boxes);
    for (int box = 0; box < FirstSizeBox; ++box)
        if (boxes[At(box)])
            Show_Path(Text10[At(box)], entry.Function_Path);
}

void frmRE_FunctionEdit::wbButton1_Click() {
    // The reminder may have been deleted in the meantime.
    if (ReminderClass* reminder = wOBJ.Get()) {
        reminder->SetFuncion(Index, Function_FromView(reminder->GetFuncion(Index), Boxes(),
                                                      Text10[0]->text(), Text10[1]->text()));
        Q_EMIT Function_Changed();
    }
    Unload();
}

void frmRE_FunctionEdit::wbButton3_Click() {
    Choose_File(this, {{u"All Files (*.*)"_s, {}}}, [this](const QString& path) {
        Text10[1]->setText(path);
        Tick(1);
    });
}

void frmRE_FunctionEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        wbButton1_Click();
    else
        Form::keyPressEvent(event);
}
