// The forms of the links menu: how they are built, shown, hidden and opened one from the other.
#include "links/menu/links_menu_v2.h"

#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "links/menu/link_target.h"
#include "links/menu/menu_accessible.h"
#include "links/menu/menu_placement.h"
#include "settings/global_settings.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int ShowMenuDelay = 500;   // ms that the mouse rests on a category
constexpr int MouseInsideDelay = 10; // ms

Qt::WindowFlags Menu_Flags(MenuOpenedBy how) {
    const Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    return how == MenuOpenedBy::Mouse ? flags | Qt::WindowDoesNotAcceptFocus : flags;
}

} // namespace

LinksMenuV2::LinksMenuV2(MenuOpenedBy how, const QRect& toolbarStrip, MenuLevels& known)
    : QWidget(nullptr, Menu_Flags(how)), IsMainForm(true),
      UseTransparencyOnThisForm(Global_UseTransparency), levels(known),
      strip(Bounds_Of(toolbarStrip)), openedBy(how) {
    Build_Window();
}

// The focus stays in the root form.
LinksMenuV2::LinksMenuV2(LinksMenuV2& parent)
    : QWidget(nullptr, Menu_Flags(MenuOpenedBy::Mouse)),
      UseTransparencyOnThisForm(parent.UseTransparencyOnThisForm), ParentForm(&parent),
      levels(parent.levels), strip(parent.strip), openedBy(parent.openedBy) {
    Build_Window();
}

LinksMenuV2::~LinksMenuV2() = default;

void LinksMenuV2::Build_Window() {
    Install_MenuAccessibility();
    setWindowTitle(u"My Links"_s);
    setAccessibleName(u"My Links"_s);
    Set_HelpTopic(*this, help_page::Links);
    setWindowIcon(Load_Icon(IconName::Program));
    setFont(Small_Font());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    setMinimumSize(1, 1);
    ShowMenuTimer.setSingleShot(true);
    ShowMenuTimer.setInterval(ShowMenuDelay);
    MouseInsideFormTimer.setInterval(MouseInsideDelay);
    connect(&ShowMenuTimer, &QTimer::timeout, this, &LinksMenuV2::ShowMenuTimer_Tick);
    connect(&MouseInsideFormTimer, &QTimer::timeout, this, &LinksMenuV2::MouseInsideFormTimer_Tick);
}

void LinksMenuV2::LoadLinksData(const std::shared_ptr<LinksData>& links) {
    level = levels.Level_Of(links);
    Take_Size();
}

QSize LinksMenuV2::Level_Size() const {
    const int widest = Own_Screen().width();
    return {std::min(level->Layout.Width, widest), level->Layout.Height};
}

void LinksMenuV2::Take_Size() {
    const QSize whole = Level_Size();
    resize(whole.width(), std::min(whole.height(), Own_Screen().height()));
}

// That of the toolbar, whose menu it is.
QRect LinksMenuV2::Own_Screen() const {
    return Screen_At({(strip.Left + strip.Right) / 2, (strip.Top + strip.Bottom) / 2});
}

bool LinksMenuV2::Fades_Here() const {
    return UseTransparencyOnThisForm && Global_UseTransparency && Global_IsWinXP;
}

bool LinksMenuV2::Holds_Focus() const {
    return IsMainForm && openedBy == MenuOpenedBy::Keyboard;
}

LinksMenuV2& LinksMenuV2::Root() {
    LinksMenuV2* form = this;
    while (form->ParentForm)
        form = form->ParentForm;
    return *form;
}

void LinksMenuV2::ShowForm() {
    if (Program_Is_Ending())
        return;
    // One that is called back while it fades has been left: the mouse counts as new on its row.
    Select_Row(NoMenuRow);
    hoveredCategory = selectedRow = pressedRow = NoMenuRow;
    open = onView = true;
    screenRect = Bounds_Of(geometry());
    shownAt.reset();
    if (openedBy == MenuOpenedBy::Keyboard)
        shownAt = platform::Desktop::Get().Cursor_Position();
    platform::Windows& windows = platform::Windows::Get();
    windows.Leave_TaskBar(winId());
    windows.Keep_Place(winId());
    if (Fades_Here()) {
        Global_Transparency().DoFadeIn(this, this);
        Global_Transparency().Enable_TC_Timer();
    } else {
        Global_Transparency().DeleteHWNDfromList(winId(), Layering::Remove, FadeEnd::KeepForm);
        show();
        if (IsMainForm)
            Global_Timers->Enable(TimerName::Win98HideForms, false);
    }
    windows.Set_Topmost(winId(), true);
    if (Holds_Focus())
        windows.Activate(winId());
    // A child waits for the mouse to enter it: until then the mouse is still on its way.
    if (IsMainForm && openedBy == MenuOpenedBy::Mouse)
        MouseInsideFormTimer.start();
}

void LinksMenuV2::HideForm() {
    const bool wasShown = std::exchange(onView, false);
    open = false;
    ShowMenuTimer.stop();
    MouseInsideFormTimer.stop();
    if (ChildForm)
        ChildForm->HideForm();
    hoveredCategory = selectedRow = highlight = pressedRow = NoMenuRow;
    shift = 0;
    if (testAttribute(Qt::WA_WState_Created))
        Global_Transparency().DeleteHWNDfromList(winId(), Layering::Remove, FadeEnd::KeepForm);
    hide();
    if (!IsMainForm || !wasShown)
        return;
    if (!Fades_Here() && !Program_Is_Ending())
        Global_Timers->Enable(TimerName::Win98HideForms);
    Q_EMIT Menu_Gone();
}

// The toolbar sends the menu away like any form that is to be unloaded.
void LinksMenuV2::hideEvent(QHideEvent*) {
    if (onView && !isVisible())
        HideForm();
}

void LinksMenuV2::Leave_Form() {
    if (!open)
        return;
    ChidForm_HideAllChilds();
    if (!Fades_Here() || AvoidFadeOut || Program_Is_Ending()) {
        HideForm();
        return;
    }
    open = false;
    ShowMenuTimer.stop();
    MouseInsideFormTimer.stop();
    Global_Transparency().DoFadeOut(this, this);
    Global_Transparency().Enable_TC_Timer();
}

void LinksMenuV2::ChidForm_HideAllChilds() {
    hoveredCategory = NoMenuRow;
    if (!ChildForm)
        return;
    ChildForm->ChidForm_HideAllChilds();
    ChildForm->Leave_Form();
}

void LinksMenuV2::Child_HideAllChilds() {
    ShowMenuTimer.stop();
    MouseInsideFormTimer.stop();
    if (ChildForm)
        ChildForm->Child_HideAllChilds();
}

LinksMenuV2* LinksMenuV2::Make_Child(int row) {
    std::unique_ptr<LinksMenuV2>& child = children[row];
    if (child == nullptr) {
        child.reset(new LinksMenuV2(*this));
        child->setAccessibleName(Caption(row));
        child->LoadLinksData(Item(row).Level);
    }
    return child.get();
}

void LinksMenuV2::Open_Child(int row) {
    delayedRow = NoMenuRow;
    if (!open || row < 0 || row >= Row_Count() || Kind(row) != MenuRowKind::Category)
        return;
    LinksMenuV2* child = Make_Child(row);
    if (ChildForm == child && child->Is_Open())
        return;
    ChidForm_HideAllChilds();
    ChildForm = child;
    hoveredCategory = row;
    child->Take_Size();
    child->move(
        Place_ChildMenu(geometry(), y() + Row_Rect(row).top(), child->Level_Size(), Own_Screen()));
    child->ShowForm();
}

void LinksMenuV2::Click_Row(int row) {
    if (!open || row < 0 || row >= Row_Count() || Program_Is_Ending())
        return;
    if (Kind(row) == MenuRowKind::Category) {
        ShowMenuTimer.stop();
        Open_Child(row);
        return;
    }
    if (Kind(row) == MenuRowKind::Separator)
        return;
    const MenuItem item = Item(row);
    LinksMenuV2& root = Root();
    root.AvoidFadeOut = true;
    const bool heldFocus = root.Holds_Focus();
    root.HideForm();
    if (heldFocus)
        Q_EMIT root.Focus_Returned();
    // The link may build the menu anew, or end the program: nothing of this form is used below.
    Open_Link(item.URL, item.StartSize);
    Unload_PendingForms();
}
