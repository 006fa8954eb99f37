// Watches the network and prints what it sees.

#include <QCoreApplication>

#include <cstdio>

#include "adapters/QtNetworkPathMonitor.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    larkspan::adapters::QtNetworkPathMonitor monitor;
    monitor.start([](bool isSatisfied) {
        std::puts(isSatisfied ? "satisfied" : "unsatisfied");
        std::fflush(stdout);
    });
    std::puts("started");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
