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
#include <QThread>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int Patience = 30'000; // ms that a second launch waits for the first
constexpr int Step = 50;         // ms between two looks at the lock
constexpr char Request[] = "Show\n";
constexpr char Consent[] = "shown\n";

// Paths of sockets are short (108 bytes): the name is a hash. The user is part of it because one
// machine's copies may share their folder.
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

class LinuxInstance : public Instance {
public:
    LaunchRole Launch(const QString& programFolder) override {
        const QString folder = Runtime_Folder();
        if (folder.isEmpty()) {
            return LaunchRole::First; // a program that starts twice beats one that never starts
        }
        const QString base = folder + u'/' + Name_Of(programFolder);
        if (!Open_Lock(base + u".lock"_s)) {
            return LaunchRole::First;
        }
        QElapsedTimer waited;
        waited.start();
        Asking asking;
        while (!Take_Lock()) {
            QElapsedTimer step;
            step.start();
            if (asking.Advance(base + u".socket"_s) || waited.elapsed() > Patience) {
                lock.Close();
                return LaunchRole::HandedOver;
            }
            if (step.elapsed() < Step) { // refused at once
                QThread::msleep(static_cast<unsigned long>(Step - step.elapsed()));
            }
        }
        Listen(base + u".socket"_s);
        return LaunchRole::First;
    }

    void On_Show(std::function<void()> handler) override {
        onShow = std::move(handler);
        Deliver_Later();
    }

    void Begin_Ending() override {
        isEnding = true;
        server.close();
        for (QLocalSocket* socket : server.findChildren<QLocalSocket*>()) {
            socket->abort(); // who still waits for an answer turns to the lock
        }
    }

private:
    bool Open_Lock(const QString& path) {
        // Closed in every program that is started from here, or it would hold the lock after us.
        lock = Descriptor(
            open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
        return lock.Is_Open();
    }

    bool Take_Lock() { return flock(lock.Number(), LOCK_EX | LOCK_NB) == 0; }

    void Listen(const QString& path) {
        QLocalServer::removeServer(path); // left by a copy that was killed
        server.setSocketOptions(QLocalServer::UserAccessOption);
        QObject::connect(&server, &QLocalServer::newConnection, &server, [this] { Accept(); });
        server.listen(path);
    }

    void Accept() {
        while (QLocalSocket* socket = server.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QLocalSocket::readyRead, socket,
                             [this, socket] { Answer_To(*socket); });
            Answer_To(*socket); // the line may have come with the connection
        }
    }

    void Answer_To(QLocalSocket& socket) {
        if (isEnding || !socket.canReadLine() || socket.readLine() != Request) {
            return;
        }
        socket.write(Consent);
        socket.flush();
        ++waiting;
        Deliver_Later();
    }

    void Deliver_Later() {
        QTimer::singleShot(0, &server, [this] { Deliver(); });
    }

    void Deliver() {
        // The handler may run a loop of its own: what comes then is its own delivery's.
        while (onShow && !isEnding && waiting > 0) {
            --waiting;
            const auto handler = onShow;
            handler();
        }
    }

    Descriptor lock;
    QLocalServer server;
    std::function<void()> onShow;
    int waiting = 0;
    bool isEnding = false;
};

} // namespace

std::unique_ptr<Instance> Make_Instance() {
    return std::make_unique<LinuxInstance>();
}

} // namespace platform
