// Windows driven by mouse and keyboard, as a person does.
#pragma once

#include "desktop/accessible.h"
#include "desktop/program_fixture.h"

// What a screen reader says of a control.
struct Named {
    const char* role;
    QByteArray name;
};

inline const Named CloseButton{"push button", "Minimize/Hide/Close (Right-click for more options)"};
inline const Named MessageLine{"filler", "Message line"};

// Mouse and keyboard on the program's windows.
class Driven : public Program {
protected:
    // Waits until the control is there and stands still.
    Control Find(const QString& window, const Named& wanted) const {
        Control found;
        const bool there = Wait_Until([&] {
            const QRect before = found.place;
            found = {};
            for (const Control& control : desktop.Controls(window)) {
                if (control.role == QLatin1String(wanted.role) &&
                    control.name == QString::fromUtf8(wanted.name)) {
                    found = control;
                    break;
                }
            }
            return !found.role.isEmpty() && found.place == before;
        });
        EXPECT_TRUE(there) << "no " << wanted.role << " \"" << wanted.name.data() << "\" among\n"
                           << qPrintable(desktop.Spoken(window));
        return found;
    }
    // Near its left end, where a check box has its box.
    QPoint Place(const QString& window, const Named& wanted) const {
        const QRect place = Find(window, wanted).place;
        return {place.left() + std::min(place.width() / 2, 12), place.center().y()};
    }
    static QStringList Move_To(const QPoint& place) {
        return {u"mousemove"_s, QString::number(place.x()), QString::number(place.y())};
    }
    void Click(const QPoint& place, const QString& button = u"1"_s) const {
        desktop.XDo(Move_To(place) + QStringList{u"click"_s, button});
    }
    void Click(const QString& window, const Named& wanted, const QString& button = u"1"_s) const {
        Click(Place(window, wanted), button);
    }
    // With a step on the way, as a hand does it.
    void Drag(const QPoint& from, const QPoint& to) const {
        desktop.XDo(Move_To(from) + QStringList{u"mousedown"_s, u"1"_s} + Move_To((from + to) / 2) +
                    Move_To(to) + QStringList{u"mouseup"_s, u"1"_s});
    }
    // Text stands on the message line once more than its background and frame are to be seen.
    bool Line_Has_Text() const { return desktop.Colours(Find(Strip, MessageLine).place) > 1; }
    void Keys(const QStringList& keys) const { desktop.XDo(QStringList{u"key"_s} + keys); }
    void Type(const QString& text) const { desktop.XDo({u"type"_s, text}); }
    // Instead of what stands in the field.
    void Retype(const QString& text) const {
        Keys({u"ctrl+a"_s});
        Type(text);
    }
    void Open(const QString& title, const char* button) const {
        Click(Strip, {"push button", button});
        Wait_For_Focus(title);
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
    // A row of the program's own links.
    void Choose_OwnLink(const char* row, const QString& title) const {
        // The menu before has faded out.
        EXPECT_TRUE(Wait_Until([&] { return desktop.Controls(u"My Links"_s).empty(); }));
        Click(Strip, {"push button", "My Links"});
        Click(u"My Links"_s, {"menu item", "Tockly"});
        Click(u"Tockly"_s, {"menu item", row});
        Wait_For_Focus(title);
    }
    // The key that is held says what the button does.
    void Press_Close(const QString& key, const QPoint& button) const {
        if (!key.isEmpty()) {
            desktop.XDo({u"keydown"_s, key});
        }
        Click(button);
        if (!key.isEmpty()) {
            desktop.XDo({u"keyup"_s, key});
        }
    }
    bool Is_Collapsed() const { return desktop.Geometry(Strip_Window()).height() == 8; }
    void Click_Rest() const { Click(Strip, {"push button", "Click here to show the toolbar"}); }
    bool Any_Fades() const {
        const QStringList windows = desktop.Search({u"--class"_s, u"^tockly$"_s});
        return std::any_of(windows.begin(), windows.end(), [this](const QString& window) {
            return desktop.Property(window, u"_NET_WM_WINDOW_OPACITY"_s).contains(u'=');
        });
    }
    // Without a tray the strip collapses instead: as long as the panel has not brought its tray up.
    bool Hide_Completely() const {
        return Wait_Until([&] {
            Wait_Until([&] { return !Any_Fades(); }); // it stays in the fade of any window
            Press_Close(u"shift"_s, Place(Strip, CloseButton));
            Wait_Until([&] { return Count(Strip) == 0 || Is_Collapsed(); }, 8000);
            if (!Is_Collapsed()) {
                return Count(Strip) == 0;
            }
            Click_Rest();
            return false;
        });
    }
    // A later launch gives the strip the keyboard.
    void Launch_Again() const {
        Tockly second(desktop, Home());
        second.Start();
        EXPECT_EQ(second.Wait_For_End(), 0);
    }
    void Wait_Until_Gone(const QString& title) const {
        EXPECT_TRUE(Wait_Until([&] { return Count(title) == 0; })) << qPrintable(title);
    }
    // The toolkit's popup menus are told to screen readers row by row alone.
    bool A_Menu_Opens_Beside(int windows) const {
        return Wait_Until([&] { return Windows_OfProgram() > windows; });
    }
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
