#include <QGuiApplication>

#include <gtest/gtest.h>

#include "qml/Renderer.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    larkspan::chooseRenderer();
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
