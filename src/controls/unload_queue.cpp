#include "controls/unload_queue.h"

#include "controls/timers.h"

#include <QThread>

#include <algorithm>
#include <utility>

std::vector<QPointer<QWidget>> Global_PendingUnloads;

namespace {

// The program's own loop is the first.
bool In_InnerLoop() {
    return QThread::currentThread()->loopLevel() > 1;
}

} // namespace

void Queue_FormUnload(QWidget* form) {
    if (form == nullptr) {
        return;
    }
    const auto& queue = Global_PendingUnloads;
    if (std::find(queue.begin(), queue.end(), form) == queue.end()) {
        Global_PendingUnloads.emplace_back(form);
    }
    if (Global_Timers != nullptr) {
        Global_Timers->Enable(TimerName::UnloadFormsTimer);
    }
}

void Unload_PendingForms() {
    // Hiding a form can queue another one, or come back here.
    const auto forms = std::exchange(Global_PendingUnloads, {});
    for (const auto& form : forms) {
        if (form) {
            form->hide();
        }
        if (form && In_InnerLoop()) {
            Queue_FormUnload(form);
        } else if (form) {
            // It may be the one whose handler called.
            form->deleteLater();
        }
    }
}

void UnloadFormsTimer_Tick() {
    if (In_InnerLoop()) {
        return;
    }
    if (Global_Timers != nullptr) {
        Global_Timers->Enable(TimerName::UnloadFormsTimer, false);
    }
    Unload_PendingForms();
}
