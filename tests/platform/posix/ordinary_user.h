#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace tidewatch::test {

/// During its lifetime, this process has the permissions of an ordinary user, since root can read everything.
class OrdinaryUser final {
public:
    /// `directory` stays accessible to that user.
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
