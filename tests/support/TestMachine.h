#pragma once

#include "FakePlatform.h"
#include "ProcessRun.h"
#include "Services.h"
#include "ShellSandbox.h"

#include <QTest>

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

    // Work a screen started and nobody waited for (the dashboard's quiet check for updates)
    // ends before the services it runs on go away.
    ~TestMachine()
    {
        const bool ended = QTest::qWaitFor(
            [] {
                if (ProcessRun::existing() != 0)
                    return false;
                // What ended may hand its result on at a later turn of the event loop (a login
                // shell's environment to the commands that waited for it), which starts more.
                QCoreApplication::sendPostedEvents();
                QCoreApplication::processEvents();
                return ProcessRun::existing() == 0;
            },
            30000);
        EXPECT_TRUE(ended) << "commands still running when the test ended";
    }
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    ShellSandbox sandbox;
    FakePlatform platform;
    Services services;
};

} // namespace qf::test
