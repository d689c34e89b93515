#include "platform/sound_format.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr qsizetype StartSize = 65536;

unsigned Byte_At(const QByteArray& bytes, qsizetype at) {
    return static_cast<unsigned char>(bytes.at(at));
}

unsigned Word_At(const QByteArray& bytes, qsizetype at) { // little-endian
    return Byte_At(bytes, at) | (Byte_At(bytes, at + 1) << 8U);
}

unsigned Long_At(const QByteArray& bytes, qsizetype at) {
    return Word_At(bytes, at) | (Word_At(bytes, at + 2) << 16U);
}

// Plain samples, ADPCM, float, the two telephone laws, IMA, and the form that names one of them.
bool Is_Known_Coding(unsigned coding) {
    constexpr std::array Known{0x0001U, 0x0002U, 0x0003U, 0x0006U, 0x0007U, 0x0011U, 0xFFFEU};
    return std::find(Known.begin(), Known.end(), coding) != Known.end();
}

// A wave has to say how its samples are coded before they begin.
bool Is_Wave(const QByteArray& start) {
    if (!start.startsWith("RIFF") || start.mid(8, 4) != "WAVE") {
        return false;
    }
    bool isCodingKnown = false;
    for (qsizetype at = 12; at + 8 <= start.size();) {
        const QByteArray chunk = start.mid(at, 4);
        const qsizetype size = Long_At(start, at + 4);
        if (chunk == "data") {
            return isCodingKnown && size > 0 && at + 8 < start.size();
        }
        if (chunk == "fmt " && size >= 14 && at + 24 <= start.size()) {
            isCodingKnown = Is_Known_Coding(Word_At(start, at + 8)) &&
                            Word_At(start, at + 10) > 0 && Long_At(start, at + 12) > 0;
        }
        at += 8 + size + size % 2;
    }
    return false;
}

// Bytes of an MPEG audio frame of layer 1 to 3 by its header; 0 when it is none.
qsizetype Frame_Size(const QByteArray& bytes, qsizetype at) {
    // kbit/s by layer for MPEG 1, then layer 1 and layers 2 and 3 for MPEG 2 and 2.5
    constexpr std::array<std::array<int, 15>, 5> Rates{
        {{0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
         {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
         {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},
         {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
         {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}}};
    constexpr std::array<int, 3> Frequencies{44100, 48000, 32000};
    if (at + 4 > bytes.size() || Byte_At(bytes, at) != 0xFFU ||
        (Byte_At(bytes, at + 1) & 0xE0U) != 0xE0U) {
        return 0;
    }
    const unsigned version = (Byte_At(bytes, at + 1) >> 3U) & 3U; // 3: MPEG 1, 2: 2, 0: 2.5
    const unsigned layer = 4U - ((Byte_At(bytes, at + 1) >> 1U) & 3U);
    const unsigned rate = Byte_At(bytes, at + 2) >> 4U;
    const unsigned frequency = (Byte_At(bytes, at + 2) >> 2U) & 3U;
    if (version == 1 || layer == 4 || rate == 0 || rate == 15 || frequency == 3) {
        return 0;
    }
    const std::size_t row = version == 3 ? layer - 1 : (layer == 1 ? 3 : 4);
    const int bits = Rates[row][rate] * 1000;
    const int samples = Frequencies[frequency] >> (version == 3 ? 0 : (version == 2 ? 1 : 2));
    const int padding = (Byte_At(bytes, at + 2) & 2U) != 0 ? 1 : 0;
    if (layer == 1) {
        return (12LL * bits / samples + padding) * 4;
    }
    return (layer == 3 && version != 3 ? 72LL : 144LL) * bits / samples + padding;
}

// Two frames one behind the other: a single header can stand in any file by chance.
bool Is_Mpeg(const QByteArray& start) {
    for (qsizetype at = 0; at + 4 <= start.size(); ++at) {
        const qsizetype size = Frame_Size(start, at);
        if (size > 0 && (Frame_Size(start, at + size) > 0 || at + size == start.size())) {
            return true;
        }
    }
    return false;
}

bool Is_Ogg(const QByteArray& start) {
    return start.startsWith("OggS") &&
           (start.contains("\x01vorbis") || start.contains("OpusHead") ||
            start.contains("\x7f"
                           "FLAC"));
}

bool Is_Module(const QByteArray& start) {
    return start.startsWith("MThd") || start.startsWith("Extended Module: ") ||
           start.startsWith("IMPM") || start.mid(44, 4) == "SCRM" || start.mid(1080, 4) == "M.K.";
}

// Where the sound begins behind a tag of titles and pictures.
qint64 Tag_Size(const QByteArray& start) {
    if (!start.startsWith("ID3") || start.size() < 10) {
        return 0;
    }
    qint64 size = 0;
    for (qsizetype at = 6; at < 10; ++at) {
        size = (size << 7U) | (Byte_At(start, at) & 0x7FU);
    }
    return size + 10;
}

} // namespace

SoundFormat Format_Of_File(const QString& path) {
    QFile file(path);
    // The test comes first: opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return SoundFormat::None;
    }
    QByteArray start = file.read(StartSize);
    if (Is_Wave(start)) {
        return SoundFormat::PlainWave;
    }
    const bool isAiff = start.startsWith("FORM") && start.mid(8, 4).startsWith("AIF");
    if (start.startsWith("fLaC") || isAiff || Is_Ogg(start) || Is_Module(start)) {
        return SoundFormat::Other;
    }
    if (start.startsWith("RIFF")) {
        return SoundFormat::None;
    }
    if (const qint64 tag = Tag_Size(start); tag > 0 && file.seek(tag)) {
        start = file.read(StartSize);
    }
    return Is_Mpeg(start) ? SoundFormat::Other : SoundFormat::None;
}

} // namespace platform
