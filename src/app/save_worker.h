// A thread that carries out work one piece after another: writing and syncing files take as long as
// the disk likes, and the interface does not wait for it.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

class SaveWorker {
public:
    SaveWorker() = default;
    // Finishes what is queued.
    ~SaveWorker();
    SaveWorker(const SaveWorker&) = delete;
    SaveWorker& operator=(const SaveWorker&) = delete;

    // The thread starts with the first piece of work, and sleeps while there is none.
    void Queue(std::function<void()> work);
    // Returns when all work is done.
    void Wait();

private:
    void Run();

    std::mutex access;
    std::condition_variable changed;
    std::deque<std::function<void()>> queue;
    bool working = false;
    bool ended = false;
    std::thread thread;
};
