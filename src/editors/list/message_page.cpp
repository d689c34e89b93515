#include "editors/list/message_page.h"

#include "controls/chk_box.h"
#include "controls/metrics.h"
#include "controls/page_parts.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/click_label.h"
#include "editors/list/function_rules.h"
#include "editors/list/list_rules.h"

#include <QButtonGroup>
#include <QFocusEvent>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Pixels.
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

} // namespace

MessagePage::MessagePage(QWidget* parent) : ReminderPage(parent) {
    setFont(Small_Font());
    Build_Text();
    Build_DisplayMode();
    Add_Text(this, u"Buttons:"_s, 8, FunctionsTop - 20, TextLook::Heading);
    Add_Text(this, u"(Not available in normal style)"_s, 72, FunctionsTop - 20);
    new TooltipPicture(Tip_Buttons, 444, FunctionsTop - 20, this);
    for (std::size_t k = 0; k < functions.size(); ++k)
        Build_Function(k);
}

void MessagePage::Build_Text() {
    Add_Text(this, u"Title:"_s, 8, 12);
    title = new QLineEdit(this);
    title->setGeometry(FieldLeft, 8, FieldWidth, FieldHeight);
    title->setMaxLength(std::numeric_limits<int>::max());
    title->setAccessibleName(u"Title"_s);
    Add_Text(this, u"Text:"_s, 8, 38);
    text = Add_Memo(this, u"Text"_s, {FieldLeft, 36, FieldWidth, 80});
    text->viewport()->installEventFilter(this);
    title->installEventFilter(this);
    new TooltipPicture(Tip_Text, 444, 11, this);
    connect(title, &QLineEdit::textEdited, this, &MessagePage::Title_Changed);
    connect(text, &QPlainTextEdit::textChanged, this, [this] {
        if (!showing)
            Q_EMIT Text_Changed(text->Text());
    });
}

void MessagePage::Build_DisplayMode() {
    Add_Text(this, u"Display mode:"_s, 8, ModesTop - 20, TextLook::Heading);
    new TooltipPicture(Tip_DisplayMode, 444, ModesTop - 20, this);
    modes = new QButtonGroup(this);
    int top = ModesTop;
    for (const auto& [caption, note] : {std::pair(u"Show inside toolbar"_s, u"(Normal)"_s),
                                        {u"Separate window, next to toolbar"_s, u"(Important)"_s},
                                        {u"Separate window, centered"_s, u"(Very important)"_s}}) {
        auto* option = new QRadioButton(caption, this);
        option->setGeometry(20, top, 220, ModeHeight);
        Add_Text(this, note, 248, top + 4);
        modes->addButton(option, static_cast<int>(modes->buttons().size()));
        top += ModeHeight;
    }
    connect(modes, &QButtonGroup::idClicked, this, &MessagePage::Mode_Chosen);
    minimize = new ChkBox(u"Minimize all running applications"_s, 38, top + 2, this);
}

void MessagePage::Build_Function(std::size_t k) {
    const int index = static_cast<int>(k);
    const int top = FunctionsTop + index * FunctionHeight;
    auto* box = new ChkBox(u"%1-"_s.arg(index + 1), 8, top + 3, this);
    box->setAccessibleName(u"Button %1"_s.arg(index + 1));
    for (const auto change : {&ChkBox::Checked, &ChkBox::Unchecked})
        connect(box, change, this,
                [this, box, index] { Q_EMIT Function_Enabled(index, box->Is_Ticked()); });
    auto* captionLabel = new ClickLabel(u"Caption:"_s, CaptionLeft, top + 4, this);
    auto* functionLabel = new ClickLabel(u"Function:"_s, CaptionLeft, top + 26, this);
    for (ClickLabel* label : {captionLabel, functionLabel})
        connect(label, &ClickLabel::Click, box, &ChkBox::Toggle);
    auto* caption = new QLineEdit(this);
    caption->setGeometry(FunctionLeft, top, FunctionTextWidth, FieldHeight);
    caption->setAccessibleName(u"Caption of button %1"_s.arg(index + 1));
    Limit_ToStoredText(caption);
    auto* function = new ClickLabel({}, FunctionLeft, top + 26, this);
    function->resize(FunctionTextWidth, SmallLineHeight + 2);
    function->setToolTip(u"Click the edit button to change"_s);
    wbButton* edit =
        Add_Button(this, u"Edit"_s, {FunctionLeft + FunctionTextWidth + 8, top, 58, FieldHeight},
                   u"Edit function of button %1"_s.arg(index + 1));
    connect(edit, &wbButton::Click, this, [this, index] { Q_EMIT Edit_Function(index); });
    functions[k] = {box, caption, function, {}};
}

void MessagePage::Load(const ReminderClass& reminder) {
    title->setText(reminder.rs_Title);
    title->setCursorPosition(0);
    shownTitle = title->text();
    // Also a text that stands there already: it can be undone no further.
    showing = true;
    text->setPlainText(Text_ForBox(reminder.rs_Text));
    showing = false;
    for (std::size_t k = 0; k < functions.size(); ++k) {
        functions[k].Caption->setText(reminder.GetFuncion(static_cast<int>(k)).Title);
        functions[k].Caption->setCursorPosition(0);
        functions[k].ShownCaption = functions[k].Caption->text();
    }
    Show_Functions(reminder);
    const int mode = static_cast<int>(reminder.rs_Reminder_Type);
    modes->setExclusive(false);
    for (QAbstractButton* option : modes->buttons())
        option->setChecked(modes->id(option) == mode);
    modes->setExclusive(true);
    minimize->Set_Blocked(mode <= 1);
    minimize->Set_Ticked(mode > 1 && reminder.rs_Minimize_Apps);
}

QString MessagePage::Store(ReminderClass& reminder) {
    if (title->text() != shownTitle)
        reminder.rs_Title = title->text();
    shownTitle = title->text();
    reminder.rs_Text = Text_ForRecord(text->Text(), reminder.rs_Text);
    reminder.rs_Reminder_Type = static_cast<ReminderType>(std::max(0, modes->checkedId()));
    reminder.rs_Minimize_Apps = minimize->Is_Ticked();
    for (std::size_t k = 0; k < functions.size(); ++k) {
        FunctionRow& row = functions[k];
        FunctionEntry entry = reminder.GetFuncion(static_cast<int>(k));
        entry.Enabled = row.Enabled->Is_Ticked();
        if (row.Caption->text() != row.ShownCaption)
            entry.Title = row.Caption->text();
        row.ShownCaption = row.Caption->text();
        reminder.SetFuncion(static_cast<int>(k), entry);
    }
    return {};
}

void MessagePage::Show_Functions(const ReminderClass& reminder) {
    for (std::size_t k = 0; k < functions.size(); ++k) {
        const FunctionEntry& entry = reminder.GetFuncion(static_cast<int>(k));
        functions[k].Enabled->Set_Ticked(entry.Enabled);
        const QString words = Function_Text(entry.Function_Type, entry.Function_Path);
        ClickLabel* label = functions[k].Function;
        label->setText(label->fontMetrics().elidedText(words.simplified(), Qt::ElideMiddle,
                                                       FunctionTextWidth));
        label->setAccessibleName(words);
    }
}

void MessagePage::Mode_Chosen(int mode) {
    minimize->Set_Blocked(mode <= 1);
    if (mode <= 1)
        minimize->Set_Ticked(false);
}

void MessagePage::Set_Text(const QString& shown) {
    if (text->Text() == shown)
        return;
    showing = true;
    text->setPlainText(shown);
    showing = false;
}

// The field's own menu and another window take the focus from a title that is still being typed.
void MessagePage::Title_Left(Qt::FocusReason reason) {
    if (Leaves_Field(reason) && title->text() != "Reminder"_L1 &&
        text->Text() == "Insert text here"_L1)
        text->setPlainText(title->text());
}

bool MessagePage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == title && event->type() == QEvent::FocusOut)
        Title_Left(static_cast<QFocusEvent*>(event)->reason());
    if (watched == text->viewport() && event->type() == QEvent::MouseButtonRelease)
        Select_SampleText(*text);
    return QWidget::eventFilter(watched, event);
}
