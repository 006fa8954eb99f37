#include <QGuiApplication>

#include <gtest/gtest.h>

#include "peers/VirtualDisplay.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // The build lists the tests on machines without the tests' peers, too.
    if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    const larkspan::peers::VirtualDisplay display;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
