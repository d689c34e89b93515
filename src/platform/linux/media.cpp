#include "platform/media.h"

#include "platform/linux/sound_player.h"
#include "platform/media_command.h"
#include "platform/providers.h"
#include "platform/sound_format.h"

#include <QApplication>
#include <QFile>
#include <QMetaObject>

#include <map>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The numbers are those of the media control interface.
enum MediaError {
    NoError = 0,
    UnknownCommand = 261,
    NotOpen = 263,
    MissingFile = 275,
    AliasInUse = 289,
    MissingWord = 292,
    WrongFile = 296,
};

class LinuxMedia : public Media {
public:
    int Send_String(const QString& command) override {
        const auto parsed = Parse_MediaCommand(command);
        if (!parsed) {
            return MissingWord;
        }
        switch (parsed->verb) {
        case MediaVerb::Open:
            return Open(*parsed);
        case MediaVerb::Play:
            return Play(*parsed);
        case MediaVerb::Close:
            return Close(*parsed);
        case MediaVerb::Other:
            break;
        }
        return UnknownCommand;
    }

    QString Error_Text(int error) override {
        switch (error) {
        case UnknownCommand:
            return u"The sound player does not know this command."_s;
        case NotOpen:
            return u"No sound is open under this name."_s;
        case MissingFile:
            return u"The sound file cannot be found."_s;
        case AliasInUse:
            return u"Another sound is open under this name."_s;
        case MissingWord:
            return u"The command lacks a word."_s;
        case WrongFile:
            return u"The file holds no sound of this type."_s;
        default:
            return {};
        }
    }

    // Commands are taken apart from their end, so that a path may stand in them as it is.
    QString Short_Path(const QString& file) override { return file; }

    bool Play_Tone() override { return player.Play_Tone(); }

private:
    int Open(const MediaCommand& command) {
        const QString alias = command.alias.toLower();
        if (files.contains(alias)) {
            return AliasInUse;
        }
        if (!QFile::exists(command.file)) {
            return MissingFile;
        }
        const bool isWaveType = command.type.compare("waveaudio"_L1, Qt::CaseInsensitive) == 0;
        const bool isMpegType = command.type.compare("MPEGVideo"_L1, Qt::CaseInsensitive) == 0;
        const SoundFormat format = Format_Of_File(command.file);
        if (!(isWaveType && format == SoundFormat::PlainWave) &&
            !(isMpegType && format == SoundFormat::Other)) {
            return WrongFile;
        }
        files.emplace(alias, command.file);
        return NoError;
    }

    int Play(const MediaCommand& command) {
        const auto file = files.find(command.alias.toLower());
        if (file == files.end()) {
            return NotOpen;
        }
        player.Play_File(file->first.toStdString(), QFile::encodeName(file->second).toStdString(),
                         command.from);
        return NoError;
    }

    int Close(const MediaCommand& command) {
        const QString alias = command.alias.toLower();
        if (files.erase(alias) == 0) {
            return NotOpen;
        }
        player.Stop_File(alias.toStdString());
        return NoError;
    }

    static void Ring_Bell() {
        if (qApp != nullptr) {
            QMetaObject::invokeMethod(qApp, [] { QApplication::beep(); });
        }
    }

    std::map<QString, QString> files; // by lower-cased alias
    SoundPlayer player{Ring_Bell};
};

} // namespace

std::unique_ptr<Media> Make_Media() {
    return std::make_unique<LinuxMedia>();
}

} // namespace platform
