#include <QAccessible>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "Warnings.h"
#include "qml/Renderer.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // Qt's warnings about the environment are not about the program.
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    larkspan::Warnings::watch();
    larkspan::chooseRenderer();
    const QGuiApplication application(argc, argv);
    QAccessible::setActive(true);
    return RUN_ALL_TESTS();
}
