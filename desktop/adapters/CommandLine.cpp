#include "adapters/CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>

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

void print(std::FILE* stream, const QString& text)
{
    std::fputs(qUtf8Printable(text), stream);
}

}  // namespace

std::optional<int> answerOnTerminal(int argc, char** argv, std::string_view program, std::string_view version)
{
    if (argc < 2) return std::nullopt;
    const QCoreApplication qt(argc, argv);
    const auto name = QString::fromUtf8(program);
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Watches your Kestrune status pages from the panel, and opens the window to operate them."));
    // Not the parser's own, which come with one that lists Qt's arguments.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Prints this text."));
    const QCommandLineOption versionAlone(
        {QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Prints the version."));
    parser.addOptions({help, versionAlone});
    for (const auto* const argument : argumentsOfQt) {
        parser.addOption(hidden(QString::fromLatin1(argument), QStringLiteral("value")));
    }
    parser.addOption(hidden(QStringLiteral("reverse")));

    const bool isUnderstood = parser.parse(QCoreApplication::arguments());
    if (isUnderstood && parser.isSet(help)) {
        print(stdout, parser.helpText());
        return succeeded;
    }
    if (isUnderstood && parser.isSet(versionAlone)) {
        print(stdout, name + u' ' + QString::fromUtf8(version) + u'\n');
        return succeeded;
    }
    const auto words = parser.positionalArguments();
    if (isUnderstood && words.isEmpty()) return std::nullopt;
    const auto problem
        = isUnderstood ? QStringLiteral("Unknown argument '%1'.").arg(words.constFirst()) : parser.errorText();
    print(stderr, QStringLiteral("%1: %2 '%1 --help' lists what there is.\n").arg(name, problem));
    return misused;
}

}  // namespace larkspan::adapters
