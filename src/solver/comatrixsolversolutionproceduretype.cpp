#include "comatrixsolversolutionproceduretype.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

QString valueAttributeName()
{
    return QStringLiteral("value");
}

QString readIdText(QXmlStreamReader& reader, const QString& element)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    if (element != coMatrixSolverSolutionProcedureType::xmlElementName()
        || !attributes.hasAttribute(valueAttributeName()))
        return reader.readElementText();
    reader.skipCurrentElement();
    return attributes.value(valueAttributeName()).toString();
}

} // namespace

QString coMatrixSolverSolutionProcedureType::viewName() const
{
    return isSolutionProcedureFullK() ? tr("Solution procedure FullK") : tr("Solution procedure DI");
}

QVariant coMatrixSolverSolutionProcedureType::toVariant() const
{
    return typeToId();
}

coMatrixSolverSolutionProcedureType coMatrixSolverSolutionProcedureType::fromVariant(const QVariant& variant)
{
    return typeFromId(variant.toInt());
}

QString coMatrixSolverSolutionProcedureType::xmlElementName()
{
    return QStringLiteral("matrix_solver_solution_procedure_type");
}

void coMatrixSolverSolutionProcedureType::writeXML(QXmlStreamWriter& writer) const
{
    writer.writeStartElement(xmlElementName());
    writer.writeAttribute(valueAttributeName(), QString::number(typeToId()));
    writer.writeEndElement();
}

bool coMatrixSolverSolutionProcedureType::readXML(QXmlStreamReader& reader)
{
    const QString element = reader.isStartElement() ? reader.name().toString() : xmlElementName();
    bool isInteger = false;
    const int id = readIdText(reader, element).toInt(&isInteger);
    if (!isInteger || reader.hasError()) {
        reader.raiseError(tr("Failed to read the value of the XML element: %1").arg(element));
        return false;
    }
    m_type = typeFromId(id);
    return true;
}
