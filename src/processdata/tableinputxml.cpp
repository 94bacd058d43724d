#include "tableinputxml.h"

#include "copredeftableorconstant.h"
#include "xmltext_p.h"
#include "xmlvalues.h"

#include <QXmlStreamWriter>

const TableInputXml& TableInputXml::block()
{
    static const TableInputXml names(QStringLiteral("mode"), QStringLiteral("tableName"),
                                     QStringLiteral("fixed_value"), QStringLiteral("table"));
    return names;
}

const TableInputXml& TableInputXml::heatTransfer()
{
    static const TableInputXml names(QStringLiteral("stage_htc_mode"), QStringLiteral("stage_htc_material"),
                                     QStringLiteral("stage_htc_fixed_value"),
                                     QStringLiteral("stage_htc_table"));
    return names;
}

void TableInputXml::write(QXmlStreamWriter& writer, const coTableInput& input) const
{
    const int mode = coPredefTableOrConstant::htMode(input.mode());
    writer.writeTextElement(m_mode, QString::number(mode));
    writeXmlText(writer, m_tableName, input.tableName());
    input.constant().writeXML(writer, m_constant);
    writeTable(writer, m_table, input);
}

bool TableInputXml::has(const QString& element) const
{
    return element == m_mode || element == m_tableName || element == m_constant || element == m_table;
}

bool TableInputXml::read(QXmlStreamReader& reader, const QString& element, coTableInput& input) const
{
    if (element == m_table)
        return readTable(reader, input);
    if (element == m_constant)
        return readConstant(reader, element, input);
    if (element == m_tableName) {
        input.setTableName(nXmlValues::readText(reader));
        return !reader.hasError();
    }
    int mode = 0;
    if (!nXmlValues::read(reader, mode))
        return false;
    input.setMode(coPredefTableOrConstant::tableInputMode(nHeatTreatment::e_Mode(mode)));
    return true;
}

void TableInputXml::writeTable(QXmlStreamWriter& writer, const QString& element, const coTableInput& input)
{
    if (!input.hasDataTable())
        return;
    writer.writeStartElement(element);
    input.dataTable()->writeXML(writer);
    writer.writeEndElement();
}

bool TableInputXml::readTable(QXmlStreamReader& reader, coTableInput& input)
{
    kdDataTable table;
    if (!table.readXML(reader))
        return false;
    reader.skipCurrentElement(); // the table's end is passed, that of the element around it is not
    input.setDataTable(std::move(table));
    return !reader.hasError();
}

bool TableInputXml::readConstant(QXmlStreamReader& reader, const QString& element, coTableInput& input)
{
    kdUnitValue constant;
    if (!constant.readXML(reader, element))
        return false;
    input.setConstant(constant);
    return true;
}
