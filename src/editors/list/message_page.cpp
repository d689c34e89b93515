#include "editors/list/message_page.h"

#include "controls/metrics.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/function_rules.h"
#include "editors/list/list_rules.h"
#include "editors/list/page_labels.h"

#include <QButtonGroup>
#include <QEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldLeft = 56;
constexpr int FieldWidth = 380;
constexpr int FieldHeight = 22;
constexpr int ModesTop = 146;
constexpr int ModeHeight = 20;
constexpr int FunctionsTop = 256;
constexpr int FunctionHeight = 46;
constexpr int CaptionLeft = 46;
constexpr int FunctionLeft = 102;
constexpr int FunctionTextWidth = 268;

enum TipNumber { Tip_Text = 21, Tip_DisplayMode = 22, Tip_Buttons = 23 };

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

MessagePage::MessagePage(QWidget* parent) : QWidget(parent) {
    setFont(Small_Font());
    Build_Text();
    Build_DisplayMode();
    Add_Heading(u"Buttons:"_s, 8, FunctionsTop - 20, this);
    Add_Text(u"(Not available in normal style)"_s, 72, FunctionsTop - 20, this);
    new TooltipPicture(Tip_Buttons, 444, FunctionsTop - 20, this);
    for (int k = 0; k < ReminderClass::FunctionCount; ++k)
        Build_Function(k);
}

void MessagePage::Build_Text() {
    Add_Text(u"Title:"_s, 8, 12, this);
    Text9 = new QLineEdit(this);
    Text9->setGeometry(FieldLeft, 8, FieldWidth, FieldHeight);
    Text9->setMaxLength(std::numeric_limits<int>::max());
    Text9->setAccessibleName(u"Title"_s);
    Add_Text(u"Text:"_s, 8, 38, this);
    Text8 = new MemoField(this);
    Text8->setGeometry(FieldLeft, 36, FieldWidth, 80);
    Text8->setTabChangesFocus(true);
    Text8->setAccessibleName(u"Text"_s);
    Text8->viewport()->installEventFilter(this);
    Text9->installEventFilter(this);
    new TooltipPicture(Tip_Text, 444, 11, this);
    connect(Text9, &QLineEdit::textEdited, this, &MessagePage::Title_Changed);
    connect(Text8, &QPlainTextEdit::textChanged, this, [this] {
        if (!showing)
            Q_EMIT Text_Changed(Plain_Text(*Text8));
    });
}

void MessagePage::Build_DisplayMode() {
    static const struct {
        QString Caption, Note;
    } rows[DisplayModes] = {{u"Show inside toolbar"_s, u"(Normal)"_s},
                            {u"Separate window, next to toolbar"_s, u"(Important)"_s},
                            {u"Separate window, centered"_s, u"(Very important)"_s}};
    Add_Heading(u"Display mode:"_s, 8, ModesTop - 20, this);
    new TooltipPicture(Tip_DisplayMode, 444, ModesTop - 20, this);
    modes = new QButtonGroup(this);
    for (int i = 0; i < DisplayModes; ++i) {
        const int top = ModesTop + i * ModeHeight;
        auto* option = new QRadioButton(rows[i].Caption, this);
        option->setGeometry(20, top, 220, ModeHeight);
        Add_Text(rows[i].Note, 248, top + 4, this);
        modes->addButton(option, i);
        Option2[At(i)] = option;
    }
    connect(modes, &QButtonGroup::idClicked, this, &MessagePage::Option2_Click);
    p6ChkImage[MinimizeBox] = new ChkBox(u"Minimize all running applications"_s, 38,
                                         ModesTop + DisplayModes * ModeHeight + 2, this);
}

void MessagePage::Build_Function(int k) {
    const int top = FunctionsTop + k * FunctionHeight;
    auto* box = new ChkBox(u"%1-"_s.arg(k + 1), 8, top + 3, this);
    box->setAccessibleName(u"Button %1"_s.arg(k + 1));
    p6ChkImage[At(k)] = box;
    for (const auto change : {&ChkBox::Checked, &ChkBox::Unchecked})
        connect(box, change, this, [this, k] { Q_EMIT Function_Enable_Changed(k); });
    auto* Label17 = new ClickLabel(u"Caption:"_s, CaptionLeft, top + 4, this);
    auto* Label31 = new ClickLabel(u"Function:"_s, CaptionLeft, top + 26, this);
    for (ClickLabel* label : {Label17, Label31})
        connect(label, &ClickLabel::Click, box, &ChkBox::Toggle);
    auto* caption = new QLineEdit(this);
    caption->setGeometry(FunctionLeft, top, FunctionTextWidth, FieldHeight);
    caption->setAccessibleName(u"Caption of button %1"_s.arg(k + 1));
    Limit_ToStoredText(caption);
    Text10[At(k)] = caption;
    Label32[At(k)] = new ClickLabel({}, FunctionLeft, top + 26, this);
    Label32[At(k)]->resize(FunctionTextWidth, SmallLineHeight + 2);
    auto* edit = new wbButton(this);
    edit->setGeometry(FunctionLeft + FunctionTextWidth + 8, top, 58, FieldHeight);
    edit->Set_Caption(u"Edit"_s);
    edit->setAccessibleName(u"Edit function of button %1"_s.arg(k + 1));
    connect(edit, &wbButton::Click, this, [this, k] { Q_EMIT Edit_Function(k); });
    wbButton3[At(k)] = edit;
}

void MessagePage::Set_FunctionText(int k, const QString& text) {
    ClickLabel* label = Label32[At(k)];
    label->setText(
        label->fontMetrics().elidedText(text.simplified(), Qt::ElideMiddle, FunctionTextWidth));
    label->setToolTip(u"Click the edit button to change"_s);
    label->setAccessibleName(text);
}

void MessagePage::Clear_View() {
    static const QString sample = u"http://www.example.com/mail"_s;
    for (ChkBox* box : p6ChkImage)
        box->Set_Ticked(false);
    for (int k = 0; k < ReminderClass::FunctionCount; ++k) {
        Text10[At(k)]->setText(k == 0 ? u"Check email"_s : QString());
        Set_FunctionText(k, k == 0 ? Function_Text(FunctionType::OpenPage, sample)
                                   : Function_Text(FunctionType::None, {}));
    }
}

void MessagePage::Load_View(const ReminderClass& reminder) {
    Text9->setText(reminder.rs_Title);
    Text9->setCursorPosition(0);
    shownTitle = Text9->text();
    // Also a text that stands there already: it can be undone no further.
    showing = true;
    Text8->setPlainText(Text_ForBox(reminder.rs_Text));
    showing = false;
    UpdateFunctions(reminder, TitlesOfFunctions::Update);
    const int mode = static_cast<int>(reminder.rs_Reminder_Type);
    modes->setExclusive(false);
    for (int i = 0; i < DisplayModes; ++i)
        Option2[At(i)]->setChecked(i == mode);
    modes->setExclusive(true);
    p6ChkImage[MinimizeBox]->Set_Blocked(mode <= 1);
    p6ChkImage[MinimizeBox]->Set_Ticked(mode > 1 && reminder.rs_Minimize_Apps);
}

void MessagePage::Save_View(ReminderClass& reminder) {
    if (Text9->text() != shownTitle)
        reminder.rs_Title = Text9->text();
    shownTitle = Text9->text();
    reminder.rs_Text = Text_ForRecord(Plain_Text(*Text8), reminder.rs_Text);
    reminder.rs_Reminder_Type = static_cast<ReminderType>(std::max(0, modes->checkedId()));
    reminder.rs_Minimize_Apps = p6ChkImage[MinimizeBox]->Is_Ticked();
    for (int k = 0; k < ReminderClass::FunctionCount; ++k) {
        FunctionEntry entry = reminder.GetFuncion(k);
        entry.Enabled = p6ChkImage[At(k)]->Is_Ticked();
        if (Text10[At(k)]->text() != shownCaptions[At(k)])
            entry.Title = Text10[At(k)]->text();
        shownCaptions[At(k)] = Text10[At(k)]->text();
        reminder.SetFuncion(k, entry);
    }
}

void MessagePage::UpdateFunctions(const ReminderClass& wOBJ, TitlesOfFunctions titles) {
    for (int k = 0; k < ReminderClass::FunctionCount; ++k) {
        const FunctionEntry& entry = wOBJ.GetFuncion(k);
        p6ChkImage[At(k)]->Set_Ticked(entry.Enabled);
        if (titles == TitlesOfFunctions::Update) {
            Text10[At(k)]->setText(entry.Title);
            Text10[At(k)]->setCursorPosition(0);
            shownCaptions[At(k)] = Text10[At(k)]->text();
        }
        Set_FunctionText(k, Function_Text(entry.Function_Type, entry.Function_Path));
    }
}

void MessagePage::Option2_Click(int i) {
    ChkBox* minimize = p6ChkImage[MinimizeBox];
    minimize->Set_Blocked(i <= 1);
    if (i <= 1)
        minimize->Set_Ticked(false);
}

void MessagePage::Set_Text(const QString& text) {
    if (Plain_Text(*Text8) == text)
        return;
    showing = true;
    Text8->setPlainText(text);
    showing = false;
}

void MessagePage::Select_SampleText(QPlainTextEdit* box) {
    if (Is_SampleText(Plain_Text(*box)))
        box->selectAll();
}

// The field's own menu and another window take the focus from a title that is still being typed.
void MessagePage::Text9_LostFocus(Qt::FocusReason reason) {
    if (!Leaves_Field(reason))
        return;
    const QString title = Text9->text();
    if (title != "Reminder"_L1 && Plain_Text(*Text8) == "Insert text here"_L1)
        Text8->setPlainText(title);
}

bool MessagePage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Text9 && event->type() == QEvent::FocusOut)
        Text9_LostFocus(static_cast<QFocusEvent*>(event)->reason());
    if (watched == Text8->viewport() && event->type() == QEvent::MouseButtonRelease)
        Select_SampleText(Text8);
    return QWidget::eventFilter(watched, event);
}
