// Boxes that a test answers beforehand. A box that nobody expected fails the test and is cancelled;
// so does an expected one that never came.
#pragma once

#include "platform/dialogs.h"
#include "support/provided.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <vector>

class ScriptedDialogs : public Provided<platform::Dialogs> {
public:
    enum class Kind { Message, Question, Input, Open_File };
    struct Box {
        Kind kind = Kind::Message;
        QString text; // the prompt of an input box, the title of a file dialog
        platform::BoxStyle style = platform::BoxStyle::Information;
        bool withCancel = false;
        QString title;
        QString start;  // text or folder that the box opens with
        QString filter; // of a file dialog
    };
    std::vector<Box> shown;
    // Runs while a box is "open", as events do under a modal box.
    std::function<void(const Box&)> whileOpen;
    bool dismissed = false;

    ~ScriptedDialogs() override {
        for (const Step& step : script) {
            ADD_FAILURE() << "a box that was expected never came: " << step.text.toStdString();
        }
    }

    // The text has to stand in the box's text; empty fits every box.
    void Expect_Message(const QString& text = {}) {
        script.push_back({Kind::Message, text, platform::Answer::Cancel, {}, 0});
    }
    void Expect_Question(const QString& text, platform::Answer answer) {
        script.push_back({Kind::Question, text, answer, {}, 0});
    }
    void Expect_Input(const QString& prompt, std::optional<QString> answer) {
        script.push_back({Kind::Input, prompt, platform::Answer::Cancel, std::move(answer), 0});
    }
    void Expect_Open_File(const QString& title, std::optional<QString> answer, int filter = 0) {
        script.push_back(
            {Kind::Open_File, title, platform::Answer::Cancel, std::move(answer), filter});
    }
    int Messages() const {
        return static_cast<int>(std::count_if(
            shown.begin(), shown.end(), [](const Box& box) { return box.kind == Kind::Message; }));
    }

    void Show_Message(const QString& text, const platform::BoxLook& look) override {
        Show({Kind::Message, text, look.Style, false, look.Title, {}, {}});
    }
    platform::Answer Question(const QString& text, bool withCancel,
                              const platform::BoxLook& look) override {
        const Step step = Show({Kind::Question, text, look.Style, withCancel, look.Title, {}, {}});
        if (step.answer == platform::Answer::Cancel && !withCancel) {
            return platform::Answer::No;
        }
        return step.answer;
    }
    std::optional<QString> Input(const QString& prompt, const QString& title,
                                 const QString& text) override {
        return Show({Kind::Input, prompt, {}, false, title, text, {}}).line;
    }
    std::optional<platform::ChosenFile> Open_File(const QString& title, const QString& folder,
                                                  const QString& filter) override {
        const Step step = Show({Kind::Open_File, title, {}, false, title, folder, filter});
        return step.line ? std::optional(platform::ChosenFile{*step.line, step.filter})
                         : std::nullopt;
    }
    bool Holds_Timers() override { return holding > 0; }
    void Dismiss_All() override { dismissed = true; }

private:
    struct Step {
        Kind kind = Kind::Message;
        QString text;
        platform::Answer answer = platform::Answer::Cancel;
        std::optional<QString> line;
        int filter = 0;
    };

    Step Show(const Box& box) {
        if (dismissed) {
            return {};
        }
        shown.push_back(box);
        Step step;
        if (script.empty() || script.front().kind != box.kind ||
            !box.text.contains(script.front().text)) {
            ADD_FAILURE() << "a box that nobody expected: " << box.text.toStdString();
        } else {
            step = script.front();
            script.pop_front();
        }
        const bool holds = box.kind == Kind::Message || box.kind == Kind::Question;
        holding += holds ? 1 : 0;
        if (whileOpen) {
            whileOpen(box);
        }
        holding -= holds ? 1 : 0;
        return dismissed ? Step{} : step;
    }

    std::deque<Step> script;
    int holding = 0;
};
