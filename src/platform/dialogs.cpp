// The boxes as the toolkit draws them: the same on every system.
#include "platform/dialogs.h"

#include "platform/providers.h"
#include "platform/shown_text.h"

#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QMessageBox::Icon Icon_Of(BoxStyle style) {
    switch (style) {
    case BoxStyle::Critical:
        return QMessageBox::Critical;
    case BoxStyle::Exclamation:
        return QMessageBox::Warning;
    case BoxStyle::Information:
        return QMessageBox::Information;
    case BoxStyle::Question:
        return QMessageBox::Question;
    case BoxStyle::Plain:
        break;
    }
    return QMessageBox::NoIcon;
}

// The toolkit's "*.*" asks for a dot. The list of files goes by a second pair of brackets, which is
// not shown.
QStringList Toolkit_Filters(const QString& filter) {
    static const QRegularExpression patterns(u"\\(([^()]*)\\)$"_s);
    QStringList filters = filter.split(u";;"_s, Qt::SkipEmptyParts);
    for (QString& one : filters) {
        const QString pattern = patterns.match(one).captured(1);
        one += u" ("_s + (pattern == "*.*"_L1 ? u"*"_s : pattern) + u')';
    }
    return filters;
}

class ToolkitDialogs : public Dialogs {
public:
    void Show_Message(const QString& text, const BoxLook& look) override {
        if (!isDismissed) {
            Show_Box(look, text, QMessageBox::Ok, QMessageBox::Ok);
        }
    }

    void Notice(const QString& text, BoxStyle style) override {
        if (isDismissed) {
            return;
        }
        auto* box = new QMessageBox(Icon_Of(style), u"Tockly"_s, Shown_Text(text), QMessageBox::Ok);
        box->setTextFormat(Qt::PlainText);
        box->setAccessibleDescription(text);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setAttribute(Qt::WA_ShowWithoutActivating);
        box->setWindowModality(Qt::NonModal);
        box->setWindowFlag(Qt::WindowStaysOnTopHint);
        notices.emplace_back(box);
        box->show();
    }

    Answer Question(const QString& text, bool withCancel, const BoxLook& look) override {
        const auto closing = withCancel ? QMessageBox::Cancel : QMessageBox::No;
        QMessageBox::StandardButton pressed = closing;
        if (!isDismissed) {
            pressed = Show_Box(look, text, QMessageBox::Yes | QMessageBox::No | closing, closing);
        }
        if (pressed == QMessageBox::Yes) {
            return Answer::Yes;
        }
        return pressed == QMessageBox::No ? Answer::No : Answer::Cancel;
    }

    void Input(QWidget* owner, const QString& prompt, const QString& title, const QString& text,
               std::function<void(const QString&)> taken) override {
        if (isDismissed) {
            return;
        }
        auto* box = new QInputDialog(owner->window());
        box->setInputMode(QInputDialog::TextInput);
        box->setWindowTitle(title);
        box->setLabelText(Shown_Text(prompt));
        for (QLabel* label : box->findChildren<QLabel*>()) {
            label->setTextFormat(Qt::PlainText);
        }
        box->setTextValue(text);
        if (auto* line = box->findChild<QLineEdit*>()) {
            line->setAccessibleName(prompt);
        }
        Open(*box, *owner, [box, taken = std::move(taken)] { taken(box->textValue()); });
    }

    void Open_File(QWidget* owner, const QString& title, const QString& folder,
                   const QString& filter, std::function<void(const ChosenFile&)> taken) override {
        if (isDismissed) {
            return;
        }
        auto* box = new QFileDialog(owner->window(), title, folder);
        // Choosing a file neither renames nor deletes one.
        box->setOptions(QFileDialog::HideNameFilterDetails | QFileDialog::ReadOnly);
        box->setNameFilters(Toolkit_Filters(filter));
        box->setAcceptMode(QFileDialog::AcceptOpen);
        box->setFileMode(QFileDialog::AnyFile); // the caller may complete a typed name
        Open(*box, *owner, [box, filter, taken = std::move(taken)] {
            // As it is shown, or whole: versions of the toolkit differ.
            const QString selected = box->selectedNameFilter();
            const auto index = std::max(filter.split(u";;"_s, Qt::SkipEmptyParts).indexOf(selected),
                                        box->nameFilters().indexOf(selected));
            if (!box->selectedFiles().isEmpty()) {
                taken({box->selectedFiles().constFirst(), std::max(0, static_cast<int>(index))});
            }
        });
    }

    bool Holds_Timers() override { return holding > 0; }

    void Dismiss_All() override {
        isDismissed = true;
        for (const auto& notice : std::exchange(notices, {})) {
            delete notice.data();
        }
        // The innermost loop first. A box that goes may take others with it.
        const auto closing = open;
        for (auto box = closing.rbegin(); box != closing.rend(); ++box) {
            if (*box) {
                (*box)->done(QDialog::Rejected);
            }
        }
    }

private:
    QMessageBox::StandardButton Show_Box(const BoxLook& look, const QString& text,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::StandardButton closing) {
        QMessageBox box(Icon_Of(look.Style), look.Title, Shown_Text(text), buttons);
        box.setTextFormat(Qt::PlainText);
        box.setEscapeButton(closing);
        const auto answer = look.Default == Answer::No ? QMessageBox::No : QMessageBox::Yes;
        box.setDefaultButton(buttons.testFlag(QMessageBox::Yes) ? answer : QMessageBox::Ok);
        box.setAccessibleDescription(text);
        ++holding;
        Run(box);
        --holding;
        const auto pressed = box.standardButton(box.clickedButton());
        return isDismissed || pressed == QMessageBox::NoButton ? closing : pressed;
    }

    void Prepare(QDialog& box, Qt::WindowModality modality) {
        box.setWindowModality(modality);
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
        box.setAccessibleName(box.windowTitle());
        open.emplace_back(&box);
    }

    void Forget(const QDialog& box) {
        std::erase_if(open, [&box](const auto& one) { return !one || one == &box; });
    }

    void Run(QDialog& box) {
        Prepare(box, Qt::ApplicationModal);
        box.exec();
        Forget(box);
    }

    // The box goes once it has told; at the end with its owner, as its handlers may be running.
    void Open(QDialog& box, const QWidget& owner, const std::function<void()>& agreed) {
        Prepare(box, Qt::WindowModal);
        QObject::connect(&box, &QDialog::accepted, &owner, agreed);
        QObject::connect(&box, &QDialog::finished, &box, [this, &box] {
            Forget(box);
            if (!isDismissed) {
                box.deleteLater();
            }
        });
        box.QDialog::open();
    }

    std::vector<QPointer<QDialog>> open; // the innermost last
    std::vector<QPointer<QMessageBox>> notices;
    int holding = 0;
    bool isDismissed = false;
};

} // namespace

std::unique_ptr<Dialogs> Make_Dialogs() {
    return std::make_unique<ToolkitDialogs>();
}

} // namespace platform
