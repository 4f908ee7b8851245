#pragma once

#include <gtest/gtest.h>

#include <string>

namespace tidewatch::test {

/// For FakeLog: fails the current test.
inline void failTest(const std::string& complaint) {
    ADD_FAILURE() << complaint;
}

}  // namespace tidewatch::test
