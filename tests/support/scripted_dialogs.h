// Boxes that a test answers beforehand. A box that nobody expected fails the test and is cancelled;
// so does an expected one that never came.
#pragma once

#include "platform/dialogs.h"
#include "support/provided.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <vector>

class ScriptedDialogs : public Provided<platform::Dialogs> {
public:
    using Style = platform::BoxStyle;
    enum class Kind { Message, Question, Input, Open_File };
    static inline const QString Product = QStringLiteral("Tockly");
    struct Box {
        Kind kind = Kind::Message;
        QString text; // the prompt of an input box, the title of a file dialog
        platform::BoxStyle style = platform::BoxStyle::Information;
        QString title;
        QString start;  // text or folder that the box opens with
        QString filter; // of a file dialog
    };
    std::vector<Box> shown;
    // Runs while a box is "open", as events do under a modal box.
    std::function<void(const Box&)> whileOpen;
    bool dismissed = false;
    QStringList notices; // boxes that wait for nobody

    ~ScriptedDialogs() override {
        for (const Step& step : script) {
            ADD_FAILURE() << "a box that was expected never came: " << step.text.toStdString();
        }
    }

    // The whole text, and the box's look.
    void Expect_Message(const QString& text, platform::BoxStyle style = Style::Exclamation,
                        const QString& title = Product) {
        script.push_back({Kind::Message, text, style, title});
    }
    void Expect_Question(const QString& text, platform::Answer answer,
                         platform::BoxStyle style = Style::Question,
                         const QString& title = Product) {
        script.push_back({Kind::Question, text, style, title, answer});
    }
    void Expect_Input(const QString& prompt, std::optional<QString> answer) {
        script.push_back({Kind::Input, prompt, {}, {}, {}, std::move(answer)});
    }
    void Expect_Open_File(const QString& title, std::optional<QString> answer, int filter = 0) {
        script.push_back({Kind::Open_File, title, {}, {}, {}, std::move(answer), filter});
    }

    void Show_Message(const QString& text, const platform::BoxLook& look) override {
        Show({Kind::Message, text, look.Style, look.Title, {}, {}});
    }
    void Notice(const QString& text, platform::BoxStyle) override { notices.append(text); }
    platform::Answer Question(const QString& text, bool withCancel,
                              const platform::BoxLook& look) override {
        const Step step = Show({Kind::Question, text, look.Style, look.Title, {}, {}});
        if (step.answer == platform::Answer::Cancel && !withCancel) {
            return platform::Answer::No;
        }
        return step.answer;
    }
    void Input(QWidget* /*owner*/, const QString& prompt, const QString& title, const QString& text,
               std::function<void(const QString&)> taken) override {
        const Step step = Show({Kind::Input, prompt, {}, title, text, {}});
        if (step.line) {
            taken(*step.line);
        }
    }
    void Open_File(QWidget* /*owner*/, const QString& title, const QString& folder,
                   const QString& filter,
                   std::function<void(const platform::ChosenFile&)> taken) override {
        const Step step = Show({Kind::Open_File, title, {}, title, folder, filter});
        if (step.line) {
            taken({*step.line, step.filter});
        }
    }
    bool Holds_Timers() override { return holding > 0; }
    void Dismiss_All() override { dismissed = true; }

private:
    struct Step {
        Kind kind = Kind::Message;
        QString text;
        platform::BoxStyle style = platform::BoxStyle::Plain; // of message and question
        QString title;
        platform::Answer answer = platform::Answer::Cancel;
        std::optional<QString> line{};
        int filter = 0;

        bool Fits(const Box& box) const {
            const bool hasLook = kind == Kind::Message || kind == Kind::Question;
            return kind == box.kind && text == box.text &&
                   (!hasLook || (style == box.style && title == box.title));
        }
    };

    Step Show(const Box& box) {
        if (dismissed) {
            return {};
        }
        shown.push_back(box);
        Step step;
        // A box that nobody expected is an expected one with other words, as a rule.
        if (script.empty() || !script.front().Fits(box)) {
            ADD_FAILURE() << "a box that nobody expected: " << box.text.toStdString() << "\nstyle "
                          << static_cast<int>(box.style) << ", title " << box.title.toStdString();
        }
        if (!script.empty() && script.front().kind == box.kind) {
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
