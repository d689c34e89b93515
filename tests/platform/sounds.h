// Sound files that a test makes, and what came out of the sound output.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace sounds {

inline QByteArray Little_Endian(std::uint32_t value, int bytes) {
    QByteArray text;
    for (int at = 0; at < bytes; ++at) {
        text.append(static_cast<char>(value >> static_cast<unsigned>(8 * at)));
    }
    return text;
}

// One channel of a square wave, 8000 samples of 16 bits a second.
inline QByteArray Wave(int pitch, int milliseconds, std::uint32_t coding = 1) {
    QByteArray samples;
    for (int at = 0; at < 8 * milliseconds; ++at) {
        const bool isHigh = (at * pitch * 2 / 8000) % 2 == 0;
        samples += Little_Endian(isHigh ? 0x3000U : 0xD000U, 2);
    }
    return "RIFF" + Little_Endian(static_cast<std::uint32_t>(36 + samples.size()), 4) + "WAVEfmt " +
           Little_Endian(16, 4) + Little_Endian(coding, 2) + Little_Endian(1, 2) +
           Little_Endian(8000, 4) + Little_Endian(16000, 4) + Little_Endian(2, 2) +
           Little_Endian(16, 2) + "data" +
           Little_Endian(static_cast<std::uint32_t>(samples.size()), 4) + samples;
}

struct Heard {
    double seconds = 0; // from the first sound to the last
    double pitch = 0;   // Hz
};

// Raw output of two channels, 44100 samples of 16 bits a second. The pitch is that of the crossings
// from below to above.
inline Heard Listen(const QByteArray& raw) {
    constexpr int Quiet = 1000;
    std::vector<int> left;
    for (qsizetype at = 0; at + 4 <= raw.size(); at += 4) {
        left.push_back(static_cast<std::int16_t>(static_cast<unsigned char>(raw[at]) |
                                                 (static_cast<unsigned char>(raw[at + 1]) << 8U)));
    }
    std::size_t first = left.size();
    std::size_t last = 0;
    int crossings = 0;
    bool isBelow = true;
    for (std::size_t at = 0; at < left.size(); ++at) {
        if (left[at] > Quiet || left[at] < -Quiet) {
            first = first == left.size() ? at : first;
            last = at;
            crossings += isBelow && left[at] > 0 ? 1 : 0;
            isBelow = left[at] < 0;
        }
    }
    if (last <= first) {
        return {};
    }
    const double seconds = static_cast<double>(last - first) / 44100;
    return {seconds, crossings / seconds};
}

} // namespace sounds
