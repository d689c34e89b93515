// The toolbar window: a frameless strip of five buttons, the message line and the close button.
//
// Bounds are twips on the outside and live in plain numbers, so that they can be saved after the
// window is gone. With the mouse the strip is moved by everything that is not a button and sized at
// its right end. With the keyboard, once it has the focus: Tab goes through the buttons and the
// message line, Space or Return press, Ctrl+arrows move the strip, Ctrl+Shift+Left and Right size
// it, the menu key or Shift+F10 opens the menu of the message line or of the close button.
#pragma once

#include "controls/metrics.h"
#include "controls/step_timer.h"
#include "controls/toolbar.h"
#include "controls/wb_button.h"
#include "delivery/message_line.h"
#include "toolbar/collapse.h"
#include "toolbar/container_menus.h"
#include "toolbar/hide_rules.h"
#include "toolbar/toolbar_commands.h"
#include "toolbar/toolbar_drag.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class MessageSurface;
class MessageText;

// Where the settings want the strip, twips.
struct StartPlace {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Width = 0;
};

// What hiding asks of the pieces above.
struct HidePorts {
    // The strip goes to the tray: from now on a second launch brings it back by a command.
    std::function<void()> Complete_Hide;
    // The root menu of the links is on view.
    std::function<bool()> LinksMenu_Visible;
};

class MainForm : public QWidget, public Toolbar, public MessageLine {
    Q_OBJECT
public:
    explicit MainForm(ToolbarCommands& toolbarCommands);
    ~MainForm() override;

    // Takes its place and its look from the settings, once they are read. Does not show it.
    void Load_Window(const StartPlace& place);
    void Connect_Hiding(HidePorts hidePorts);
    // The owner of the popup menus; it serves reminder windows, too.
    frmContainer& Container() { return container; }
    // Where the strip stands; in the middle of a collapse, where that began.
    const TwipsRect& Live_Bounds() const { return collapsing ? saved : live; }
    // The bounds to come back to from a hide.
    const TwipsRect& Saved_Bounds() const { return saved; }
    // Shown if it was hidden, in front and with the keyboard focus: a second launch asks for it.
    void Activate();
    // The keyboard focus, to the strip as it is: a menu opened from it by keyboard has gone.
    void Take_Focus();
    // The mouse has been here just now.
    void MouseOver();
    // Millisecond clock of the last mouse activity.
    std::int32_t Last_MouseOver() const { return LastMouseOver; }

    ToolbarRect Bounds() const override { return toolbarRect; }
    void Move_To(int left, int top) override;
    bool Toolbar_Visible() const override;
    // Also while any other window fades.
    bool IsHiding() const override;
    // The thin strip stands for the toolbar, or is about to.
    bool Is_Collapsed() const;
    // The way of the last hide; Best before the first.
    HideMode Last_HideMode() const { return LastHideMode; }
    void AutoHide_HideProc(HideMode mode, bool forceHide) override;
    void AutoHide_ShowProc(bool skipFade) override;
    HideMode Get_Best_Auto_HideMode(bool forceBest) const override;
    void Guard_Hiding(const QString& reason) override;
    void Lift_HideGuard() override;

    int Line_Width() const override;
    int Text_Width(const QString& text) const override;
    void Put_Text(const QString& text, int width, int left) override;
    void Move_Text(int left) override;
    void Clear_Line() override;

    wbButton* wbButton1;
    wbButton* wbButton2;
    wbButton* wbButton3;
    wbButton* wbButton4;
    wbButton* wbButton5;
    wbButton* wbButton6;
    MessageSurface* Picture1;
    MessageText* Label1;
    wbButton* Picture2; // covers the strip while it is collapsed

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    enum class Trigger { Now, Paint };
    enum class UsedBy { Keyboard, Mouse };

    void Build_Buttons();
    void Enable_Buttons();
    void Set_Bounds(const TwipsRect& bounds);
    void Take_LiveBounds();
    void UpdateToolbarRect();
    void Lay_Out();
    void Cover_Excess();
    void Stay_OnTop(Trigger trigger);
    void Watch_Order();
    void Come_Up();
    void Hold_Size(const QSize& least, const QSize& most);
    void Stay_OnScreens();
    void Note_User(QEvent::Type type);
    void Settle_Focus();

    void Stand_Apart();
    void Take_Place();
    void Keep_Place();
    void Finish_Look();

    // x: pixels on the strip, cursor: on the screen.
    void Form_MouseDown(MouseButton button, int x, const QPoint& cursor);
    void Form_MouseMove(Qt::MouseButtons held, int x, const QPoint& cursor);
    void Form_MouseUp(MouseButton button);
    void Watch_SizeHandle(int x);
    void ResizeForm_Tick();
    bool Keyboard_Drag(const QKeyEvent& event);
    bool Open_FocusMenu();

    void wbButton1_Click();
    void Open_CloseMenu(const QPoint& where);
    void Do_CloseAction(CloseAction action);

    void AutoHideTimer_Tick();
    void Watch_Mouse();
    void Collapse_Strip(HideMode mode);
    void Collapse_Step();
    void Hide_Completely();
    void Restore_Bounds();
    void Minimize_Strip();
    void Hide_Strip();
    void Show_HideDisabledMessage();

    ToolbarCommands& commands;
    frmContainer container;
    HidePorts ports;
    ToolbarDrag drag;
    TwipsRect live;
    TwipsRect saved;
    ToolbarRect toolbarRect;
    std::vector<QRect> asked; // places the window system may still have to answer for, pixels
    std::int32_t lastAsked = 0;
    bool placing = false;
    int ResizeEdgeX = 0; // screen x of the right edge, while the pointer has the sizing shape
    bool sizePointer = false;
    std::int32_t LastMouseOver = 0;
    std::int32_t lastTopmost = 0;
    bool topmostCalled = false;
    // A collapse on its way, and when it began (millisecond clock).
    struct Collapsing {
        Collapse Rule;
        std::int32_t Start = 0;
    };
    std::optional<Collapsing> collapsing;
    StepTimer collapseTimer;
    QTimer restackTimer;
    UsedBy usedBy = UsedBy::Keyboard;
    HideMode LastHideMode = HideMode::Best;
    bool standsApart = false; // since the window was last mapped
    TwipsRect mappedAt;       // where it was to stand then
    MouseButton LastCloseButton = MouseButton::Left;
    std::int16_t LastCloseShift = NoShiftKey;
    bool DisableAutoHide_Method = false;
    QString DisableAutoHide_Method_ErrStr;
};
