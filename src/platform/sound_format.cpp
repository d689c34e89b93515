#include "platform/sound_format.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr qsizetype StartSize = 65536;
constexpr int MostChunks = 10'000; // a wave has about five

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

// What the format chunk says; nothing when nobody could play it.
std::optional<WaveShape> Read_Shape(const QByteArray& format) {
    if (format.size() < 16 || !Is_Known_Coding(Word_At(format, 0)) || Word_At(format, 2) == 0 ||
        Long_At(format, 4) == 0) {
        return std::nullopt;
    }
    WaveShape shape;
    shape.Channels = static_cast<int>(Word_At(format, 2));
    shape.Frequency = Long_At(format, 4);
    shape.SampleBits = static_cast<int>(std::max(Word_At(format, 14), 1U));
    return shape;
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

// The test comes first: opening a pipe would wait for its other end.
bool Open_File(QFile& file) {
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly);
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

// The chunks may come in any number and size before the samples; their coding has to be told first.
std::optional<WaveShape> Shape_Of_Wave(const QString& path) {
    QFile file(path);
    if (!Open_File(file)) {
        return std::nullopt;
    }
    const QByteArray start = file.read(12);
    if (!start.startsWith("RIFF") || start.mid(8) != "WAVE") {
        return std::nullopt;
    }
    std::optional<WaveShape> shape;
    qint64 at = start.size();
    for (int chunk = 0; chunk < MostChunks && file.seek(at); ++chunk) {
        const QByteArray head = file.read(8);
        if (head.size() < 8) {
            break;
        }
        const qint64 size = Long_At(head, 4);
        if (head.startsWith("data")) {
            const qint64 there = std::min(size, file.size() - at - 8);
            if (shape && there > 0) {
                shape->DataSize = there;
                return shape;
            }
            break;
        }
        if (head.startsWith("fmt ")) {
            shape = Read_Shape(file.read(std::min<qint64>(size, 16)));
        }
        at += 8 + size + size % 2;
    }
    return std::nullopt;
}

SoundFormat Format_Of_File(const QString& path) {
    QFile file(path);
    if (!Open_File(file)) {
        return SoundFormat::None;
    }
    if (Shape_Of_Wave(path)) {
        return SoundFormat::PlainWave;
    }
    QByteArray start = file.read(StartSize);
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
