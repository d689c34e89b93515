// A toolbar that is only a place, a guard and whether it can be seen.
#pragma once

#include "controls/toolbar.h"

#include <QStringList>

class FakeToolbar : public Toolbar {
public:
    FakeToolbar() : before(Global_Toolbar) { Global_Toolbar = this; }
    ~FakeToolbar() override { Global_Toolbar = before; }

    ToolbarRect bounds{400, 0, 733, 20};
    QString guard;
    bool visible = true;
    int shown = 0;     // how often it was asked to show itself
    QStringList steps; // hides and shows that changed something, in order

    ToolbarRect Bounds() const override { return bounds; }
    void Move_To(int left, int top) override {
        bounds = {left, top, left + bounds.Right - bounds.Left, top + bounds.Bottom - bounds.Top};
    }
    bool Toolbar_Visible() const override { return visible; }
    bool IsHiding() const override { return false; }
    void AutoHide_HideProc(HideMode mode, bool forceHide) override {
        if (!guard.isEmpty() && !forceHide)
            return;
        steps.append(QStringLiteral("hide %1").arg(static_cast<int>(mode)));
        visible = false;
    }
    void AutoHide_ShowProc(bool /*skipFade*/) override {
        ++shown;
        if (!visible)
            steps.append(QStringLiteral("show"));
        visible = true;
    }
    HideMode Get_Best_Auto_HideMode(bool forceBest) const override {
        return forceBest ? HideMode::Right : HideMode::TrayIcon;
    }
    void Guard_Hiding(const QString& reason) override { guard = reason; }
    void Lift_HideGuard() override { guard.clear(); }

private:
    Toolbar* before;
};
