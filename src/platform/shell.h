// Opens a page, a document or a program the way the desktop does, never through a command line.
#pragma once

#include "platform/service.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace platform {

// The numbers are the show states of the desktop's open call.
enum class ShowState { Normal = 1, Minimized = 2, Maximized = 3 };

// What a byte of a record says: 0, 1 and 2 in that order; any other opens normally.
constexpr ShowState Show_StateOf(std::uint8_t stored) {
    return stored == 1   ? ShowState::Minimized
           : stored == 2 ? ShowState::Maximized
                         : ShowState::Normal;
}

class Shell : public Service<Shell> {
public:
    // Opens one target with the application that the desktop has for it; a program file is started.
    // False when nothing could be started.
    virtual bool Open(const QString& target, ShowState state) = 0;
    virtual bool Start(const QString& program, const std::vector<QString>& arguments,
                       ShowState state) = 0;
};

} // namespace platform
