// usage: larkspan_instance_probe [--minimized] NAME
// Claims to be the single instance of that name, and prints what happens to it.

#include <QCoreApplication>

#include <cstdio>

#include "adapters/ActivationToken.h"
#include "adapters/SingleInstance.h"

using larkspan::adapters::SingleInstance;

namespace {

void say(const QString& line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv)
{
    const auto token = larkspan::adapters::launchActivationToken();
    const QCoreApplication application(argc, argv);
    const larkspan::adapters::SessionBus bus;
    SingleInstance instance(bus, QString::fromLocal8Bit(argv[argc - 1]), std::chrono::milliseconds(1500));
    const auto raise = argc > 2 ? SingleInstance::Raise::no : SingleInstance::Raise::yes;
    if (instance.claim(token, raise) == SingleInstance::Standing::second) {
        say("second");
        return 0;
    }
    say("first");
    QObject::connect(&instance, &SingleInstance::activated, [](const QString& given) { say("activated " + given); });
    QObject::connect(&instance, &SingleInstance::replaced, [] {
        say("replaced");
        QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}
