#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace tidewatch::test {

/// While it lives, this process has no more rights than an ordinary user: root may read what nobody may.
class OrdinaryUser final {
public:
    /// `directory` is what the user is still to get into.
    explicit OrdinaryUser(const std::string& directory) : before_(::geteuid()) {
        constexpr uid_t nobody = 65534;
        if (before_ != 0) return;
        EXPECT_EQ(::chmod(directory.c_str(), 0755), 0);
        EXPECT_EQ(::seteuid(nobody), 0);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() { EXPECT_EQ(::seteuid(before_), 0); }

private:
    const uid_t before_;
};

}  // namespace tidewatch::test
