// A desktop that counts how often it is asked for the cursor.
#pragma once

#include "support/fake_desktop.h"

#include <QTest>

class CountingDesktop : public FakeDesktop {
public:
    int asked = 0;
    std::optional<platform::Point> Cursor_Position() override {
        ++asked;
        return cursor;
    }
    // Lets a control that polls the cursor look at it.
    bool Wait_ForPolls() {
        const int soFar = asked;
        return QTest::qWaitFor([&] { return asked >= soFar + 2; });
    }
};
