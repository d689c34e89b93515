// One sound file, played through the command strings of the sound device. It stops when the object
// goes.
#pragma once

#include <QString>

#include <cstdint>

// Makes every alias unique for the run.
extern std::int32_t Global_MciCounter;

class MCIClass {
public:
    MCIClass() = default;
    ~MCIClass() { CloseAudioFile(); }
    MCIClass(const MCIClass&) = delete;
    MCIClass& operator=(const MCIClass&) = delete;

    // One file for each object. 0, or -1 when it does not exist or cannot be played.
    int OpenAudioFile(const QString& fileName);
    // Starts from the position and returns at once; 0 = the beginning. A failure is silent.
    void Play(std::int32_t position);
    void CloseAudioFile();

    // The device's text for an error number.
    static QString GetMCIError(int errorCode);

private:
    QString Alias; // empty = nothing open
    bool Closed = false;
};
