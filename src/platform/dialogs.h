// The boxes that the program shows. All of them are modal.
#pragma once

#include "platform/service.h"

#include <QString>

#include <optional>

namespace platform {

enum class BoxStyle { Critical, Exclamation, Information };
enum class Answer { Yes, No, Cancel };

class Dialogs : public Service<Dialogs> {
public:
    // A text with one Ok button; its title is "Tockly".
    virtual void Message(const QString& text, BoxStyle style) = 0;
    // A question with Yes, No and, if asked for, Cancel. Closing the box is Cancel, or No without.
    virtual Answer Question(const QString& text, bool withCancel) = 0;
    // A line of text; nothing when the user cancels.
    virtual std::optional<QString> Input(const QString& prompt, const QString& title,
                                         const QString& text) = 0;
    // An existing file; nothing when the user cancels. filter: "Sounds (*.wav *.mp3)".
    virtual std::optional<QString> Open_File(const QString& title, const QString& folder,
                                             const QString& filter) = 0;

    // A message or question box is on view: it holds the program's timers (an input box and a file
    // dialog do not).
    virtual bool Holds_Timers() = 0;
    // The session ends: closes what is open as if the user had cancelled, and answers what comes
    // later the same way without showing it.
    virtual void Dismiss_All() = 0;
};

} // namespace platform
