#include <QGuiApplication>

#include <gtest/gtest.h>

#include "peers/VirtualDisplay.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const larkspan::peers::VirtualDisplay display;
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
