#include <QGuiApplication>

#include <gtest/gtest.h>

#include "gallery/DesktopFonts.h"
#include "qml/Renderer.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    larkspan::chooseRenderer();
    larkspan::gallery::chooseDesktopFonts();
    const QGuiApplication application(argc, argv);
    larkspan::gallery::useDesktopFonts();
    return RUN_ALL_TESTS();
}
