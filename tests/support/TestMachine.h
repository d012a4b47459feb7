#pragma once

#include "FakePlatform.h"
#include "Services.h"
#include "ShellSandbox.h"

#include <gtest/gtest.h>

namespace qf::test {

// A machine of its own for one test and the services that work on it: the sandbox, a fake
// platform whose Homebrew folders lie inside the sandbox, and a set of services whose shell
// runs there. Tests take it as a base of their fixture or as a local.
class TestMachine {
public:
    TestMachine() : services(platform, sandbox.shellConfiguration())
    {
        platform.directories = {sandbox.binDirectory()};
        platform.npmPrograms = {sandbox.systemPath(QStringLiteral("/opt/homebrew/bin/npm")),
                                sandbox.systemPath(QStringLiteral("/usr/local/bin/npm"))};
    }

    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    ShellSandbox sandbox;
    FakePlatform platform;
    Services services;
};

} // namespace qf::test
