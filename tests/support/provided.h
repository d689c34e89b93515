// A replacement of a platform service: in force while it lives, the former one after it.
#pragma once

template <class Interface>
class Provided : public Interface {
public:
    Provided() : before(Interface::Provide(this)) {}
    ~Provided() override { Interface::Provide(before); }

private:
    Interface* before;
};
