#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include <memory>
#include <vector>

#include "TrayTest.h"

namespace larkspan::adapters {

class MenuTest : public TrayTest {
protected:
    std::unique_ptr<peers::TrayHost> panelWith(const std::vector<platform::MenuRow>& rows)
    {
        item.setMenu(rows);
        show();
        return panel();
    }
};

inline int idAt(const QJsonArray& rows, qsizetype position)
{
    return rows.at(position).toArray().at(0).toInt();
}

inline QJsonObject propertiesAt(const QJsonArray& rows, qsizetype position)
{
    return rows.at(position).toArray().at(1).toObject();
}

inline std::vector<int> ids(const QJsonArray& rows)
{
    std::vector<int> ids;
    for (qsizetype position = 0; position < rows.size(); ++position) ids.push_back(idAt(rows, position));
    return ids;
}

}  // namespace larkspan::adapters
