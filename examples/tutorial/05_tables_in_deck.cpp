// Tables in a deck: one of values, one of a formula.
#include <kdQCore/CFEDatLineWriter>
#include <kdQCore/coFeDataTableCard>
#include <kdQCore/coFeParameterSectionTable>
#include <kdQCore/coFeSolverCard>
#include <kdQCore/coFeTableCardUsingFormula>
#include <kdQCore/kdDataTable>

#include <QFile>
#include <QTextStream>

int main()
{
    kdDataTable yieldStress(kdUnitSystem::Temperature, kdUnitSystem::Stress);
    yieldStress.setName("yield_stress");
    yieldStress.addPoint(293.15, 355e6); // K, Pa
    yieldStress.addPoint(673.15, 355e6);
    yieldStress.addPoint(773.15, 276.9e6);

    // What a table depends on is a code of the solver, from its manual; the library passes it through.
    const auto temperature = nMarc::e_TableVariableType(12);

    coFeDataTableCard values(yieldStress.name(), 1, coFeTableCard::IndependentVarUsingValues(temperature));
    if (!values.setTable(yieldStress)) { // converted to SI, as the solver knows no units
        QTextStream(stderr) << values.errorText() << "\n";
        return 1;
    }
    coFeTableCardUsingFormula formula("conductivity", 2, coFeTableCardBase::IndependentVarBase(temperature));
    formula.setFormula("54-0.0333*(v1-273.15)"); // v1 is the first variable

    QFile file("tables.dat");
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    QTextStream stream(&file);
    CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::free);
    writer.setFileHandler(&stream);
    bool ok = writer.writeTitle("Tables of a steel plate");
    ok = writer.writeCard(coFeParameterSectionTable()) && ok; // decks with tables need this key
    ok = writer.writeCard(values) && ok;
    ok = writer.writeCard(formula) && ok;
    ok = writer.writeCard(coFeSolverCard(coMarcSolverType::pardisoParallelDirect())) && ok;
    return writer.flush() && ok ? 0 : 1;
}
