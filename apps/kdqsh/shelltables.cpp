#include "shelltables.h"

void ShellTables::put(const QString& name, kdDataTable table)
{
    table.setName(name);
    m_tables.insert(name, QSharedPointer<const kdDataTable>::create(std::move(table)));
}
