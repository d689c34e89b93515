// The boxes that the program shows. Messages and questions block all of its windows and wait for
// the answer. Input boxes and file dialogs block the window that asks, return at once and tell
// later.
#pragma once

#include "platform/service.h"

#include <QString>

#include <functional>

class QWidget;

namespace platform {

enum class BoxStyle { Critical, Exclamation, Information, Question, Plain };
enum class Answer { Yes, No, Cancel };

struct BoxLook {
    QString Title = QStringLiteral("Tockly");
    BoxStyle Style = BoxStyle::Question;
    Answer Default = Answer::Yes; // what Enter answers to a question
};

struct ChosenFile {
    QString Path;         // may not be there: the user can type any name
    int Filter_Index = 0; // of the filter that was chosen, from 0
};

class Dialogs : public Service<Dialogs> {
public:
    // A text with one Ok button; its title is "Tockly".
    void Message(const QString& text, BoxStyle style) {
        Show_Message(text, {QStringLiteral("Tockly"), style});
    }
    virtual void Show_Message(const QString& text, const BoxLook& look) = 0;
    // A text that waits for nobody: the program goes on, its timers too.
    virtual void Notice(const QString& text, BoxStyle style) = 0;
    // A question with Yes, No and, if asked for, Cancel. Closing the box is Cancel, or No without.
    virtual Answer Question(const QString& text, bool withCancel, const BoxLook& look = {}) = 0;
    // A line of text. taken: called unless the user cancels or the owner is gone by then.
    virtual void Input(QWidget* owner, const QString& prompt, const QString& title,
                       const QString& text, std::function<void(const QString&)> taken) = 0;
    // A file, told the same way. filter: "Sounds (*.wav *.mp3);;All Files (*.*)".
    virtual void Open_File(QWidget* owner, const QString& title, const QString& folder,
                           const QString& filter, std::function<void(const ChosenFile&)> taken) = 0;

    // A message or question box is on view: it holds the program's timers (an input box and a file
    // dialog do not).
    virtual bool Holds_Timers() = 0;
    // The session ends: closes what is open as if the user had cancelled, and answers what comes
    // later the same way without showing it.
    virtual void Dismiss_All() = 0;
};

} // namespace platform
