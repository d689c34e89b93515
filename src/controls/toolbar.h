// The toolbar as the rest of the house sees it. Implemented by the toolbar window, handed out by
// the application.
#pragma once

#include <QString>

// Screen pixels.
struct ToolbarRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

enum class HideMode {
    Best = -1, // chosen by the toolbar's place
    Top = 0,
    Left = 1,
    Right = 2,
    Bottom = 3,
    TrayIcon = 4,
};

class Toolbar {
public:
    virtual ~Toolbar() = default;

    virtual ToolbarRect Bounds() const = 0;
    // Moves the toolbar; pixels.
    virtual void Move_To(int left, int top) = 0;

    // Really there: neither hiding, nor collapsed, nor in the tray.
    virtual bool Toolbar_Visible() const = 0;
    virtual bool IsHiding() const = 0;
    virtual void AutoHide_HideProc(HideMode mode, bool forceHide) = 0;
    virtual void AutoHide_ShowProc(bool skipFade) = 0;
    virtual HideMode Get_Best_Auto_HideMode(bool forceBest) const = 0;
    // While guarded, the toolbar does not hide; the close button shows the reason.
    virtual void Guard_Hiding(const QString& reason) = 0;
    virtual void Lift_HideGuard() = 0;
};

extern Toolbar* Global_Toolbar;
