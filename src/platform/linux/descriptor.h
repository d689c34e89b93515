// A file descriptor that closes itself.
#pragma once

#include <unistd.h>
#include <utility>

namespace platform {

class Descriptor {
public:
    explicit Descriptor(int opened = -1) : number(opened) {}
    Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number, other.number);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    bool Is_Open() const { return number >= 0; }
    int Number() const { return number; }
    // False when the system reports that something written was lost.
    bool Close() {
        const int closing = std::exchange(number, -1);
        return closing < 0 || close(closing) == 0;
    }

private:
    int number;
};

} // namespace platform
