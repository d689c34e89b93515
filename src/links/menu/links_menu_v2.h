// The "My Links" menu: a borderless form above all others for one level of the links, beside it one
// for the category that is open in it, and so on. It is no menu of the toolkit: it fades, a link is
// one click, and it follows the mouse by itself.
//
// The rows are painted. A level higher than the screen runs off it: the form ends at the edge, and
// the wheel and the keys shift the rows. Keys go to the root form, which hands them to the form
// that the user is in.
#pragma once

#include "controls/transparency.h"
#include "links/menu/menu_level.h"
#include "links/menu/menu_tracking.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>

class LinksData;
class QHelpEvent;

enum class MenuOpenedBy { Mouse, Keyboard };

class LinksMenuV2 : public QWidget, public FadeWorkForm {
    Q_OBJECT
public:
    // A root form. strip: the toolbar, screen pixels; a mouse over it has not left the menu.
    // levels: of the tree that it shows; they outlive it.
    LinksMenuV2(MenuOpenedBy how, const QRect& strip, MenuLevels& levels);
    ~LinksMenuV2() override;

    // Fills the form, once.
    void LoadLinksData(const std::shared_ptr<LinksData>& links);
    // Size of the level, pixels: no wider than the screen. The form itself is no higher either.
    QSize Level_Size() const;

    void ShowForm();
    // Hides the form and those it led to, without a fade.
    void HideForm();
    void Hide_Form() override { HideForm(); }
    // The same for the way the user leaves it: with a fade, if fades are on for the form.
    void Leave_Form();

    // Told by a child: the mouse is in it. The highlight goes to the child's row.
    void ParentForm_ChildGotFocus();
    void ChidForm_HideAllChilds();
    // Stops the timers from here downward, and hides nothing.
    void Child_HideAllChilds();
    // The mouse has left the parent: hides this form wherever the mouse is. Leaving the child asks
    // for the mouse, and this does not; that is meant.
    void Child_ParentLostFocus();
    // The mouse has left the child: hides this form too, unless it holds the mouse.
    void Parent_ChildLostFocus();

    // On view, and not on its way out.
    bool Is_Open() const { return open; }
    bool Is_MainForm() const { return IsMainForm; }
    LinksMenuV2* Child_Form() const { return ChildForm; }
    LinksMenuV2* Parent_Form() const { return ParentForm; }
    int Selected_Row() const { return selectedRow; }

    int Row_Count() const { return static_cast<int>(level->Items.size()); }
    const MenuItem& Item(int row) const { return level->Items[static_cast<std::size_t>(row)]; }
    const QString& Caption(int row) const { return level->Captions[static_cast<std::size_t>(row)]; }
    MenuRowKind Kind(int row) const { return level->Kinds[static_cast<std::size_t>(row)]; }
    // Where a row stands in the form, pixels; outside of it while shifted away.
    QRect Row_Rect(int row) const;
    // As a click does: opens the category, or the link. The form may be gone afterwards.
    void Click_Row(int row);

Q_SIGNALS:
    // The root form is no longer on view.
    void Menu_Gone();
    // The root form was opened by keyboard, and its user is done with it.
    void Focus_Returned();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    explicit LinksMenuV2(LinksMenuV2& parent);

    void Build_Window();
    void Take_Size();
    QRect Own_Screen() const;
    bool Fades_Here() const;
    bool Holds_Focus() const;
    LinksMenuV2& Root();

    void Mouse_Over(const QPoint& place);
    void Mouse_AtRow(int row);
    void ShowMenuTimer_Tick();
    void MouseInsideFormTimer_Tick();
    bool Form_Holds_Mouse() const;
    bool Mouse_Is_Inside(platform::Point mouse) const;

    void Open_Child(int row);
    LinksMenuV2* Make_Child(int row);
    void Select_Row(int row);
    void Shift_To(int newShift);
    int Row_AtPlace(const QPoint& place) const;
    QString Tip_Of(int row) const;
    void Show_Tip(const QHelpEvent& asked);

    // The form the keys are for.
    LinksMenuV2& Key_Form();
    bool Key_Pressed(const QKeyEvent& event);
    bool Take_Letter(const QString& text);
    void Choose_Row(int row);
    void Enter_Child();
    void Tell_ScreenReader(int row);

    void Paint_Headers(QPainter& painter) const;
    QString Fitting_Text(int row, int room) const;
    void Paint_Row(QPainter& painter, int row) const;
    void Paint_Ends(QPainter& painter) const;

    bool IsMainForm = false;
    bool UseTransparencyOnThisForm = true;
    bool AvoidFadeOut = false;
    QPointer<LinksMenuV2> ChildForm;
    QPointer<LinksMenuV2> ParentForm;
    MenuLevels& levels;
    std::shared_ptr<const MenuLevel> level = std::make_shared<MenuLevel>();
    std::map<int, std::unique_ptr<LinksMenuV2>> children; // by their rows, once opened
    MenuBounds screenRect;                                // when it was shown
    MenuBounds strip;
    MenuOpenedBy openedBy;
    std::optional<platform::Point> shownAt; // the cursor, when it was shown for the keyboard
    QTimer ShowMenuTimer;
    QTimer MouseInsideFormTimer;
    bool open = false;
    bool onView = false;             // open, or fading out
    int hoveredCategory = NoMenuRow; // whose submenu is open
    int selectedRow = NoMenuRow;     // under the mouse
    int highlight = NoMenuRow;       // where SelShape is
    int pressedRow = NoMenuRow;
    int delayedRow = NoMenuRow; // that ShowMenuTimer is for
    int shift = 0;              // the rows are that far up
    QString typed;
    std::int32_t lastTyped = 0; // millisecond clock
};
