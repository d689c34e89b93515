// What the program's windows have in common: their colours, whatever theme the desktop has, the
// small font, the question before closing, and a release that never pulls a window away from
// under its own handler.
#pragma once

#include "controls/palette.h"

#include <QWidget>

class QLabel;

enum class UnloadMode {
    User,   // the close box, or Escape
    Code,   // a handler of the window
    Ending, // the system closes it; nothing can stop that
};

class Form : public QWidget {
    Q_OBJECT
public:
    // A window of its own; with an owner it stays above it and goes away with it.
    explicit Form(QWidget* owner = nullptr, Qt::WindowFlags kind = Qt::Window);

    // Asks Query_Unload; unless it refuses, hides the form and releases it soon. False: refused.
    bool Unload(UnloadMode mode = UnloadMode::Code);
    bool Is_Unloading() const { return unloading; }

    // A text at a place in pixels; as wide as it needs when the width is 0.
    QLabel* Add_Label(const QString& text, int left, int top, int width = 0,
                      QWidget* parent = nullptr);
    void Set_BackColor(ColorValue color);
    // Shows the form, raises it and gives it the focus; at the centre of the screen, unless it was
    // placed before.
    void Present();

Q_SIGNALS:
    void Unloaded();

protected:
    // Whether the form may go. It may pump events.
    virtual bool Query_Unload(UnloadMode) { return true; }
    // Once, when the form goes.
    virtual void On_Unload() {}
    // Escape unloads the form as the close box does, unless this says no.
    virtual bool Escape_Unloads() const { return true; }

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Centre_OnScreen();

    bool unloading = false;
    bool asking = false;
};

// Those that are still there, once the event loop has returned.
void Release_Forms();

// The colours of windows, fields and lists: dark on light whatever the desktop's theme is.
QPalette Form_Palette(ColorValue back = palette::Form_Back);
