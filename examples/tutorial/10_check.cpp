// A deck read back: what is in it, and what a solver would stumble over.
#include <kdQCore/coDeckCheck>
#include <kdQCore/coDeckReader>
#include <kdQCore/coFeDataTableCard>
#include <kdQCore/kdDataTable>

#include <QFile>
#include <QTextStream>

int main(int argc, char** argv)
{
    QTextStream out(stdout);
    QFile file(argc > 1 ? argv[1] : "tables.dat");
    if (!file.open(QIODevice::ReadOnly)) {
        out << file.fileName() << ": " << file.errorString() << "\n";
        return 1;
    }
    const coDeckLayout layout = coDeckLayout::find(file);
    out << file.fileName() << " has " << layout.text() << "\n";

    coDeckReader reader(file, layout);
    coDeckOption option;
    while (reader.next(option)) {
        out << "line " << option.firstLine << ": " << option.text() << "\n";
        if (const auto card = option.card.dynamicCast<coFeDataTableCard>())
            out << "    at 700: " << card->toTable().getInterpolDoubleValue(1, 700) << "\n";
    }

    file.seek(0);
    coDeckCheck check(layout);
    const bool good = check.run(file);
    for (const coDeckFinding& finding : check.findings())
        out << finding.toString() << "\n";
    out << "errors: " << check.errors() << ", warnings: " << check.warnings() << "\n";
    return good ? 0 : 1;
}
