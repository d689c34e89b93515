#include "platform/files.h"
#include "small_files_only.h"
#include "support/fake_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Fake, System };

class FilesContract : public testing::TestWithParam<Kind> {
protected:
    platform::Files& Tested() { return GetParam() == Kind::Fake ? fake : *system; }
    QString Path(const QString& name) { return folder.filePath(name); }
    QStringList Names() {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
    FakeFiles fake;
    std::unique_ptr<platform::Files> system = platform::Make_Files();
};

} // namespace

TEST_P(FilesContract, a_whole_file_is_replaced_and_read) {
    const std::string content("\0\r\n\xFF", 4);
    EXPECT_TRUE(Tested().Replace(Path(u"n\u00E4me \u0416"_s), "longer than the next one"));
    EXPECT_TRUE(Tested().Replace(Path(u"n\u00E4me \u0416"_s), content));
    EXPECT_EQ(Tested().Read(Path(u"n\u00E4me \u0416"_s)), content);
    EXPECT_TRUE(Tested().Replace(Path(QString(255, u'x')), {})); // as long as a name can be
    EXPECT_EQ(Names().size(), 2);
}

TEST_P(FilesContract, a_copy_overwrites_only_when_it_may) {
    Tested().Replace(Path(u"a"_s), "new");
    Tested().Replace(Path(u"b"_s), "old");
    EXPECT_FALSE(Tested().Copy(Path(u"a"_s), Path(u"b"_s), false));
    EXPECT_EQ(Tested().Read(Path(u"b"_s)), "old");
    EXPECT_TRUE(Tested().Copy(Path(u"a"_s), Path(u"b"_s), true));
    EXPECT_EQ(Tested().Read(Path(u"b"_s)), "new");
    EXPECT_FALSE(Tested().Copy(Path(u"missing"_s), Path(u"b"_s), true));
}

TEST_P(FilesContract, what_is_no_regular_file_is_neither_read_nor_replaced) {
    ASSERT_TRUE(Tested().Make_Folder(Path(u"folder/below"_s)));
    ASSERT_EQ(mkfifo(QFile::encodeName(Path(u"pipe"_s)).constData(), 0600), 0);
    for (const QString& name : {u"folder"_s, u"pipe"_s}) {
        EXPECT_TRUE(Tested().Exists(Path(name)));
        EXPECT_EQ(Tested().Read(Path(name)), std::nullopt);
        EXPECT_FALSE(Tested().Replace(Path(name), "x"));
    }
    EXPECT_FALSE(Tested().Replace(Path(u"no folder/file"_s), "x"));
    EXPECT_FALSE(Tested().Make_Folder(Path(u"pipe/below"_s)));
    EXPECT_EQ(Names(), (QStringList{u"folder"_s, u"pipe"_s}));
}

TEST_P(FilesContract, links_stay_links_even_when_they_lead_nowhere_yet) {
    Tested().Make_Folder(Path(u"far"_s));
    QFile::link(u"far/target"_s, Path(u"first"_s));
    QFile::link(Path(u"first"_s), Path(u"second"_s));
    QFile::link(u"loop"_s, Path(u"loop"_s));
    EXPECT_TRUE(Tested().Replace(Path(u"second"_s), "1"));
    EXPECT_TRUE(Tested().Replace(Path(u"second"_s), "2"));
    EXPECT_EQ(Tested().Read(Path(u"far/target"_s)), "2");
    EXPECT_TRUE(QFileInfo(Path(u"second"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo(Path(u"first"_s)).isSymLink());
    EXPECT_FALSE(Tested().Replace(Path(u"loop"_s), "x"));
}

TEST_P(FilesContract, permission_bits_stay) {
    const QString path = Path(u"private"_s);
    Tested().Replace(path, "1");
    const auto bits = QFile::ReadOwner | QFile::WriteOwner | QFile::WriteUser | QFile::ReadUser;
    ASSERT_TRUE(QFile::setPermissions(path, bits));
    Tested().Replace(path, "2");
    EXPECT_EQ(QFile::permissions(path), bits);
}

TEST_P(FilesContract, a_full_disk_leaves_the_old_file_and_nothing_else) {
    ASSERT_TRUE(Tested().Replace(Path(u"a"_s), "old"));
    const SmallFilesOnly full(100);
    EXPECT_FALSE(Tested().Replace(Path(u"a"_s), std::string(101, 'x')));
    EXPECT_FALSE(Tested().Replace(Path(u"b"_s), std::string(101, 'x')));
    EXPECT_EQ(Tested().Read(Path(u"a"_s)), "old");
    EXPECT_EQ(Names(), QStringList{u"a"_s});
}

TEST_P(FilesContract, what_a_killed_run_left_is_swept_away_and_nothing_else) {
    const QString rest = u".tockly-%1-7.tmp"_s;
    const QString mine = rest.arg(getpid());
    const QString running = rest.arg(1); // of a process that runs
    for (const QString& name : {mine, rest.arg(999999999), running, u"tockly-1-1.tmp"_s,
                                u".tockly-1-1.tmp.txt"_s, u"notes.dat"_s})
        ASSERT_TRUE(Tested().Replace(Path(name), "x"));
    Tested().Sweep(folder.path());
    EXPECT_EQ(Names(), (QStringList{u".tockly-1-1.tmp.txt"_s, running, u"notes.dat"_s,
                                    u"tockly-1-1.tmp"_s}));
}

INSTANTIATE_TEST_SUITE_P(All, FilesContract, testing::Values(Kind::Fake, Kind::System),
                         [](const auto& one) {
                             return one.param == Kind::Fake ? "Fake" : "System";
                         });

TEST(FakeFiles, a_device_fails_after_its_last_byte_and_at_the_paths_it_is_told) {
    const QTemporaryDir folder;
    FakeFiles files;
    files.bytesLeft = 5;
    EXPECT_TRUE(files.Replace(folder.filePath(u"a"_s), "123"));
    EXPECT_FALSE(files.Replace(folder.filePath(u"a"_s), "1234"));
    EXPECT_TRUE(files.Replace(folder.filePath(u"b"_s), "12"));
    files.bytesLeft = -1;
    files.refusedWrites = {u"/b"_s};
    EXPECT_FALSE(files.Copy(folder.filePath(u"a"_s), folder.filePath(u"b"_s), true));
    EXPECT_EQ(files.Read(folder.filePath(u"b"_s)), "12");
    EXPECT_EQ(files.replaced.size(), 2);
}
