// A tray whose host comes and goes as the test says.
#pragma once

#include "platform/tray.h"
#include "support/provided.h"

#include <optional>
#include <utility>

class FakeTray : public Provided<platform::Tray> {
public:
    bool available = true;
    std::optional<platform::TrayIcon> icon;
    int added = 0;

    bool Is_Available() override { return available; }
    void Add_Icon(platform::TrayIcon shown) override {
        icon = std::move(shown);
        ++added;
    }
    void Remove_Icon() override { icon.reset(); }

    // As the user does.
    void Click() {
        const auto work = icon->On_LeftClick;
        work();
    }
    void Pick(int index) {
        const auto work = icon->On_Menu;
        work(index);
    }
};
