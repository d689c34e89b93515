// The way to a service of the operating system: each service is an abstract class of which one
// provider is in force. The program provides the system's own; a test provides its replacement.
#pragma once

namespace platform {

template <class Interface>
class Service {
public:
    virtual ~Service() = default;
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    // The provider in force. One must have been provided.
    static Interface& Get() { return *current; }
    static bool Is_Provided() { return current != nullptr; }
    // Puts a provider in force (nullptr: none) and returns the one that was. Takes no ownership.
    static Interface* Provide(Interface* provider) {
        Interface* before = current;
        current = provider;
        return before;
    }

protected:
    Service() = default;

private:
    inline static Interface* current = nullptr;
};

} // namespace platform
