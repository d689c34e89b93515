// A player that is silent and remembers every command.
#pragma once

#include "platform/media.h"
#include "support/provided.h"

#include <QStringList>

class RecordingMedia : public Provided<platform::Media> {
public:
    static constexpr int Refusal = 275;

    QStringList commands; // every string sent, in order
    QStringList refused;  // a command that holds one of these texts, without case, fails
    int tones = 0;

    int Send_String(const QString& command) override {
        commands.append(command);
        for (const QString& part : refused) {
            if (command.contains(part, Qt::CaseInsensitive)) {
                return Refusal;
            }
        }
        return 0;
    }
    QString Error_Text(int error) override {
        return error == Refusal ? QStringLiteral("The command was refused.") : QString();
    }
    QString Short_Path(const QString& file) override {
        return shortened.isEmpty() ? file : shortened;
    }
    bool Play_Tone() override { return ++tones > 0; }

    QString shortened; // what Short_Path gives; empty: the path itself
};
