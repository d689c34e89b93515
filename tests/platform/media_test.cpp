// What the sound player takes, and what is then heard: the output goes to a file.
#include "platform/media_command.h"
#include "platform/providers.h"
#include "platform/sound_format.h"
#include "sounds.h"
#include "support/recording_media.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using platform::SoundFormat;

namespace {

const QString Mp3 = QStringLiteral(TOCKLY_TEST_DATA "/sounds/sine_1000.mp3");

class MediaTest : public testing::Test {
protected:
    ~MediaTest() override {
        qunsetenv("SDL_AUDIODRIVER");
        qunsetenv("SDL_DISKAUDIOFILE");
    }

    QString Put(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    // From now on sounds go to this file, or to whatever the name stands for.
    void Record_To(const QString& path) {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", path.toLocal8Bit());
        output = path;
    }
    bool Device_Is_Open() const {
        for (const QFileInfo& entry : QDir(u"/proc/self/fd"_s).entryInfoList(QDir::Files)) {
            if (entry.symLinkTarget() == output) {
                return true;
            }
        }
        return false;
    }
    // Everything heard until the device closed by itself.
    sounds::Heard Heard_In_The_End() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo(output).size() > 0; }, 20'000));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Device_Is_Open(); }, 20'000));
        QFile file(output);
        return file.open(QIODevice::ReadOnly) ? sounds::Listen(file.readAll()) : sounds::Heard{};
    }

    QTemporaryDir folder;
    QString output;
};

} // namespace

TEST(MediaCommand, is_taken_apart_from_its_end) {
    using platform::MediaVerb;
    const auto open = platform::Parse_MediaCommand(
        u"open /a TYPE b ALIAS c/my song.mp3 type MPEGVideo alias a7"_s);
    ASSERT_TRUE(open);
    EXPECT_EQ(open->verb, MediaVerb::Open);
    EXPECT_EQ(open->file, u"/a TYPE b ALIAS c/my song.mp3"_s);
    EXPECT_EQ(open->type, u"MPEGVideo"_s);
    EXPECT_EQ(open->alias, u"a7"_s);
    const auto play = platform::Parse_MediaCommand(u"Play a7 from 1500"_s);
    EXPECT_TRUE(play && play->verb == MediaVerb::Play && play->alias == "a7"_L1);
    EXPECT_EQ(play->from, 1500);
    EXPECT_EQ(platform::Parse_MediaCommand(u"SET 0 TIME FORMAT TMSF"_s)->verb, MediaVerb::Other);
    for (const QString& lacking : {u"OPEN x.wav"_s, u"OPEN  TYPE waveaudio ALIAS "_s, u"CLOSE"_s,
                                   u"PLAY a7 FROM"_s, u"PLAY a7 TO 3"_s, u"PLAY"_s}) {
        EXPECT_EQ(platform::Parse_MediaCommand(lacking), std::nullopt);
    }
}

TEST_F(MediaTest, a_file_is_judged_by_its_bytes) {
    const QByteArray wave = sounds::Wave(500, 10);
    QFile mp3(Mp3);
    ASSERT_TRUE(mp3.open(QIODevice::ReadOnly));
    const QByteArray frames = mp3.readAll();
    const QByteArray tag = "ID3\x04" + QByteArray(4, '\0') + "\x07\x50";
    const struct {
        const char* name;
        QByteArray bytes;
        SoundFormat format;
    } cases[] = {
        {"a wave", wave, SoundFormat::PlainWave},
        {"a wave that ends in its head", wave.left(40), SoundFormat::None},
        {"a wave of no samples", sounds::Wave(500, 0), SoundFormat::None},
        {"a wave in a coding nobody knows", sounds::Wave(500, 10, 0x55), SoundFormat::None},
        {"a wave whose samples come late",
         wave.left(36) + "LIST" + sounds::Little_Endian(70'001, 4) + QByteArray(70'002, 'x') +
             wave.mid(36),
         SoundFormat::PlainWave},
        {"an MP3", frames, SoundFormat::Other},
        {"an MP3 behind a long title", tag + QByteArray(0x3D0, '\0') + frames, SoundFormat::Other},
        {"an OGG", "OggS" + QByteArray(24, '\0') + "\x01vorbis", SoundFormat::Other},
        {"a FLAC", "fLaC" + QByteArray(40, '\0'), SoundFormat::Other},
        {"text", "This is no sound at all, only words.\n", SoundFormat::None},
        {"a head by chance", QByteArray("\xFF\xFB\x90\x64") + QByteArray(2000, 'x'),
         SoundFormat::None},
        {"nothing", {}, SoundFormat::None},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(platform::Format_Of_File(Put(u"sound"_s, one.bytes)), one.format) << one.name;
    }
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(platform::Format_Of_File(pipe), SoundFormat::None);
}

TEST_F(MediaTest, every_player_takes_the_commands_and_tells_what_it_refuses) {
    qputenv("SDL_AUDIODRIVER", "nonsense");
    RecordingMedia recording;
    recording.refused = {u"missing"_s, u"SET"_s};
    const auto system = platform::Make_Media();
    const QString wave = Put(u"a TYPE b.wav"_s, sounds::Wave(500, 10));
    for (platform::Media* media : {static_cast<platform::Media*>(&recording), system.get()}) {
        EXPECT_EQ(media->Send_String(u"OPEN "_s + wave + u" TYPE waveaudio ALIAS a0"_s), 0);
        EXPECT_EQ(media->Send_String(u"PLAY a0 FROM 0"_s), 0);
        EXPECT_EQ(media->Send_String(u"CLOSE a0"_s), 0);
        for (const QString& command :
             {u"OPEN "_s + folder.filePath(u"missing.wav"_s) + u" TYPE waveaudio ALIAS a1"_s,
              u"SET 0 TIME FORMAT TMSF"_s}) {
            const int error = media->Send_String(command);
            EXPECT_NE(error, 0);
            EXPECT_FALSE(media->Error_Text(error).isEmpty());
        }
        EXPECT_EQ(media->Error_Text(0), QString());
        EXPECT_EQ(media->Short_Path(wave), wave);
    }
    EXPECT_NE(system->Send_String(u"PLAY a0 FROM 0"_s), 0); // closed above
    EXPECT_NE(system->Send_String(u"OPEN "_s + wave + u" TYPE MPEGVideo ALIAS a2"_s), 0);
    EXPECT_NE(system->Send_String(u"OPEN "_s + Mp3 + u" TYPE waveaudio ALIAS a2"_s), 0);
}

TEST_F(MediaTest, a_wave_and_an_mp3_are_heard_and_the_device_closes_after_them) {
    const struct {
        QString file;
        QString type;
        double pitch;
        double seconds;
    } cases[] = {
        {Put(u"my s\u00F6und.wav"_s, sounds::Wave(500, 600)), u"waveaudio"_s, 500, 0.6},
        {Mp3, u"MPEGVideo"_s, 1000, 0.8},
        {Put(u"short.wav"_s, sounds::Wave(1000, 50)), u"waveaudio"_s, 1000, 0.05},
    };
    const auto media = platform::Make_Media();
    for (const auto& one : cases) {
        Record_To(one.file == Mp3 ? folder.filePath(u"mp3.raw"_s) : one.file + u".raw"_s);
        ASSERT_EQ(
            media->Send_String(u"OPEN "_s + one.file + u" TYPE "_s + one.type + u" ALIAS a"_s), 0);
        EXPECT_EQ(media->Send_String(u"PLAY a FROM 0"_s), 0);
        const sounds::Heard heard = Heard_In_The_End();
        EXPECT_NEAR(heard.seconds, one.seconds, one.seconds * 0.12) << one.file.toStdString();
        EXPECT_NEAR(heard.pitch, one.pitch, one.pitch * 0.05);
        EXPECT_EQ(media->Send_String(u"CLOSE a"_s), 0);
    }
}

TEST_F(MediaTest, closing_a_sound_stops_it_and_a_position_skips_its_start) {
    const auto media = platform::Make_Media();
    const QString wave = Put(u"long.wav"_s, sounds::Wave(500, 4000));
    ASSERT_EQ(media->Send_String(u"OPEN "_s + wave + u" TYPE waveaudio ALIAS a"_s), 0);
    Record_To(folder.filePath(u"stopped.raw"_s));
    media->Send_String(u"PLAY a FROM 0"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo(output).size() > 8000; }, 20'000));
    media->Send_String(u"CLOSE a"_s);
    EXPECT_LT(Heard_In_The_End().seconds, 3);

    ASSERT_EQ(media->Send_String(u"OPEN "_s + wave + u" TYPE waveaudio ALIAS b"_s), 0);
    Record_To(folder.filePath(u"skipped.raw"_s));
    media->Send_String(u"PLAY b FROM 3500"_s);
    EXPECT_NEAR(Heard_In_The_End().seconds, 0.5, 0.02);
}

TEST_F(MediaTest, a_sound_of_any_length_costs_little_memory) {
    const auto peak = [] {
        QFile status(u"/proc/self/status"_s);
        EXPECT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        return text.mid(text.indexOf("VmHWM:") + 6).trimmed().split(' ').front().toLongLong();
    };
    // 17 minutes of one byte a sample: short as a file, and twenty times that on the output.
    constexpr std::uint32_t Samples = 8'300'000;
    const QString wave =
        Put(u"long.wav"_s, sounds::Wave(500, 1).left(28) + sounds::Little_Endian(8000, 4) +
                               sounds::Little_Endian(1, 2) + sounds::Little_Endian(8, 2) + "data" +
                               sounds::Little_Endian(Samples, 4) + QByteArray(Samples, '\x80'));
    const auto media = platform::Make_Media();
    QFile peakReset(u"/proc/self/clear_refs"_s);
    ASSERT_TRUE(peakReset.open(QIODevice::WriteOnly) && peakReset.write("5") == 1);
    peakReset.close();
    const auto before = peak();
    Record_To(folder.filePath(u"long.raw"_s));
    ASSERT_EQ(media->Send_String(u"OPEN "_s + wave + u" TYPE waveaudio ALIAS a"_s), 0);
    media->Send_String(u"PLAY a FROM 0"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo(output).size() > 44'100; }, 20'000));
    EXPECT_LT(peak() - before, 32 * 1024) << "kB";
    media->Send_String(u"CLOSE a"_s);
}

TEST_F(MediaTest, the_tone_is_heard) {
    const auto media = platform::Make_Media();
    Record_To(folder.filePath(u"tone.raw"_s));
    EXPECT_TRUE(media->Play_Tone());
    const sounds::Heard heard = Heard_In_The_End();
    EXPECT_NEAR(heard.seconds, 0.15, 0.03);
    EXPECT_NEAR(heard.pitch, 880, 880 * 0.05);
}

TEST_F(MediaTest, without_a_device_all_is_silent_and_the_tone_soon_says_so) {
    qputenv("SDL_AUDIODRIVER", "nonsense");
    const auto media = platform::Make_Media();
    ASSERT_EQ(media->Send_String(u"OPEN "_s + Mp3 + u" TYPE MPEGVideo ALIAS a"_s), 0);
    EXPECT_EQ(media->Send_String(u"PLAY a FROM 0"_s), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !media->Play_Tone(); }, 20'000));
}

TEST_F(MediaTest, a_sound_server_that_hangs_holds_nobody) {
    const QString pipe = folder.filePath(u"hang"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    Record_To(pipe); // opening it waits for a reader that never comes
    auto media = platform::Make_Media();
    QElapsedTimer spent;
    spent.start();
    EXPECT_EQ(media->Send_String(u"OPEN "_s + Mp3 + u" TYPE MPEGVideo ALIAS a"_s), 0);
    for (int count = 0; count < 100; ++count) {
        EXPECT_EQ(media->Send_String(u"PLAY a FROM 0"_s), 0);
        media->Play_Tone();
    }
    EXPECT_EQ(media->Send_String(u"CLOSE a"_s), 0);
    EXPECT_LT(spent.elapsed(), 1000);
    media.reset();
    EXPECT_LT(spent.elapsed(), 5000);
    // The thread left behind is let go, so that it ends before the program does.
    const int reader = open(QFile::encodeName(pipe).constData(), O_RDONLY | O_NONBLOCK);
    std::array<char, 65536> block{};
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return read(reader, block.data(), block.size()) == 0; }, 20'000));
    close(reader);
}
