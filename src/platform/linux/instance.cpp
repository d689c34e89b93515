#include "platform/instance.h"

#include "platform/linux/descriptor.h"
#include "platform/linux/runtime_folder.h"
#include "platform/providers.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int Step = 50; // ms between two looks at the lock
constexpr char Request[] = "Show\n";
constexpr char Consent[] = "shown\n";

// Paths of sockets are short (108 bytes): the name is a hash.
QString Name_Of(const QString& programFolder) {
    const QString canonical = QFileInfo(programFolder).canonicalFilePath();
    const QByteArray key = QByteArray::number(getuid()) + '\n' +
                           (canonical.isEmpty() ? programFolder : canonical).toUtf8();
    const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex();
    return u"tockly-"_s + QString::fromLatin1(hash.left(16));
}

// One wish to see the running copy, from the second launch's side.
class Asking {
public:
    // Spends about one step on it. True once the running copy has agreed.
    bool Advance(const QString& path) {
        if (path.isEmpty()) {
            return false;
        }
        if (socket.state() == QLocalSocket::UnconnectedState) {
            socket.connectToServer(path);
            if (!socket.waitForConnected(Step)) {
                socket.abort();
                return false;
            }
            socket.write(Request);
            socket.flush();
        }
        if (socket.waitForReadyRead(Step) && socket.canReadLine()) {
            return socket.readLine() == Consent;
        }
        return false;
    }

private:
    QLocalSocket socket;
};

enum class LockState { Taken, Held, Unusable };

// The lock of a program folder. It lies beside the data, so that no environment leads past it, and
// holds the path of the socket on which its holder listens.
class FolderLock {
public:
    // Held: another copy has it.
    LockState Take(const QString& programFolder) {
        const QString user = QString::number(getuid());
        const LockState state = Take_File(programFolder + u"/.tockly-"_s + user + u".lock"_s);
        if (state != LockState::Unusable) {
            return state;
        }
        // Nothing can be saved in a folder without rights, but one strip is enough there too.
        const QString own = Own_Folder();
        return own.isEmpty() ? state : Take_File(own + u'/' + Name_Of(programFolder) + u".lock"_s);
    }
    void Write_Socket(const QString& socket) {
        const QByteArray text = QFile::encodeName(socket);
        static_cast<void>(
            ftruncate(file.Number(), 0) == 0 &&
            pwrite(file.Number(), text.constData(), static_cast<std::size_t>(text.size()), 0) > 0);
    }
    QString Read_Socket() const {
        std::array<char, 256> text{};
        const ssize_t size = pread(file.Number(), text.data(), text.size(), 0);
        return QFile::decodeName(QByteArray(text.data(), std::max<qsizetype>(size, 0)));
    }

private:
    LockState Take_File(const QString& path) {
        // Closed in every program that is started from here, or it would hold the lock after us.
        file = Descriptor(open(QFile::encodeName(path).constData(),
                               O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (!file.Is_Open()) {
            return LockState::Unusable;
        }
        if (flock(file.Number(), LOCK_EX | LOCK_NB) == 0) {
            return LockState::Taken;
        }
        return errno == EWOULDBLOCK || errno == EINTR ? LockState::Held : LockState::Unusable;
    }

    Descriptor file;
};

class LinuxInstance : public Instance {
public:
    LaunchRole Launch(const QString& programFolder) override {
        Asking asking;
        for (;;) {
            QElapsedTimer step;
            step.start();
            const LockState state = lock.Take(programFolder);
            if (state == LockState::Unusable) {
                return LaunchRole::First; // a program that starts twice beats one that never starts
            }
            if (state == LockState::Taken) {
                Listen(Name_Of(programFolder));
                return LaunchRole::First;
            }
            // Whoever does not answer is saving, or tells what could not be saved: the end of that
            // is waited for, however long it takes.
            if (asking.Advance(lock.Read_Socket())) {
                return LaunchRole::HandedOver;
            }
            if (step.elapsed() < Step) { // refused at once
                QThread::msleep(static_cast<unsigned long>(Step - step.elapsed()));
            }
        }
    }

    void On_Show(std::function<void()> handler) override {
        onShow = std::move(handler);
        Deliver_Later();
    }

    void Begin_Ending() override { isEnding = true; }

private:
    void Listen(const QString& name) {
        server.setSocketOptions(QLocalServer::UserAccessOption);
        QObject::connect(&server, &QLocalServer::newConnection, &server, [this] { Accept(); });
        for (const QString& folder : Runtime_Folders()) {
            const QString path = folder + u'/' + name + u".socket"_s;
            QLocalServer::removeServer(path); // left by a copy that was killed
            if (server.listen(path)) {
                lock.Write_Socket(path);
                return;
            }
        }
        lock.Write_Socket({});
    }

    void Accept() {
        while (QLocalSocket* socket = server.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QLocalSocket::readyRead, socket,
                             [this, socket] { Take_Request(*socket); });
            Take_Request(*socket); // the line may have come with the connection
        }
    }

    void Take_Request(QLocalSocket& socket) {
        if (socket.canReadLine() && socket.readLine() == Request) {
            waiting.append(QPointer(&socket));
            Deliver_Later();
        }
    }

    void Deliver_Later() {
        QTimer::singleShot(0, &server, [this] { Deliver(); });
    }

    // Only what is carried out is agreed to. At the end nothing is, but the handler may have a box
    // to bring forward.
    void Deliver() {
        // The handler may run a loop of its own: what comes then is its own delivery's.
        while (onShow && !waiting.isEmpty()) {
            if (const QPointer<QLocalSocket> asker = waiting.takeFirst(); asker && !isEnding) {
                asker->write(Consent);
                asker->flush();
            }
            const auto handler = onShow;
            handler();
        }
    }

    FolderLock lock;
    QLocalServer server;
    std::function<void()> onShow;
    QList<QPointer<QLocalSocket>> waiting; // each asks for one show
    bool isEnding = false;
};

} // namespace

std::unique_ptr<Instance> Make_Instance() {
    return std::make_unique<LinuxInstance>();
}

} // namespace platform
