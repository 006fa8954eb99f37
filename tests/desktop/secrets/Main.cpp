#include <QCoreApplication>

#include <gtest/gtest.h>

#include <memory>

#include "SessionBus.h"

namespace {

std::unique_ptr<larkspan::peers::PrivateBus> bus;

}  // namespace

larkspan::peers::PrivateBus& larkspan::adapters::sessionBus()
{
    return *bus;
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // The build lists the tests on machines without the tests' peers, too.
    if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    const QCoreApplication application(argc, argv);
    bus = std::make_unique<larkspan::peers::PrivateBus>();
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus->address().toUtf8());
    const int result = RUN_ALL_TESTS();
    bus.reset();
    return result;
}
