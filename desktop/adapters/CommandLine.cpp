#include "adapters/CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdio>

namespace larkspan::adapters {

namespace {

constexpr int succeeded = 0;
constexpr int misused = 2;

/// What `QGuiApplication` takes out of the arguments, as its documentation lists them.
constexpr std::array argumentsOfQt{"platform", "platformpluginpath", "platformtheme", "plugin", "qmljsdebugger",
    "qwindowgeometry", "qwindowicon", "qwindowtitle", "session", "display"};

QCommandLineOption hidden(const QString& name, const QString& valueName = {})
{
    QCommandLineOption option(name, {}, valueName);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

// Not those of a `QCoreApplication`: the end of a first one would clear what makes the windows of a second one
// accessible.
QStringList texts(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index) arguments << QString::fromLocal8Bit(argv[index]);
    return arguments;
}

void print(std::FILE* stream, const QString& text)
{
    std::fputs(qUtf8Printable(text), stream);
}

}  // namespace

std::variant<Arguments, int> readArguments(int argc, char** argv, std::string_view program, std::string_view version)
{
    if (argc < 2) return Arguments{};
    const auto name = QString::fromUtf8(program);
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Watches your Kestrune status pages from the panel, and opens the window to operate them."));
    // Not the parser's own, which come with one that lists Qt's arguments.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Prints this text."));
    const QCommandLineOption versionAlone(
        {QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Prints the version."));
    const QCommandLineOption minimized(QStringLiteral("minimized"),
        QStringLiteral("Starts in the panel alone; where there is no panel, the window is shown."));
    const QCommandLineOption status(QStringLiteral("status"),
        QStringLiteral("Prints the status and ends: with 0 if all is operational, 1 if something is degraded or under "
                       "maintenance, 2 if something is down, and 3 if the status is not known for certain."));
    const QCommandLineOption json(
        QStringLiteral("json"), QStringLiteral("With --status: prints JSON, with all pages."));
    parser.addOptions({minimized, status, json, help, versionAlone});
    for (const auto* const argument : argumentsOfQt) {
        parser.addOption(hidden(QString::fromLatin1(argument), QStringLiteral("value")));
    }
    parser.addOption(hidden(QStringLiteral("reverse")));

    const auto problem = [&]() -> QString {
        if (!parser.parse(texts(argc, argv))) return parser.errorText();
        const auto words = parser.positionalArguments();
        if (!words.isEmpty() && !parser.isSet(help) && !parser.isSet(versionAlone))
            return QStringLiteral("Unknown argument '%1'.").arg(words.constFirst());
        if (parser.isSet(json) && !parser.isSet(status)) return QStringLiteral("'--json' needs '--status'.");
        if (parser.isSet(minimized) && parser.isSet(status))
            return QStringLiteral("'--status' starts nothing that '--minimized' could minimise.");
        return {};
    }();
    if (!problem.isEmpty()) {
        print(stderr, QStringLiteral("%1: %2 '%1 --help' lists what there is.\n").arg(name, problem));
        return misused;
    }
    if (parser.isSet(help)) {
        // Named in the text.
        const QCoreApplication qt(argc, argv);
        print(stdout, parser.helpText());
        return succeeded;
    }
    if (parser.isSet(versionAlone)) {
        print(stdout, name + u' ' + QString::fromUtf8(version) + u'\n');
        return succeeded;
    }
    return Arguments{
        .isMinimized = parser.isSet(minimized), .asksForStatus = parser.isSet(status), .asJSON = parser.isSet(json)};
}

}  // namespace larkspan::adapters
