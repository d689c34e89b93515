#include "accessories/setup/frm_program_setup.h"

#include "accessories/help/help.h"
#include "accessories/setup/setup.h"
#include "controls/chk_box.h"
#include "controls/help_topic.h"
#include "controls/metrics.h"
#include "controls/one_window.h"
#include "controls/program_end.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "platform/dialogs.h"
#include "settings/global_settings.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int FormWidth = 308;
constexpr int FormHeight = 336;
constexpr int Margin = 8;
constexpr int Indent = 20;
constexpr int FieldHeight = 20;
constexpr int FieldLeft = 136;
constexpr int RowStep = 22;
constexpr int ButtonWidth = 76;
constexpr int ButtonHeight = 24;
constexpr int PictureLeft = FormWidth - 28;
constexpr int LongestFormat = 64;
constexpr int LongestWaitText = 12;

constexpr int EffectsTop = 8;
constexpr int AutoHideTop = 76;
constexpr int RestTop = 238;

// The places of the longer help texts.
enum SetupTip {
    ShadowsTip = 63,
    TransparencyTip,
    AutoHideTip,
    WaitTip,
    ModeTip,
    FormatTip,
    RunTip
};

OneWindow<frmProgramSetup> setupWindow;

} // namespace

frmProgramSetup::frmProgramSetup() {
    setWindowTitle(u"Setup"_s);
    setFixedSize(FormWidth, FormHeight);
    Add_Effects();
    Add_AutoHide();
    Add_Rest();
    Show_View(Load_Settings_To_View());
    p2ChkImage[Global_IsWinXP ? 0 : 2]->setFocus();
    Set_HelpTopic(*this, help_page::Setup);
    Update_HelpTopic(help_page::Setup);
}

QLabel* frmProgramSetup::Add_Heading(int index, const QString& text, int top) {
    QLabel* label = Add_Label(text, Margin, top);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->adjustSize();
    Label29[static_cast<std::size_t>(index)] = label;
    return label;
}

QLineEdit* frmProgramSetup::Add_Field(const QString& name, int left, int top, int width) {
    auto* field = new QLineEdit(this);
    field->setFont(Small_Font());
    field->setGeometry(left, top, width, FieldHeight);
    field->setAccessibleName(name);
    connect(field, &QLineEdit::returnPressed, this, &frmProgramSetup::wbButton3_Click);
    return field;
}

void frmProgramSetup::Add_Effects() {
    Add_Heading(0, u"Effects:"_s, EffectsTop);
    Label29[2] = Add_Label(u"(Windows Xp Only)"_s, FieldLeft, EffectsTop);
    Label29[2]->setVisible(!Global_IsWinXP);
    p2ChkImage[0] = new ChkBox(u"Use shadows"_s, Indent, EffectsTop + 18, this);
    p2ChkImage[1] = new ChkBox(u"Use Transparency"_s, Indent, EffectsTop + 18 + RowStep, this);
    if (!Global_IsWinXP) {
        p2ChkImage[0]->Set_Blocked(true);
        p2ChkImage[1]->Set_Blocked(true);
    }
    new TooltipPicture(ShadowsTip, PictureLeft, EffectsTop + 18, this);
    new TooltipPicture(TransparencyTip, PictureLeft, EffectsTop + 18 + RowStep, this);
}

void frmProgramSetup::Add_AutoHide() {
    Add_Heading(1, u"Autohide:"_s, AutoHideTop);
    p2ChkImage[2] = new ChkBox(u"Enable AutoHide"_s, Indent, AutoHideTop + 18, this);
    new TooltipPicture(AutoHideTip, PictureLeft, AutoHideTop + 18, this);
    const int waitTop = AutoHideTop + 18 + RowStep;
    const QString waitName = u"Wait time: (Seconds)"_s;
    const QLabel* label = Add_Label(waitName, Indent, waitTop + 3);
    Text2 = Add_Field(waitName, std::max(FieldLeft, label->geometry().right() + 6), waitTop, 72);
    Text2->setMaxLength(LongestWaitText);
    new TooltipPicture(WaitTip, PictureLeft, waitTop + 2, this);
    Add_HideModes(waitTop + RowStep + 6);
}

void frmProgramSetup::Add_HideModes(int top) {
    static constexpr std::array<const char16_t*, HideOptionCount> Captions{
        u"Auto",
        u"Minimize: Top",
        u"Minimize: Left",
        u"Minimize: Right",
        u"Minimize: Bottom",
        u"Hide: System tray Icon"};
    Add_Label(u"Hide Mode:"_s, Indent, top);
    new TooltipPicture(ModeTip, PictureLeft, top - 2, this);
    for (std::size_t i = 0; i < Option1.size(); ++i) {
        const int row = static_cast<int>(i % 3);
        const int left = i < 3 ? Indent : FieldLeft;
        Option1[i] = new QRadioButton(QString::fromUtf16(Captions[i]), this);
        Option1[i]->setFont(Small_Font());
        Option1[i]->setAccessibleDescription(u"Hide Mode"_s);
        Option1[i]->move(left, top + 16 + row * 20);
        Option1[i]->adjustSize();
    }
}

void frmProgramSetup::Add_Rest() {
    const QString formatName = u"Date Format:"_s;
    Add_Label(formatName, Margin, RestTop + 3);
    Text1 = Add_Field(formatName, FieldLeft, RestTop, 128);
    Text1->setPlaceholderText(u"mm/dd/yyyy"_s);
    Text1->setMaxLength(LongestFormat);
    new TooltipPicture(FormatTip, PictureLeft, RestTop + 2, this);
    p2ChkImage[3] = new ChkBox(u"Run at start up"_s, Margin, RestTop + 30, this);
    new TooltipPicture(RunTip, PictureLeft, RestTop + 30, this);

    const int top = FormHeight - Margin - ButtonHeight;
    Add_Label(help_page::Hint, Margin, top + 6);
    wbButton3 = new wbButton(this);
    wbButton3->setGeometry(FormWidth - 2 * (Margin + ButtonWidth) + 2, top, ButtonWidth,
                           ButtonHeight);
    wbButton3->Set_Caption(u"Ok"_s);
    connect(wbButton3, &wbButton::Click, this, &frmProgramSetup::wbButton3_Click);
    wbButton4 = new wbButton(this);
    wbButton4->setGeometry(FormWidth - Margin - ButtonWidth, top, ButtonWidth, ButtonHeight);
    wbButton4->Set_Caption(u"Cancel"_s);
    connect(wbButton4, &wbButton::Click, this, [this] { Unload(); });
}

void frmProgramSetup::Show_View(const SetupView& view) {
    if (Global_IsWinXP) {
        p2ChkImage[0]->Set_Ticked(view.UseShadows);
        p2ChkImage[1]->Set_Ticked(view.UseTransparency);
    }
    p2ChkImage[2]->Set_Ticked(view.EnableAutoHide);
    p2ChkImage[3]->Set_Ticked(view.RunAtStartUp);
    Text2->setText(view.WaitTime);
    if (view.HideOption >= 0)
        Option1[static_cast<std::size_t>(view.HideOption)]->setChecked(true);
    Text1->setText(view.DateFormat);
}

SetupView frmProgramSetup::Read_View() const {
    SetupView view;
    view.UseShadows = p2ChkImage[0]->Is_Ticked();
    view.UseTransparency = p2ChkImage[1]->Is_Ticked();
    view.EnableAutoHide = p2ChkImage[2]->Is_Ticked();
    view.RunAtStartUp = p2ChkImage[3]->Is_Ticked();
    view.WaitTime = Text2->text();
    view.DateFormat = Text1->text();
    for (std::size_t i = 0; i < Option1.size() && view.HideOption < 0; ++i)
        if (Option1[i]->isChecked())
            view.HideOption = static_cast<int>(i);
    return view;
}

void frmProgramSetup::wbButton3_Click() {
    if (Is_Unloading() || Program_Is_Ending())
        return;
    const auto refusal = Save_View_To_Settings(Read_View());
    if (!refusal) {
        Unload();
        return;
    }
    QLineEdit* field = refusal->Field == SetupField::WaitTime ? Text2 : Text1;
    field->setFocus();
    field->selectAll();
    platform::Dialogs::Get().Message(refusal->Message, platform::BoxStyle::Exclamation);
}

void Show_ProgramSetup() {
    if (frmProgramSetup* window = setupWindow.Open_OrMake())
        window->Present();
}
