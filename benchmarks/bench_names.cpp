// Many unique names out of one base: the generator beside the mere insertion of as many finished texts into a
// hash set.

#include "duel.h"

#include <kdQCore/coUniqueNameGenerator>
#include <kdQCore/nCreateObjectName>

#include <unordered_set>

int main()
{
    constexpr int count = 100000;
    volatile int sink = 0; // keeps the work
    const QString base = QStringLiteral("Particle");
    Duel duel("Unique names out of one base, 100 000 of them", double(count));
    duel.add("std::unordered_set insert", [&sink] {
        std::unordered_set<std::string> names;
        for (int i = 1; i <= count; ++i)
            names.insert("Particle-" + std::to_string(i));
        sink = int(names.size());
    });
    duel.add("coUniqueNameGenerator", [&sink, &base] {
        coUniqueNameGenerator names;
        for (int i = 0; i < count; ++i)
            sink = names.next(base).size();
    });
    duel.add("coUniqueNameGenerator, all those reserved", [&sink, &base] {
        static const QStringList reserved = [] {
            QStringList result;
            for (int i = 1; i <= count; ++i)
                result.append(QStringLiteral("Particle-%1").arg(i));
            return result;
        }();
        coUniqueNameGenerator names;
        names.reserve(reserved);
        for (int i = 0; i < count; ++i)
            sink = names.next(base).size();
    });
    duel.run(9);
    duel.showRate("coUniqueNameGenerator", "names");
    const bool held = duel.demand("coUniqueNameGenerator", "std::unordered_set insert", 0.1);

    Duel growing("One more name among those that are taken, per taken name", 1e6);
    for (int taken : {1000, 10000, 100000}) {
        QStringList names{base};
        for (int i = 2; i <= taken; ++i)
            names.append(QStringLiteral("Particle-%1").arg(i));
        growing.add("ensureUniqueCounter, " + std::to_string(taken) + " taken", [names, base, &sink, taken] {
            const coTakenNames all(names);
            for (int i = 0; i < 1000000 / taken; ++i)
                sink = nCreateObjectName::ensureUniqueCounter(base, all, true).size();
        });
    }
    growing.run(5);
    return held ? 0 : 1;
}
