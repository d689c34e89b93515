#include "editors/list/frm_reminder_edit.h"

#include "accessories/help/help.h"
#include "controls/combo_box.h"
#include "controls/combo_name.h"
#include "controls/cool_tab.h"
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/the_screen.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/card_list.h"
#include "editors/list/click_label.h"
#include "editors/list/list_rules.h"
#include "editors/list/misc_page.h"
#include "editors/list/page_labels.h"
#include "editors/list/sound_page.h"
#include "editors/pages/date_page.h"
#include "editors/pages/hour_page.h"
#include "platform/desktop.h"

#include <QLabel>
#include <QPainter>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Pixels.
constexpr int ClientWidth = 796;
constexpr int ClientHeight = 592;
constexpr int SmallScreenHeight = 700;
constexpr int SmallScreenLoss = 104;
constexpr int ListLeft = 6;
constexpr int ListTop = 66;
constexpr int ListHeight = 458;
constexpr int ButtonHeight = 26;
constexpr int ButtonGap = 4;
constexpr int PageLeft = 324;
constexpr int PageTop = 32;
constexpr int PageWidth = 470;
constexpr int PageHeight = 440;
constexpr int TabTop = 8;
constexpr int LeastTop = 22; // below a toolbar at the top
constexpr int FrameHeight = 30;

constexpr int Tip_List = 20;
constexpr int ErrorShapeTime = 10000; // ms
constexpr int RefreshTime = 60000;

// What AdjustForSmallScreen takes from the list and the window.
int Screen_Loss() {
    return The_Screen().height() < SmallScreenHeight ? SmallScreenLoss : 0;
}

} // namespace

frmReminderEdit::frmReminderEdit() : filter(FilterAll) {
    const int loss = Screen_Loss();
    setWindowTitle(u"Reminders"_s);
    Set_HelpTopic(*this, help_page::Reminders);
    setFixedSize(ClientWidth, ClientHeight - loss);
    Build_List(ListHeight - loss);
    Build_Buttons(ListTop + ListHeight - loss + 6);
    Build_Pages();
    Connect_Pages();
    Add_Shortcuts();
    Place_OnScreen();
    Update_Category_Combos(FilterText::Reset);
    UpdateReminderView();
    shownDay = Get_TodayDay();
    HideErrorShapeTimer.setInterval(ErrorShapeTime);
    connect(&HideErrorShapeTimer, &QTimer::timeout, this,
            &frmReminderEdit::HideErrorShapeTimer_Tick);
    HideErrorShapeTimer.start();
    refreshTimer.setInterval(RefreshTime);
    connect(&refreshTimer, &QTimer::timeout, this, &frmReminderEdit::RefreshTimer_Tick);
}

frmReminderEdit::~frmReminderEdit() = default;

void frmReminderEdit::Build_List(int listHeight) {
    QLabel* label = Add_Label(u"Show Category:"_s, ListLeft + 2, 12);
    Combo2 = new ComboBox(this);
    Combo2->setGeometry(ListLeft + 92, 8, 194, 22);
    Name_Combo(Combo2, u"Show Category"_s, label);
    new TooltipPicture(Tip_List, ListLeft + 292, 11, this);
    Add_Label(u"Click on a reminder to select it. Use the \"New\" button to add a new reminder"_s,
              ListLeft + 2, 34, CardWidth);
    Cards = new CardList(listHeight, this);
    Cards->move(ListLeft, ListTop);
    connect(Combo2, &QComboBox::activated, this, &frmReminderEdit::Combo2_Click);
    connect(Cards->Label15, &ClickLabel::Click, this, [this] {
        Combo2->setCurrentIndex(0);
        Combo2_Click();
    });
    connect(Cards, &CardList::Card_Chosen, this, &frmReminderEdit::Select_Reminder);
    connect(Cards, &CardList::Text12_Click, this,
            [](CardText* box) { MessagePage::Select_SampleText(box); });
    connect(Cards, &CardList::Text12_Change, this, &frmReminderEdit::Card_Text_Changed);
    connect(Cards, &CardList::Enabled_Changed, this, &frmReminderEdit::Row_Enabled_Changed);
    // A key acts on the card that wears the frame: it is selected first.
    connect(Cards, &CardList::Delete_Pressed, this, [this](const ReminderRef& reminder) {
        if (Is_SelectedNow(reminder))
            Delete_Click();
    });
    connect(Cards, &CardList::Copy_Pressed, this, [this](const ReminderRef& reminder) {
        if (Is_SelectedNow(reminder))
            Copy_Click();
    });
    connect(Cards, &CardList::Paste_Pressed, this, &frmReminderEdit::Paste_Click);
}

void frmReminderEdit::Build_Buttons(int top) {
    const int below = top + ButtonHeight + ButtonGap;
    const struct {
        wbButton*& Button;
        QString Caption, Tip;
        IconName Icon;
        int Left, Top, Width;
        void (frmReminderEdit::*Action)();
    } rows[] = {
        {wbButton5,
         u"      New"_s,
         {},
         IconName::NewItem,
         0,
         top,
         100,
         &frmReminderEdit::New_Click},
        {wbButton6,
         u"        Delete"_s,
         {},
         IconName::DeleteItem,
         104,
         top,
         100,
         &frmReminderEdit::Delete_Click},
        {wbButton8,
         u"       Copy"_s,
         {},
         IconName::CopyItem,
         0,
         below,
         100,
         &frmReminderEdit::Copy_Click},
        {wbButton9,
         u"       Paste"_s,
         {},
         IconName::PasteItem,
         104,
         below,
         100,
         &frmReminderEdit::Paste_Click},
        {wbButton10, u"     Run"_s, u"Test the reminder"_s, IconName::RunItem, 208, top, 101,
         &frmReminderEdit::Test_Click},
        {wbButton14, {}, u"Help (F1)"_s, IconName::Help, 208, below, 101, nullptr},
    };
    for (const auto& row : rows) {
        auto* button = new wbButton(this);
        button->setGeometry(ListLeft + row.Left, row.Top, row.Width, ButtonHeight);
        button->Set_Caption(row.Caption);
        const QSize icon = Icon_Size(row.Icon);
        button->Set_Picture(Load_Icon(row.Icon), icon);
        button->Set_CenterImage(row.Caption.isEmpty());
        button->Set_ImageLEFT(8);
        button->Set_ImageTOP((ButtonHeight - icon.height()) / 2);
        button->Set_ToolTipTextLabel(row.Tip);
        if (!row.Caption.isEmpty())
            button->setAccessibleName(row.Caption.trimmed());
        if (row.Action != nullptr)
            connect(button, &wbButton::Click, this, row.Action);
        row.Button = button;
    }
    connect(wbButton14, &wbButton::Click, this, [] { Show_HelpPage(help_page::Reminders); });
}

void frmReminderEdit::Build_Pages() {
    CoolTab1 = new CoolTab(this);
    CoolTab1->setGeometry(PageLeft, TabTop, PageWidth, PageTop - TabTop - 1);
    CoolTab1->Set_Tabs(u"-1;Date Setup;-1;Hours Setup;-1;Message;-1;Sound;-1;Misc"_s);
    CoolTab1->setAccessibleName(u"Pages of the reminder"_s);
    CoolTab1->Select(static_cast<int>(CurrentPage));
    Picture2 = new DatePage(*this, this);
    Picture3 = new HourPage(*this, this);
    Picture6 = new MessagePage(this);
    Picture7 = new SoundPage(this);
    Picture10 = new MiscPage(this);
    for (int page = 0; page < CoolTab1->TabCount(); ++page)
        Page_Widget(page)->setGeometry(PageLeft, PageTop, PageWidth, PageHeight);
    Hide_All_Pages();
}

void frmReminderEdit::Connect_Pages() {
    connect(CoolTab1, &CoolTab::TabSelected, this, &frmReminderEdit::Set_CurrentPage);
    connect(Picture6, &MessagePage::Title_Changed, this, &frmReminderEdit::Title_Changed);
    connect(Picture6, &MessagePage::Text_Changed, this, &frmReminderEdit::Text_Changed);
    connect(Picture6, &MessagePage::Function_Enable_Changed, this,
            &frmReminderEdit::Function_Enable_Changed);
    connect(Picture6, &MessagePage::Edit_Function, this, &frmReminderEdit::Edit_Function);
    connect(Picture10, &MiscPage::Category_Chosen, this, &frmReminderEdit::Combo1_Click);
    connect(Picture10, &MiscPage::Delete_Category_Clicked, this,
            &frmReminderEdit::Delete_Category_Click);
    connect(Picture10, &MiscPage::Use_Icon_Clicked, this, &frmReminderEdit::Use_Icon_Click);
    connect(Picture10, &MiscPage::No_Icon_Clicked, this, &frmReminderEdit::No_Icon_Click);
    connect(Picture10->IconSelIMG, &IconPalette::Icon_Clicked, this,
            [this](const QString& name) { Select_Icon_By_Name(name, CardIcon::Update); });
}

void frmReminderEdit::Add_Shortcuts() {
    const auto Turn_Page = [this](int step) {
        const int count = CoolTab1->TabCount();
        const int page = (static_cast<int>(CurrentPage) + step + count) % count;
        CoolTab1->Select(page);
        Set_CurrentPage(page);
    };
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_N), this), &QShortcut::activated, this,
            &frmReminderEdit::New_Click);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), this), &QShortcut::activated, this,
            [Turn_Page] { Turn_Page(1); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), this),
            &QShortcut::activated, this, [Turn_Page] { Turn_Page(-1); });
}

void frmReminderEdit::Place_OnScreen() {
    const QRect screen = The_Screen();
    move(screen.left() + std::max(0, (screen.width() - width()) / 2),
         screen.top() + std::max(LeastTop, (screen.height() - height() - FrameHeight) / 2));
}

void frmReminderEdit::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Draw_Frame(painter, QRect(PageLeft - 1, PageTop - 1, PageWidth + 2, height() - PageTop - 6),
               palette::To_Color(palette::Outline));
}
