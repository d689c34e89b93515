#include "platform/shell.h"

#include "platform/linux/x11.h"
#include "platform/providers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// Two letters at least: "c:" is a drive of the other system, no scheme.
bool Is_Address(const QString& target) {
    static const QRegularExpression Scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:."_s);
    return Scheme.match(target).hasMatch();
}

// The permission alone says nothing: on many mounted disks every picture has it.
bool Is_Program(const QFileInfo& info) {
    QFile file(info.filePath());
    if (!info.isFile() || !info.isExecutable() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray start = file.read(4);
    return start.startsWith("#!") || start == QByteArray("\x7f"
                                                         "ELF");
}

// No window manager takes a show state for a window that is yet to come. So the windows that come
// up within a while are looked through for one that belongs to what was started: by the note that
// the environment hands to it, because its process is of the session that was begun for it, or, if
// it tells of neither, by the program's name. An application that ran before and knows nothing of
// the note opens as it likes.
struct StateWish {
    ShowState state;
    QByteArray name; // of the program
    QByteArray note;
    std::vector<std::uint32_t> windowsBefore;
    pid_t session = -1;
};

bool Is_OrdinaryWindow(xcb_window_t window) {
    const auto types = x11::Items(window, "_NET_WM_WINDOW_TYPE");
    const xcb_atom_t ordinary = x11::Atom("_NET_WM_WINDOW_TYPE_NORMAL");
    return types.empty() || std::find(types.begin(), types.end(), ordinary) != types.end();
}

bool Belongs_To(const StateWish& wish, xcb_window_t window) {
    const auto& before = wish.windowsBefore;
    if (std::find(before.begin(), before.end(), window) != before.end() ||
        !Is_OrdinaryWindow(window)) {
        return false;
    }
    if (x11::Bytes(window, "_NET_STARTUP_ID") == wish.note) {
        return true;
    }
    const auto process = x11::Items(window, "_NET_WM_PID");
    if (process.empty()) {
        return x11::Bytes(window, "WM_CLASS").split('\0').front() == wish.name;
    }
    return wish.session != -1 && getsid(static_cast<pid_t>(process.front())) == wish.session;
}

void Carry_Out(ShowState state, xcb_window_t window) {
    constexpr std::uint32_t iconicState = 3;
    constexpr std::uint32_t addState = 1;
    constexpr std::uint32_t fromUser = 2;
    if (state == ShowState::Minimized) {
        x11::Tell_Manager(window, "WM_CHANGE_STATE", {iconicState, 0, 0, 0, 0});
    } else {
        x11::Tell_Manager(window, "_NET_WM_STATE",
                          {addState, x11::Atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                           x11::Atom("_NET_WM_STATE_MAXIMIZED_HORZ"), fromUser, 0});
    }
}

void Watch_Windows(const StateWish& wish) {
    constexpr int interval = 50; // ms
    constexpr int rounds = 300;
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [timer, wish, left = rounds]() mutable {
        const auto windows = x11::Items(x11::Root(), "_NET_CLIENT_LIST");
        const auto found = std::find_if(windows.begin(), windows.end(), [&](xcb_window_t window) {
            return Belongs_To(wish, window);
        });
        if (found != windows.end()) {
            Carry_Out(wish.state, *found);
        }
        if (found != windows.end() || --left == 0) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start(interval);
}

struct Command {
    QString program;
    QStringList arguments;
    QString folder = {};
};

bool Launch(const Command& command, ShowState state) {
    static int launches = 0;
    if (command.program.isEmpty()) {
        return false;
    }
    QProcess process;
    process.setProgram(command.program);
    process.setArguments(command.arguments);
    process.setWorkingDirectory(command.folder);
    StateWish wish{state, QFileInfo(command.program).fileName().toLocal8Bit(), {}, {}};
    const bool isWatched = state != ShowState::Normal && x11::Connection() != nullptr;
    if (isWatched) {
        wish.windowsBefore = x11::Items(x11::Root(), "_NET_CLIENT_LIST");
        wish.note = QByteArray("tockly-") + QByteArray::number(getpid()) + '-' +
                    QByteArray::number(++launches) + "_TIME" +
                    QByteArray::number(x11::Server_Time());
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DESKTOP_STARTUP_ID"_s, QString::fromLatin1(wish.note));
        process.setProcessEnvironment(environment);
    }
    qint64 started = 0;
    if (!process.startDetached(&started)) {
        return false;
    }
    if (isWatched) {
        const pid_t session = getsid(static_cast<pid_t>(started));
        wish.session = session == getsid(0) ? -1 : session;
        Watch_Windows(wish);
    }
    return true;
}

// Hands a target to the desktop, which knows the application for it.
bool Hand_Over(const QString& target, ShowState state) {
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    if (!opener.isEmpty()) {
        return Launch({opener, {target}}, state);
    }
    const QString other = QStandardPaths::findExecutable(u"gio"_s);
    return !other.isEmpty() && Launch({other, {u"open"_s, target}}, state);
}

bool Open_Local(const QFileInfo& info, ShowState state) {
    const QString path = QDir::cleanPath(info.absoluteFilePath());
    return Is_Program(info) ? Launch({path, {}, info.absolutePath()}, state)
                            : Hand_Over(path, state);
}

// A file may be named from the user's own folder, and have been pasted with blanks around it.
QFileInfo Named_File(const QString& target) {
    const QFileInfo asIs(target);
    if (asIs.exists()) {
        return asIs;
    }
    const QString name = target.trimmed();
    return QFileInfo(name.startsWith("~/"_L1) ? QDir::homePath() + name.mid(1) : name);
}

// A command by its bare name, which starts where this program was started.
Command Find_Command(const QString& name) {
    const bool isBare = !name.isEmpty() && !name.contains(u'/');
    return {isBare ? QStandardPaths::findExecutable(name) : QString(), {}};
}

// A program file starts in its own folder, whichever way it was named.
Command Find_Program(const QString& named) {
    const QFileInfo info = Named_File(named);
    if (!info.isFile()) {
        return Find_Command(named.trimmed());
    }
    return {info.isExecutable() ? QDir::cleanPath(info.absoluteFilePath()) : QString(),
            {},
            info.absolutePath()};
}

class LinuxShell : public Shell {
public:
    bool Open(const QString& text, ShowState state) override {
        const QString target = text.trimmed();
        if (target.isEmpty()) {
            return false;
        }
        const QFileInfo info = Named_File(text);
        if (info.exists()) {
            return Open_Local(info, state);
        }
        if (target.startsWith("file:"_L1, Qt::CaseInsensitive)) {
            const QFileInfo named(QUrl(target).toLocalFile());
            return named.exists() && Open_Local(named, state);
        }
        if (target.startsWith("www."_L1, Qt::CaseInsensitive)) {
            return Hand_Over(u"http://"_s + target, state);
        }
        if (Is_Address(target)) {
            return Hand_Over(target, state);
        }
        return Launch(Find_Command(target), state);
    }

    bool Start(const QString& program, const std::vector<QString>& arguments,
               ShowState state) override {
        Command command = Find_Program(program);
        command.arguments = QStringList(arguments.begin(), arguments.end());
        return Launch(command, state);
    }
};

} // namespace

std::unique_ptr<Shell> Make_Shell() {
    return std::make_unique<LinuxShell>();
}

} // namespace platform
