// Numbers with units: what a user typed, converted for the deck and for people.
#include <kdQCore/kdUnitValue>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);

    bool ok = false;
    const kdUnitSystem celsius = kdUnitSystem::fromSymbol("degC", kdUnitSystem::Temperature, &ok);
    if (!ok)
        return 1;
    const kdUnitValue typed(550, celsius);
    out << typed.toString() << " is " << typed.toSIUnit().toString() << "\n";

    const kdUnitValue stress(276.9e6, kdUnitSystem::Stress); // in the SI unit, Pa
    out << stress.toString() << " is " << stress.toViewUnit().toString() << "\n";

    out << "25.4 mm and 1 in are "
        << (kdUnitValue(25.4, kdUnitSystem::fromSymbol("mm"))
                    == kdUnitValue(1, kdUnitSystem::fromSymbol("in"))
                ? "the same\n"
                : "not the same\n");

    kdUnitSystem::fromSymbol("furlong", &ok);
    out << "furlong is " << (ok ? "known\n" : "not known\n");
    return 0;
}
