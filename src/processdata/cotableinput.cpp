#include "cotableinput.h"

#include "copredefinedtablelistmodel.h"
#include "nheattreatment.h"
#include "tableinputxml.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

coTableInput::coTableInput(const kdDataTable& table) : m_mode(UserDefinedTable)
{
    setDataTable(table);
}

void coTableInput::setTableName(const QString& name)
{
    const bool isTranslatedMark = name == nHeatTreatment::getUserDefinedTableName(true);
    m_tableName = isTranslatedMark ? nHeatTreatment::getUserDefinedTableName(false) : name;
}

void coTableInput::setDataTable(const kdDataTable& table)
{
    m_dataTable = QSharedPointer<const kdDataTable>::create(table);
}

void coTableInput::setDataTable(kdDataTable&& table)
{
    m_dataTable = QSharedPointer<const kdDataTable>::create(std::move(table));
}

bool coTableInput::ensureTableCopiedToProject(coPredefinedTableListModel* model) const
{
    if (m_mode != PredefinedTable)
        return true;
    return model && model->copyToProject(m_tableName);
}

void coTableInput::writeXML(QXmlStreamWriter& writer, const QString& elementName) const
{
    writer.writeStartElement(elementName);
    TableInputXml::block().write(writer, *this);
    writer.writeEndElement();
}

bool coTableInput::readXML(QXmlStreamReader& reader, const QString& elementName)
{
    if (!reader.isStartElement() || reader.name() != elementName) {
        if (!reader.hasError())
            reader.raiseError(
                QCoreApplication::translate("coTableInput", "Element '%1' expected, '%2' found.")
                    .arg(elementName, reader.name().toString()));
        return false;
    }
    coTableInput read(*this);
    read.removeDataTable();
    while (reader.readNextStartElement()) {
        const QString element = reader.name().toString();
        if (!TableInputXml::block().has(element))
            reader.skipCurrentElement();
        else if (!TableInputXml::block().read(reader, element, read) && !reader.hasError())
            reader.raiseError(
                QCoreApplication::translate("coTableInput", "Element '%1' cannot be read.").arg(element));
    }
    if (reader.hasError())
        return false;
    *this = read;
    return true;
}

bool operator==(const coTableInput& a, const coTableInput& b)
{
    if (a.m_mode != b.m_mode || a.m_constant != b.m_constant || a.m_tableName != b.m_tableName
        || a.hasDataTable() != b.hasDataTable())
        return false;
    return !a.hasDataTable() || *a.m_dataTable == *b.m_dataTable;
}
