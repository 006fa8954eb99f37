#include "Warnings.h"

#include <QLoggingCategory>
#include <QStringList>

#include <algorithm>
#include <mutex>
#include <utility>

namespace larkspan {

namespace {

// Messages come from Qt's threads, too.
std::mutex mutex;
QStringList heard;
QStringList expected;
QtMessageHandler printing = nullptr;

void listen(QtMsgType type, const QMessageLogContext& context, const QString& words)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        const std::scoped_lock lock(mutex);
        heard << words;
    }
    printing(type, context, words);
}

bool isExpected(const QString& message)
{
    return std::ranges::any_of(expected, [&message](const QString& words) { return message.contains(words); });
}

bool isHeard(const QString& words)
{
    return std::ranges::any_of(heard, [&words](const QString& message) { return message.contains(words); });
}

}  // namespace

void Warnings::watch()
{
    printing = qInstallMessageHandler(listen);
    testing::UnitTest::GetInstance()->listeners().Append(new Warnings);
}

void Warnings::expect(const QString& words)
{
    const std::scoped_lock lock(mutex);
    expected << words;
}

void Warnings::OnTestStart(const testing::TestInfo&)
{
    const std::scoped_lock lock(mutex);
    heard.clear();
    expected.clear();
}

void Warnings::OnTestEnd(const testing::TestInfo&)
{
    const std::scoped_lock lock(mutex);
    for (const auto& message : std::as_const(heard)) {
        if (!isExpected(message)) ADD_FAILURE() << "Qt complains: " << message.toStdString();
    }
    for (const auto& words : std::as_const(expected)) {
        if (!isHeard(words)) ADD_FAILURE() << "Qt does not complain: " << words.toStdString();
    }
}

}  // namespace larkspan
