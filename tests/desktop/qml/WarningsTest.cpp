#include "Warnings.h"

#include <QtGlobal>

namespace larkspan {

namespace {

TEST(WarningOfQt, ThatIsExpectedFailsNoTest)
{
    Warnings::expect(QStringLiteral("an odd thing"));
    qWarning("This is an odd thing to do.");
}

}  // namespace

}  // namespace larkspan
