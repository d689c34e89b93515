#include "app/save_worker.h"

#include <utility>

SaveWorker::~SaveWorker() {
    {
        const std::scoped_lock lock(access);
        ended = true;
    }
    changed.notify_all();
    if (thread.joinable()) {
        thread.join();
    }
}

void SaveWorker::Queue(std::function<void()> work) {
    {
        const std::scoped_lock lock(access);
        queue.push_back(std::move(work));
    }
    if (!thread.joinable()) {
        thread = std::thread([this] { Run(); });
    }
    changed.notify_all();
}

void SaveWorker::Wait() {
    std::unique_lock lock(access);
    changed.wait(lock, [this] { return queue.empty() && !working; });
}

void SaveWorker::Run() {
    std::unique_lock lock(access);
    for (;;) {
        changed.wait(lock, [this] { return ended || !queue.empty(); });
        if (queue.empty()) {
            return;
        }
        const auto work = std::move(queue.front());
        queue.pop_front();
        working = true;
        lock.unlock();
        work();
        lock.lock();
        working = false;
        changed.notify_all();
    }
}
