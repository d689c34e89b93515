// Lets no file of this process grow past a size, as a full disk does.
#pragma once

#include <csignal>
#include <sys/resource.h>

class SmallFilesOnly {
public:
    explicit SmallFilesOnly(rlim_t bytes) {
        handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    SmallFilesOnly(const SmallFilesOnly&) = delete;
    SmallFilesOnly& operator=(const SmallFilesOnly&) = delete;
    ~SmallFilesOnly() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }

private:
    rlimit before{};
    void (*handler)(int) = nullptr;
};
