// The first program: a yield stress over temperature becomes a table of a solver deck.
#include <kdQCore/CFEDatLineWriter>
#include <kdQCore/coFeDataTableCard>
#include <kdQCore/coFeParameterSectionTable>
#include <kdQCore/kdDataTable>

#include <QFile>
#include <QTextStream>

#include <iostream>

int main(int argc, char** argv)
{
    kdDataTable yieldStress(kdUnitSystem::Temperature, kdUnitSystem::Stress);
    yieldStress.setName(QStringLiteral("yield_stress"));
    yieldStress.addPoint(293.15, 355e6); // K, Pa
    yieldStress.addPoint(773.15, 276.9e6);
    yieldStress.addPoint(1473.15, 0.0);
    std::cout << "at 600 K: " << yieldStress.getInterpolDoubleValue(1, 600.0) << " Pa\n";

    const auto temperature = nMarc::e_TableVariableType(12); // the solver's code of the independent variable
    coFeDataTableCard card(yieldStress.name(), 1, coFeTableCard::IndependentVarUsingValues(temperature));
    if (!card.setTable(yieldStress)) {
        std::cerr << qPrintable(card.errorText()) << '\n';
        return 1;
    }

    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : "first.dat"));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    QTextStream stream(&file);
    CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::fixed);
    writer.setFileHandler(&stream);
    bool ok = writer.writeTitle(QStringLiteral("steel plate"));
    ok = writer.writeCard(coFeParameterSectionTable()) && ok;
    ok = writer.writeCard(card) && ok;
    return writer.flush() && ok ? 0 : 1;
}
