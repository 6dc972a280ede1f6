// SPDX-License-Identifier: MIT
// A home of its own for each test, so that nothing of the user's is read or written.
#pragma once

#include "tests/base/temporary_folder.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <map>

namespace torvik {

class AppTest : public testing::Test {
protected:
    AppTest() {
        for (const char* name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TORVIK_HOME"}) {
            m_before[name] = qgetenv(name);
            qputenv(name, home.path().c_str());
        }
    }
    ~AppTest() override {
        for (const auto& [name, value] : m_before)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

    TemporaryFolder home;

private:
    std::map<const char*, QByteArray> m_before;
};

} // namespace torvik
