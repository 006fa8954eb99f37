#include "stage/Row.h"

#include "stage/Client.h"
#include "stage/StandardError.h"

namespace larkspan::campaign {

int playRow(const std::vector<Cell>& cells, const Selection& selection)
{
    useNoProxy();
    const StandardError standardError;
    Report report;
    play(cells, selection, report);
    report.add("the standard error holds no key", standardError.linesWith(key));
    return 0;
}

}  // namespace larkspan::campaign
