#include "delivery/mci_class.h"

#include "platform/files.h"
#include "platform/media.h"

using namespace Qt::StringLiterals;

std::int32_t Global_MciCounter = 0;

int MCIClass::OpenAudioFile(const QString& fileName) {
    if (!platform::Files::Get().Exists(fileName))
        return -1;
    platform::Media& media = platform::Media::Get();
    Alias = u'a' + QString::number(Global_MciCounter++);
    const QString shortPath = media.Short_Path(fileName);
    if (media.Send_String(u"OPEN "_s + shortPath + u" TYPE MPEGVideo ALIAS "_s + Alias) != 0 &&
        media.Send_String(u"OPEN "_s + fileName + u" TYPE waveaudio ALIAS "_s + Alias) != 0) {
        Alias.clear();
        return -1;
    }
    // Names the device "0", which is never open: the command fails without effect, and it stays.
    media.Send_String(u"SET 0 TIME FORMAT TMSF"_s);
    return 0;
}

void MCIClass::Play(std::int32_t position) {
    platform::Media::Get().Send_String(u"PLAY "_s + Alias + u" FROM "_s +
                                       QString::number(position));
}

void MCIClass::CloseAudioFile() {
    if (!Alias.isEmpty() && !Closed)
        platform::Media::Get().Send_String(u"CLOSE "_s + Alias);
    Closed = true;
}

QString MCIClass::GetMCIError(int errorCode) {
    return platform::Media::Get().Error_Text(errorCode);
}
