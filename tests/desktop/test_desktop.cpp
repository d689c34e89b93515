#include "desktop/test_desktop.h"

#include "desktop/accessible.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QThread>

#include <csignal>

using namespace Qt::StringLiterals;

bool Wait_Until(const std::function<bool()>& condition, int milliseconds) {
    QElapsedTimer elapsed;
    elapsed.start();
    while (!condition()) {
        if (elapsed.hasExpired(milliseconds)) {
            return false;
        }
        QThread::msleep(20);
    }
    return true;
}

TestDesktop::TestDesktop(const QString& size)
    : environment(QProcessEnvironment::systemEnvironment()) {
    environment.remove(u"WAYLAND_DISPLAY"_s);
    environment.remove(u"QT_QPA_PLATFORM"_s);
    environment.insert(u"SDL_AUDIODRIVER"_s, u"dummy"_s);
    environment.insert(u"XDG_RUNTIME_DIR"_s, runtime.path());
    auto screen = std::make_unique<QProcess>();
    screen->setStandardErrorFile(QProcess::nullDevice());
    screen->start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, size + "x24"_L1,
                              u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
    QByteArray number;
    while (!number.endsWith('\n') && screen->waitForReadyRead(20000)) {
        number += screen->readAllStandardOutput();
    }
    processes.push_back(std::move(screen));
    if (number.trimmed().isEmpty()) {
        return;
    }
    environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(number.trimmed()));
    Start_Bus();
    // A window manager that comes up too early for its screen goes again.
    for (int attempt = 0; attempt < 3 && !up; ++attempt) {
        Start({u"openbox"_s});
        up = Wait_Until(
            [this] {
                return Run({u"xprop"_s, u"-root"_s, u"_NET_SUPPORTING_WM_CHECK"_s})
                    .contains("window id"_L1);
            },
            5000);
    }
    Start({u"picom"_s, u"--backend"_s, u"xrender"_s});
    Start({u"tint2"_s});
}

TestDesktop::~TestDesktop() {
    while (!processes.empty()) {
        processes.back()->terminate();
        if (!processes.back()->waitForFinished(5000)) {
            processes.back()->kill();
            processes.back()->waitForFinished();
        }
        processes.pop_back();
    }
}

void TestDesktop::Start(const QStringList& command) {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(command.first(), command.mid(1));
    process->waitForStarted();
    processes.push_back(std::move(process));
}

// Screen readers reach the program over a bus of its own, which the session's knows.
void TestDesktop::Start_Bus() {
    const QString address = "unix:path="_L1 + runtime.path() + "/bus"_L1;
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
    Start({u"dbus-daemon"_s, u"--session"_s, u"--nofork"_s, u"--nopidfile"_s,
           u"--address="_s + address});
    QString reached;
    Wait_Until([&] {
        reached = Run({u"dbus-send"_s, u"--session"_s, u"--print-reply=literal"_s,
                       u"--dest=org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus.GetAddress"_s});
        return !reached.isEmpty();
    });
    Connect_Accessibility(reached.toLatin1());
}

void TestDesktop::Kill_Screen() {
    processes.front()->kill();
    processes.front()->waitForFinished();
}

QString TestDesktop::Run(const QStringList& command) const {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(command.first(), command.mid(1));
    process.waitForFinished(20000);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QString TestDesktop::XDo(const QStringList& arguments) const {
    return Run(QStringList{u"xdotool"_s} + arguments);
}

QStringList TestDesktop::Visible_Windows(const QString& title) const {
    // An escaped quote would be the end of the text to the tool.
    const QString pattern = QRegularExpression::escape(title).replace(u"\\'"_s, u"'"_s);
    return Search({u"--name"_s, u'^' + pattern + u'$'});
}

QStringList TestDesktop::Search(const QStringList& by) const {
    // It fails as a whole when a window goes away under it.
    for (;;) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(u"xdotool"_s, QStringList{u"search"_s, u"--onlyvisible"_s} + by);
        process.waitForFinished(20000);
        if (!process.readAllStandardError().contains("X Error")) {
            return QString::fromUtf8(process.readAllStandardOutput())
                .split(u'\n', Qt::SkipEmptyParts);
        }
    }
}

bool TestDesktop::Wait_For_Window(const QString& title) const {
    return Wait_Until([&] { return !Visible_Windows(title).isEmpty(); });
}

std::vector<Control> TestDesktop::Controls(const QString& window) const {
    std::vector<Control> controls = Shown_Controls(window);
    const double scale = environment.value(u"QT_SCALE_FACTOR"_s, u"1"_s).toDouble();
    for (Control& control : controls) {
        control.place = {(control.place.topLeft().toPointF() * scale).toPoint(),
                         (control.place.size().toSizeF() * scale).toSize()};
    }
    return controls;
}

QString TestDesktop::Spoken(const QString& window) const {
    QString text;
    for (const Control& control : Controls(window)) {
        text += u"%1 \"%2\"%3 %4,%5 %6x%7\n"_s.arg(control.role, control.name)
                    .arg(control.checked ? u" (checked)"_s : QString())
                    .arg(control.place.x())
                    .arg(control.place.y())
                    .arg(control.place.width())
                    .arg(control.place.height());
    }
    return text;
}

QRect TestDesktop::Geometry(const QString& window) const {
    const QString text = XDo({u"getwindowgeometry"_s, u"--shell"_s, window});
    const auto number = [&text](const QString& name) {
        const QRegularExpression line(u'^' + name + "=(-?\\d+)"_L1,
                                      QRegularExpression::MultilineOption);
        return line.match(text).captured(1).toInt();
    };
    return {number(u"X"_s), number(u"Y"_s), number(u"WIDTH"_s), number(u"HEIGHT"_s)};
}

QString TestDesktop::Property(const QString& window, const QString& name) const {
    return Run({u"xprop"_s, u"-id"_s, window, name});
}

int TestDesktop::Colours(const QRect& area) const {
    return Run({u"import"_s, u"-window"_s, u"root"_s, u"-crop"_s,
                u"%1x%2+%3+%4"_s.arg(area.width()).arg(area.height()).arg(area.x()).arg(area.y()),
                u"-format"_s, u"%k"_s, u"info:-"_s})
        .toInt();
}

Tockly::Tockly(const TestDesktop& desktop, const QString& home)
    : environment(desktop.Environment()) {
    environment.insert(u"TOCKLY_HOME"_s, home);
    environment.insert(u"TOCKLY_REGISTRY"_s, home);
    environment.insert(u"XDG_CONFIG_HOME"_s, home + "/config"_L1);
}

Tockly::~Tockly() {
    if (Is_Running()) {
        process.kill();
        process.waitForFinished();
    }
}

void Tockly::Set_Environment(const QString& name, const QString& value) {
    environment.insert(name, value);
}

void Tockly::Set_Clock(const QString& time) {
    environment.insert(u"LD_PRELOAD"_s, u"/usr/$LIB/faketime/libfaketimeMT.so.1"_s);
    environment.insert(u"FAKETIME"_s, "@2026-11-23 "_L1 + time);
    environment.insert(u"DONT_FAKE_MONOTONIC"_s, u"1"_s);
}

void Tockly::Start(const QStringList& through) {
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    const QStringList command = through + QStringList{Path()};
    process.start(command.first(), command.mid(1));
    process.waitForStarted();
}

QString Tockly::Path() {
    return qEnvironmentVariable("TOCKLY_PROGRAM", QStringLiteral(TOCKLY_EXECUTABLE));
}

void Tockly::Signal(int number) {
    ::kill(static_cast<pid_t>(process.processId()), number);
}

bool Tockly::Is_Running() {
    return process.state() != QProcess::NotRunning && !process.waitForFinished(0);
}

int Tockly::Wait_For_End(int milliseconds) {
    if (Is_Running() && !process.waitForFinished(milliseconds)) {
        return -1;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

int Tockly::End() {
    Signal(SIGTERM);
    return Wait_For_End();
}

QString Registry_Value(const QString& home, const QString& file, const QString& name) {
    const QString text = QString::fromLatin1(File_Bytes(home + u'/' + file));
    const QRegularExpression line(u"^\"%1\"=(.*?)\\r?$"_s.arg(QRegularExpression::escape(name)),
                                  QRegularExpression::MultilineOption);
    return line.match(text).captured(1);
}

QByteArray File_Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Write_File(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

int Reminder_Count(const QString& path) {
    const QByteArray bytes = File_Bytes(path);
    if (!bytes.startsWith("RSaveFile001") || bytes.size() < 16) {
        return -1;
    }
    const auto byte = [&bytes](int at) { return static_cast<unsigned char>(bytes[at]); };
    return byte(12) | byte(13) << 8 | byte(14) << 16 | byte(15) << 24;
}
