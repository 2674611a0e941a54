#pragma once

#include "quillgrid/base/ControlError.h"

#include <gtest/gtest.h>

#include <string>

namespace quillgrid::test {

/// Runs `action` and checks that it reports this code from this source.
template <typename Action>
void ExpectError(std::int32_t code, const std::string& source, Action action) {
    try {
        action();
        ADD_FAILURE() << "no error from " << source;
    } catch (const ControlError& error) {
        EXPECT_EQ(error.Code(), code);
        EXPECT_EQ(error.Source(), source + ".Quillgrid");
        EXPECT_FALSE(error.Description().empty());
    }
}

} // namespace quillgrid::test
