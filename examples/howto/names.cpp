// Names: valid, unique, and numbered.
#include <kdQCore/coCheckAndCorrectName>
#include <kdQCore/coUniqueNameGenerator>
#include <kdQCore/nCreateObjectName>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    coTakenNames taken({QString("Die"), QString("Die-2")});

    // A user names an object: shown as typed, made safe for decks and files.
    const coDisplayName display("Obere Matrize (heiß)");
    const coInternalName internal =
        nCreateObjectName::createUniqueInternalNameFromDisplayName(display, coInternalName("Die"), taken);
    const coObjectName name(display, internal);
    taken.append(name);
    out << name.displayName() << " = " << name.internalName() << "\n";

    // A copy counts on.
    out << nCreateObjectName::createUniqueDisplayName(coDisplayName("Die-2"), coInternalName("Die"), taken)
        << "\n";

    // What was wrong with a typed name.
    QStringList remarks;
    const QString corrected = coCheckAndCorrectName::checkAndCorrectName(
        "die", taken, coCheckAndCorrectName::eInternalName, &remarks);
    out << corrected << ": " << remarks.join(" ") << "\n";

    // Thousands of names.
    coUniqueNameGenerator particles;
    particles.reserve(coTakenNames({QString("Particle-2")}));
    for (int i = 0; i < 3; ++i)
        out << particles.next("Particle") << " ";
    out << "\n";
    return 0;
}
