// A desktop of its own for one test: a virtual screen with window manager, compositor and panel,
// and the program started on it with folders of its own.
#pragma once

#include "desktop/accessible.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

// True as soon as the condition holds; false when it does not within the time.
bool Wait_Until(const std::function<bool()>& condition, int milliseconds = 15000);

class TestDesktop {
public:
    explicit TestDesktop(const QString& size = QStringLiteral("1024x768"));
    ~TestDesktop();

    bool Is_Up() const { return up; }
    QProcessEnvironment Environment() const { return environment; }
    // Runs a command on this desktop and returns what it printed.
    QString Run(const QStringList& command) const;
    QString XDo(const QStringList& arguments) const;
    // Ends the screen under whatever runs on it.
    void Kill_Screen();

    // Window numbers whose title is exactly this, as the window system lists them when mapped.
    QStringList Visible_Windows(const QString& title) const;
    // Those that xdotool finds: {"--class", "^tockly$"}.
    QStringList Search(const QStringList& by) const;
    bool Wait_For_Window(const QString& title) const;
    // What the windows of a title show to a screen reader, in pixels of the screen; all without
    // one.
    std::vector<Control> Controls(const QString& window = {}) const;
    QString Spoken(const QString& window) const;
    QRect Geometry(const QString& window) const;
    QString Property(const QString& window, const QString& name) const;
    // How many different colours a part of the screen has.
    int Colours(const QRect& area) const;

private:
    void Start(const QStringList& command);
    void Start_Bus();

    QTemporaryDir runtime;
    QProcessEnvironment environment;
    std::vector<std::unique_ptr<QProcess>> processes; // the screen first
    bool up = false;
};

// One copy of the program. Its folders outlive it when they are given.
class Tockly {
public:
    explicit Tockly(const TestDesktop& desktop, const QString& home);
    ~Tockly();

    // Another build of it can be named.
    static QString Path();
    void Set_Environment(const QString& name, const QString& value);
    // Of one day, running on from there.
    void Set_Clock(const QString& time);
    // Runs the program through another one: {"setpriv", ...}.
    void Start(const QStringList& through = {});
    void Signal(int number);
    bool Is_Running();
    // The exit code; -1 when it did not end in time or crashed.
    int Wait_For_End(int milliseconds = 20000);
    // Asks it to end.
    int End();

private:
    QProcess process;
    QProcessEnvironment environment;
};

// Values as the registry's text file holds them; empty when absent.
QString Registry_Value(const QString& home, const QString& file, const QString& name);
QByteArray File_Bytes(const QString& path);
bool Write_File(const QString& path, const QByteArray& bytes);
// Reminders that a "reminders.dat" holds by its header; -1 when it is none.
int Reminder_Count(const QString& path);
