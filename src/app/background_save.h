// Puts what has changed on the disk while the program runs: a few seconds after a change the tables
// are encoded, in steps shorter than a frame, and a thread beside the interface writes those whose
// bytes differ from their files. While nothing changes nothing happens.
#pragma once

#include "app/save_worker.h"
#include "core/reminder_store.h"
#include "core/table_file.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

class BackgroundSave : public QObject {
    Q_OBJECT
public:
    // One table that is encoded at once.
    struct Table {
        QString FileName;
        TableFile& File;
        std::function<std::optional<std::string>()> Encode;
        QString Failure; // to be said when it cannot be saved; empty: nothing is said
    };
    struct Ports {
        Table Reminders; // without Encode: they are taken step by step
        std::vector<Table> Others;
        std::function<void()> Before;                    // takes what is being typed
        std::function<std::function<void()>()> Settings; // takes them; the result writes them
        std::function<void(const QString& text)> Tell;   // without waiting for an answer
    };

    // ms
    struct Pace {
        int AfterChange = 3000;
        int AfterFailure = 10000;
    };

    // Watches the program's input from now on.
    explicit BackgroundSave(Ports ports);
    BackgroundSave(Ports ports, Pace pace);

    // Something may have changed: it is looked at after the pace's time.
    void Note_Change();
    // Looks at once. Not while Is_Passing.
    void Begin();
    bool Is_Passing() const { return passing; }
    // Ends for good: nothing is under way afterwards. The tables have not been looked at again.
    void Finish();
    // What was kept of files that somebody else had changed, since the last call; one line each.
    QStringList Take_OtherCopies();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Step();
    void Hand_Over(const Table& table, std::optional<std::string> bytes);
    void Note_Result(const QString& failure, SaveResult result);
    void End_Pass();

    Ports ports;
    Pace pace;
    QTimer timer;
    SaveWorker worker;
    std::optional<RemindersEncoding> reminders; // while a pass encodes them
    bool passing = false;
    bool changed = false; // since the pass began
    bool finished = false;
    QStringList failing;   // what could not be saved in the last pass
    QStringList failedNow; // ... in this one
};
