// A deck of somebody else: one option changed, and what that changed.
#include <kdQCore/coDeckCompare>
#include <kdQCore/coDeckPatch>
#include <kdQCore/coFeSolverCard>

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

QTextStream out(stdout);

bool fail(const QString& reason)
{
    out << reason << "\n";
    return false;
}

/// Replaces the solver option and leaves every other byte as it was.
bool chooseSolver(const QString& deck, const coMarcSolverType& solver)
{
    coDeckPatch patch(deck);
    if (!patch.read())
        return fail(patch.errorText());
    const int option = patch.find("solver");
    if (option < 0)
        return fail(deck + " has no solver option");
    patch.replace(option, patch.bytesOf(coFeSolverCard(solver), option)); // in the deck's own layout
    return patch.apply(coDeckPatch::KeepOld) || fail(patch.errorText());
}

bool showDifferences(const QString& first, const QString& second)
{
    QFile a(first);
    QFile b(second);
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly))
        return fail("The decks cannot be read");
    coDeckCompare compare(1e-6); // relative
    if (!compare.run(a, coDeckLayout::find(a), b, coDeckLayout::find(b)))
        out << compare.report() << "\n";
    return compare.errorText().isEmpty();
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const bool ok = chooseSolver("job.dat", coMarcSolverType::mumpsParallelDirect())
        && showDifferences("job.dat.bak", "job.dat");
    return ok ? 0 : 1;
}
