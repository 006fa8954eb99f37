// usage: larkspan_notice_probe
// Tells the desktop's notification server each line of standard input, which is the identifier, subtitle and body of a
// notice with tabs between them. Ends with standard input.

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QStringList>

#include <iostream>
#include <string>

#include "adapters/FreedesktopNotificationCenter.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const larkspan::adapters::SessionBus bus;
    larkspan::adapters::FreedesktopNotificationCenter center(bus);
    QSocketNotifier input(0, QSocketNotifier::Read);
    // One line for each event: the tests wait for each notice before they write the next.
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        std::string line;
        if (!std::getline(std::cin, line)) return QCoreApplication::quit();
        const auto fields = QString::fromStdString(line).split('\t');
        center.add({fields.value(0).toStdString(), "New Incident", fields.value(1).toStdString(),
            fields.value(2).toStdString(), "incident", "1"});
    });
    return QCoreApplication::exec();
}
