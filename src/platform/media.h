// Sound: device command strings in, an error number out.
#pragma once

#include "platform/service.h"

#include <QString>

namespace platform {

class Media : public Service<Media> {
public:
    // Carries out one command: "OPEN file TYPE MPEGVideo|waveaudio ALIAS name",
    // "PLAY name FROM position", "CLOSE name"; words are read without case. A file is judged
    // playable without a sound device too; without one it is silent. Returns at once.
    // 0 on success, else an error number for Error_Text.
    virtual int Send_String(const QString& command) = 0;
    // The text of an error number, in English; empty for 0 and for a number never given out.
    virtual QString Error_Text(int error) = 0;
    // A form of the path that may stand in a command; the path itself when it may as it is.
    virtual QString Short_Path(const QString& file) = 0;
    // A short tone of the program's own. False when there is no sound output to play it on.
    virtual bool Play_Tone() = 0;
};

} // namespace platform
