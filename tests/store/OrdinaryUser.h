#pragma once

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace kelvaro::store {

/// Takes the rights of the super-user away while it lives, as they pass over write protection.
class OrdinaryUser {
public:
    OrdinaryUser() {
        if (wasRoot_ && seteuid(65534) != 0) {
            throw std::runtime_error("The rights of the super-user cannot be laid down");
        }
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;
    ~OrdinaryUser() {
        if (wasRoot_ && seteuid(0) != 0) {
            std::abort();
        }
    }

private:
    bool wasRoot_ = geteuid() == 0;
};

} // namespace kelvaro::store
