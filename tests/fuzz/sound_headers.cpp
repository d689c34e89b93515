// The starts of sound files, which are read from the disk.
#include "fuzz.h"
#include "platform/sound_format.h"

#include <cmath>
#include <sys/mman.h>
#include <unistd.h>

void Try(Ground& ground) {
    static const int file = memfd_create("sound", 0);
    static const QString path = QStringLiteral("/proc/self/fd/") + QString::number(file);
    const std::string& bytes = ground.Bytes();
    Must(ftruncate(file, 0) == 0 &&
         pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
    const auto shape = platform::Shape_Of_Wave(path);
    Must(!shape || (std::isfinite(shape->Seconds()) && shape->Seconds() >= 0));
    const auto format = platform::Format_Of_File(path);
    Must(shape.has_value() == (format == platform::SoundFormat::PlainWave));
}
