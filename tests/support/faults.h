#pragma once

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

namespace norvane {

/// While it lives, no file can be written beyond `most` bytes, as on a disk that is full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t most) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{most, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

  private:
    rlimit before_{};
};

/// While it lives, permissions bind also where the tests run as root.
class OrdinaryUser {
  public:
    OrdinaryUser() : wasRoot_(geteuid() == 0 && seteuid(kNobody) == 0) {}
    ~OrdinaryUser() {
        if (wasRoot_ && seteuid(0) != 0)
            std::abort();
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

  private:
    static constexpr uid_t kNobody = 65534;
    bool wasRoot_;
};

} // namespace norvane
