// Windows driven by mouse and keyboard, as a person does.
#pragma once

#include "desktop/program_fixture.h"

// Mouse and keyboard on the program's windows.
class Driven : public Program {
protected:
    QStringList At(int x, int y) const { return {QString::number(x), QString::number(y)}; }
    void Click(const QString& window, int x, int y, const QString& button = u"1"_s) const {
        desktop.XDo(QStringList{u"mousemove"_s, u"--window"_s, window} + At(x, y) +
                    QStringList{u"click"_s, button});
    }
    void Keys(const QStringList& keys) const { desktop.XDo(QStringList{u"key"_s} + keys); }
    void Type(const QString& text) const { desktop.XDo({u"type"_s, text}); }
    // Instead of what stands in the field.
    void Retype(const QString& text) const {
        Keys({u"ctrl+a"_s});
        Type(text);
    }
    QString Open(const QString& title, int button) const {
        Click(Strip_Window(), button, 10);
        return Wait_For_Focus(title);
    }
    // The window once it has the keyboard.
    QString Wait_For_Focus(const QString& title) const {
        QString window;
        EXPECT_TRUE(Wait_Until([&] {
            window = desktop.Visible_Windows(title).value(0);
            return !window.isEmpty() && desktop.XDo({u"getactivewindow"_s}) == window;
        })) << qPrintable(title);
        return window;
    }
    void Wait_Until_Gone(const QString& title) const {
        EXPECT_TRUE(Wait_Until([&] { return Count(title) == 0; })) << qPrintable(title);
    }
    // A popup menu, beside the program's other windows without such a title.
    bool A_Menu_Is_Open(int before) const { return Windows_OfProgram() > before; }
    int Windows_OfProgram() const {
        return static_cast<int>(desktop.Search({u"--class"_s, u"^tockly$"_s}).size());
    }
    // Enter answers the box.
    void Agree(const QString& title) const {
        Wait_For_Focus(title);
        Keys({u"Return"_s});
        Wait_Until_Gone(title);
    }
};
