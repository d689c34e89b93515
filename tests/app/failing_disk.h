// What a program under test and the library failing_disk agree on.
#pragma once

#include <array>
#include <atomic>

// Memory that a process shares with those that it forks.
struct DiskOrders {
    std::array<char, 256> folder{}; // operations on what lies below it count
    std::atomic<int> operations = 0;
    int at = 0;                 // the operation that is hit; 0: none
    int error = 0;              // what it fails with; 0: it ends the process
    bool forGood = false;       // ... and so does every later one
    std::array<char, 32> hit{}; // the name of the operation at "at"
};

extern "C" DiskOrders* Disk_Orders(); // of this process and those that it forks
