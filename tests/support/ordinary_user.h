// The rights of a user who is not root.
#pragma once

#include <cstdlib>
#include <unistd.h>

namespace kirto::test {

// While alive, a privileged process has no more rights to files than anybody.
class OrdinaryUser {
  public:
    OrdinaryUser() {
        if (user_ == 0) changed_ = seteuid(65534) == 0;
    }
    ~OrdinaryUser() {
        if (changed_ && seteuid(user_) != 0) std::abort();
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  private:
    const uid_t user_ = geteuid();
    bool changed_ = false;
};

}  // namespace kirto::test
