// One copy among several processes, and the ways in which a process is ended.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <memory>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Limit = 20'000; // ms

class Helper {
public:
    explicit Helper(const QStringList& words) {
        process.start(QStringLiteral(PLATFORM_HELPER), words);
    }
    ~Helper() {
        process.kill();
        process.waitForFinished(Limit);
    }
    Helper(const Helper&) = delete;
    Helper& operator=(const Helper&) = delete;

    // The next word that the process wrote; empty when it ended without.
    QString Word() {
        while (!process.canReadLine() && process.waitForReadyRead(Limit)) {
        }
        return QString::fromLatin1(process.readLine().trimmed());
    }
    bool Speaks_Within(int milliseconds) { return process.waitForReadyRead(milliseconds); }
    void Tell(const char* command) {
        process.write(command);
        process.write("\n");
        process.waitForBytesWritten(Limit);
    }
    void Signal(int number) { ::kill(static_cast<pid_t>(process.processId()), number); }
    int Exit_Code() {
        process.waitForFinished(Limit);
        return process.state() == QProcess::NotRunning ? process.exitCode() : -1;
    }

private:
    QProcess process;
};

class Launches : public testing::Test {
protected:
    Launches() {
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        QFile::setPermissions(runtime.path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QStringList Words() { return {u"launch"_s, home.path()}; }

    QTemporaryDir runtime;
    QTemporaryDir home;
};

} // namespace

TEST_F(Launches, of_several_at_once_exactly_one_stays) {
    std::vector<std::unique_ptr<Helper>> helpers;
    for (int count = 0; count < 4; ++count) {
        helpers.push_back(std::make_unique<Helper>(Words()));
    }
    int firsts = 0;
    for (const auto& helper : helpers) {
        firsts += helper->Word() == "first"_L1 ? 1 : 0;
    }
    EXPECT_EQ(firsts, 1);
}

TEST_F(Launches, a_request_that_comes_during_the_load_is_kept) {
    Helper first(Words() + QStringList{u"loading"_s});
    ASSERT_EQ(first.Word(), u"first"_s);
    Helper second(Words());
    EXPECT_FALSE(second.Speaks_Within(300)); // it would start if the first did not come so far
    first.Tell("ready");
    EXPECT_EQ(first.Word(), u"shown"_s);
    EXPECT_EQ(second.Word(), u"handed over"_s);
    EXPECT_EQ(Helper(Words()).Word(), u"handed over"_s);
    EXPECT_EQ(first.Word(), u"shown"_s);
}

TEST_F(Launches, a_killed_copy_does_not_stop_the_next_one) {
    Helper killed(Words());
    ASSERT_EQ(killed.Word(), u"first"_s);
    killed.Signal(SIGKILL);
    Helper next(Words());
    ASSERT_EQ(next.Word(), u"first"_s);
    EXPECT_EQ(Helper(Words()).Word(), u"handed over"_s);
}

TEST_F(Launches, one_that_ends_is_waited_for_and_followed) {
    Helper ending(Words());
    ASSERT_EQ(ending.Word(), u"first"_s);
    ending.Tell("end");
    ASSERT_EQ(ending.Word(), u"ending"_s);
    Helper next(Words());
    EXPECT_EQ(ending.Word(), u"shown"_s);  // what is open may come forward
    EXPECT_FALSE(next.Speaks_Within(300)); // the first may still be saving
    ending.Tell("quit");
    EXPECT_EQ(ending.Exit_Code(), 0);
    EXPECT_EQ(next.Word(), u"first"_s);
}

TEST_F(Launches, the_socket_is_the_users_alone) {
    Helper first(Words());
    ASSERT_EQ(first.Word(), u"first"_s);
    QFile lock(home.path() + u"/.tockly-%1.lock"_s.arg(getuid()));
    ASSERT_TRUE(lock.open(QIODevice::ReadOnly));
    const QByteArray path = lock.readAll();
    EXPECT_TRUE(path.startsWith(runtime.path().toLocal8Bit())) << path.constData();
    struct stat found {};
    ASSERT_EQ(stat(path.constData(), &found), 0);
    EXPECT_EQ(found.st_mode & 0077U, 0U);
    if (getuid() != 0) {
        GTEST_SKIP() << "this user may not be another one";
    }
    // The error that another user's connection meets; 0: it is there.
    const auto Refusal = [&path](uid_t user) {
        const pid_t child = fork();
        if (child == 0) {
            sockaddr_un address{AF_UNIX, {}};
            qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
            const bool isOther = user == 0 || (setgid(user) == 0 && setuid(user) == 0);
            const int end = socket(AF_UNIX, SOCK_STREAM, 0);
            errno = 0;
            static_cast<void>(connect(end, reinterpret_cast<sockaddr*>(&address), sizeof address));
            _exit(isOther ? errno : 255);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WEXITSTATUS(status);
    };
    EXPECT_EQ(Refusal(0), 0);
    EXPECT_EQ(Refusal(65534), EACCES);
    chmod(runtime.path().toLocal8Bit().constData(), 0755);
    EXPECT_EQ(Refusal(65534), EACCES) << "not by its folder alone";
}

TEST_F(Launches, another_folder_is_another_program) {
    const QTemporaryDir other;
    Helper first(Words());
    ASSERT_EQ(first.Word(), u"first"_s);
    EXPECT_EQ(Helper({u"launch"_s, other.path()}).Word(), u"first"_s);
    // The same folder by another name is the same program.
    EXPECT_EQ(Helper({u"launch"_s, home.path() + u"/."_s}).Word(), u"handed over"_s);
    qunsetenv("XDG_RUNTIME_DIR"); // and from another environment
    EXPECT_EQ(Helper(Words()).Word(), u"handed over"_s);
    const QStringList deep{u"launch"_s, home.path() + u'/' + QString(200, u'd')};
    ASSERT_TRUE(QDir().mkpath(deep.last()));
    Helper far(deep);
    ASSERT_EQ(far.Word(), u"first"_s);
    EXPECT_EQ(Helper(deep).Word(), u"handed over"_s);
}

TEST(SessionEnd, every_signal_that_ends_a_program_is_told_once) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        Helper helper({u"end"_s, u"wait"_s});
        ASSERT_EQ(helper.Word(), u"watching"_s);
        helper.Signal(signal);
        EXPECT_EQ(helper.Word(), u"asked"_s);
        helper.Signal(SIGTERM);
        helper.Signal(SIGPIPE);
        helper.Tell("quit");
        EXPECT_EQ(helper.Word(), QString()) << signal;
        EXPECT_EQ(helper.Exit_Code(), 7);
    }
}

TEST(SessionEnd, an_exit_in_the_middle_is_the_loss_of_the_display) {
    EXPECT_EQ(Helper({u"end"_s, u"exit"_s}).Word(), u"no display"_s);
    EXPECT_EQ(Helper({u"end"_s, u"stopped"_s}).Word(), QString());
}
