#include "app/background_save.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int StepTime = 4; // ms, of encoding in one piece
constexpr std::size_t SlotsAtOnce = 200;

// What a user's doing shows itself by; a reader's commands bring no input, but windows change.
bool Is_SignOfChange(const QObject* watched, const QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::InputMethod:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
        return true;
    case QEvent::Paint: {
        const auto* widget = qobject_cast<const QWidget*>(watched);
        // The ticker paints all the time.
        return widget != nullptr && !widget->window()->testAttribute(Qt::WA_ShowWithoutActivating);
    }
    default:
        return false;
    }
}

} // namespace

BackgroundSave::BackgroundSave(Ports given) : BackgroundSave(std::move(given), Pace()) {}

BackgroundSave::BackgroundSave(Ports given, Pace givenPace)
    : ports(std::move(given)), pace(givenPace) {
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &BackgroundSave::Begin);
    QCoreApplication::instance()->installEventFilter(this);
}

bool BackgroundSave::eventFilter(QObject* watched, QEvent* event) {
    if (Is_SignOfChange(watched, event)) {
        Note_Change();
    }
    return false;
}

void BackgroundSave::Note_Change() {
    changed = true;
    if (!passing && !finished && !timer.isActive()) {
        timer.start(pace.AfterChange);
    }
}

void BackgroundSave::Begin() {
    passing = true;
    changed = false;
    ports.Before();
    reminders.emplace();
    Step();
}

void BackgroundSave::Step() {
    if (finished) {
        return;
    }
    QElapsedTimer passed;
    passed.start();
    while (!reminders->Step(SlotsAtOnce)) {
        if (passed.hasExpired(StepTime)) {
            QTimer::singleShot(0, this, &BackgroundSave::Step);
            return;
        }
    }
    Hand_Over(ports.Reminders, reminders->Take_Bytes());
    reminders.reset();
    for (const Table& table : ports.Others) {
        Hand_Over(table, table.Encode());
    }
    worker.Queue(ports.Settings());
    worker.Queue([this] { QMetaObject::invokeMethod(this, &BackgroundSave::End_Pass); });
}

void BackgroundSave::Hand_Over(const Table& table, std::optional<std::string> bytes) {
    if (!bytes) {
        Note_Result(table.Failure, SaveResult::Refused);
        return;
    }
    worker.Queue([this, &table, content = std::move(*bytes)] {
        const SaveResult result = table.File.Save_Changed(table.FileName, content);
        QMetaObject::invokeMethod(this,
                                  [this, &table, result] { Note_Result(table.Failure, result); });
    });
}

void BackgroundSave::Note_Result(const QString& failure, SaveResult result) {
    if (result == SaveResult::Refused) {
        failedNow.append(failure);
    }
}

void BackgroundSave::End_Pass() {
    passing = false;
    const QStringList before = std::exchange(failing, std::exchange(failedNow, {}));
    if (finished) {
        return;
    }
    if (!failing.isEmpty() || changed) {
        timer.start(failing.isEmpty() ? pace.AfterChange : pace.AfterFailure);
    }
    QStringList news = Take_OtherCopies();
    if (!failing.isEmpty() && before.isEmpty()) {
        news += failing;
        news.append(u"Tockly keeps trying."_s);
    } else if (failing.isEmpty() && !before.isEmpty()) {
        news.append(u"Your data is saved again."_s);
    }
    if (!news.isEmpty()) {
        ports.Tell(news.join("\r\n"_L1));
    }
}

QStringList BackgroundSave::Take_OtherCopies() {
    QStringList lines;
    const auto take = [&lines](const Table& table) {
        if (const QString copy = table.File.Take_OtherCopy(); !copy.isEmpty()) {
            lines.append(
                u"%1 was changed by another program. What stood there is kept as %2."_s.arg(
                    table.FileName.section(u'/', -1), copy));
        }
    };
    take(ports.Reminders);
    for (const Table& table : ports.Others) {
        take(table);
    }
    return lines;
}

void BackgroundSave::Finish() {
    finished = true;
    timer.stop();
    worker.Wait();
}
