#include "kdqtest.h"
#include "logcapture.h"
#include "writtencard.h"

#include <kdQCore/cFeAutoLoadCard>
#include <kdQCore/cFePointCurrentCard>
#include <kdQCore/coDeckReader>
#include <kdQCore/coFeAutoforgeCard>
#include <kdQCore/coFeDataTableCard>
#include <kdQCore/coFeParameterSectionTable>
#include <kdQCore/coFeSolverCard>
#include <kdQCore/coFeTableCardUsingFormula>
#include <kdQCore/cPointLoadCard>

#include <QBuffer>

#include <cmath>
#include <cstring>
#include <memory>
#include <random>

using Card = std::unique_ptr<cFeAbstractDatCard>;
Q_DECLARE_METATYPE(Layout)

namespace {

/// Cards with random contents, every number within its field.
class RandomCards {
public:
    explicit RandomCards(unsigned seed) : m_random(seed) { }

    Card next()
    {
        using Make = Card (RandomCards::*)();
        constexpr Make makes[] = {&RandomCards::section, &RandomCards::process,     &RandomCards::autoLoad,
                                  &RandomCards::solver,  &RandomCards::pointLoad,   &RandomCards::table,
                                  &RandomCards::formula, &RandomCards::pointCurrent};
        return (this->*makes[below(8)])();
    }

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    bool coin() { return below(2) == 0; }
    int number() { return below(10999) - 999; }

    /// Any finite double, now and then a short one.
    double real()
    {
        if (coin())
            return number() / 10.0;
        double value = 0.0;
        do {
            const quint64 bits = std::uniform_int_distribution<quint64>()(m_random);
            std::memcpy(&value, &bits, sizeof value);
        } while (!std::isfinite(value));
        return value;
    }

    QString text(int longest)
    {
        const QString characters = QString::fromUtf8("abc XYZ_09-,.'$äöß%1€");
        QString result(1 + below(longest), QLatin1Char(longest < 100 && coin() ? ',' : 'n'));
        for (int i = 1; i < result.size(); ++i)
            result[i] = characters.at(below(characters.size()));
        return result;
    }

private:
    Values ascending(int count)
    {
        Values result;
        double value = number() / 100.0;
        for (int i = 0; i < count; ++i)
            result.append(value += (1 + below(100)) / 10.0);
        return result;
    }

    Values reals(int count)
    {
        Values result;
        for (int i = 0; i < count; ++i)
            result.append(real());
        return result;
    }

    nMarc::e_TableVariableType anyType() { return type(1 + below(99)); }

    Card section() { return std::make_unique<coFeParameterSectionTable>(); }

    Card process()
    {
        auto card = std::make_unique<coFeAutoforgeCard>();
        card->setIs3d(coin());
        card->setMaterialModel(number());
        card->setOptionalLicenseFeatures(nMarc::LicFlags(QFlag(below(4096))));
        card->setSuppressHeatGeneration(coin());
        card->setRemoveRigidModesFlag(static_cast<coFeAutoforgeCard::e_RigidModesFlag>(number()));
        card->setSkipHeatTransferConvergenceCheck(coin());
        card->setContactTolFlag(static_cast<nMarc::e_AutoForgeContactToleranceFlag>(number()));
        return card;
    }

    Card autoLoad()
    {
        auto card = std::make_unique<cFeAutoLoadCard>();
        card->setTimeSteps(coin() ? 0 : number());
        card->setMaxForcedRemeshingNo(number());
        card->setTotalTime(real());
        card->setTotalTravelDist(real());
        return card;
    }

    Card solver()
    {
        auto card = std::make_unique<coFeSolverCard>(static_cast<nSolver::e_SolverType>(below(9)));
        card->enableUsingUpperCaseKeywords(coin());
        card->setIsNonSymmetricSystem(coin());
        card->setIsSolutionProcedureFullK(coin());
        card->setIsConditionalNumericalReproducibilityEnabled(coin());
        card->setAutoforgeField10Value(below(5) - 1);
        card->setMaxIterations(number());
        card->setTolerance(real());
        return card;
    }

    Card pointLoad()
    {
        auto card = std::make_unique<cPointLoadCard>();
        card->setIs3DProcess(coin());
        card->setForceX(real());
        card->setForceY(real());
        card->setForceZ(real());
        card->setComponentBodyId(below(1000));
        card->setListOfNodesName(text(30));
        if (coin())
            card->setComponentName(text(200));
        if (coin())
            card->setCommentText(text(500));
        return card;
    }

    Card pointCurrent()
    {
        auto card = std::make_unique<cFePointCurrentCard>();
        card->setLabel(text(20));
        card->setCurrent(kdUnitValue(real(), kdUnitSystem(kdUnitSystem::ElectricCurrent)));
        card->setTableId(below(100));
        card->setControlNode(text(20));
        return card;
    }

    Card formula()
    {
        auto card = std::make_unique<coFeTableCardUsingFormula>(
            text(20), number(), coFeTableCardBase::IndependentVarBase(anyType()));
        if (coin())
            card->setIndependentVariable2(coFeTableCardBase::IndependentVarBase(anyType()));
        card->setFormula(text(300));
        return card;
    }

    Card table()
    {
        const Values x = ascending(1 + below(40));
        auto card = std::make_unique<coFeDataTableCard>(text(20), number(), Variable(anyType(), coin(), x));
        card->setOwnValues(reals(x.size()));
        if (coin())
            return card;
        const Values x2 = ascending(1 + below(20));
        card->coFeTableCard::setIndependentVariable2(Variable(anyType(), coin(), x2));
        card->setOwnValues(reals(x.size() * x2.size()));
        if (coin())
            card->setDefaultReadMethodForMoreThan1IndependentVar(nMarc::ReadGridValueByValue);
        return card;
    }

    std::mt19937 m_random;
};

/// The deck's first option.
coDeckOption read(QByteArray deck, const Layout& layout)
{
    QBuffer device(&deck);
    device.open(QIODevice::ReadOnly);
    coDeckReader reader(device, layout.mode);
    coDeckOption option;
    reader.next(option);
    return option;
}

} // namespace

class TestDeckRoundTrip : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cards_data()
    {
        QTest::addColumn<Layout>("layout");
        kdqRow("fixed standard", fixedStandard);
        kdqRow("fixed extended", fixedExtended);
        kdqRow("free standard", freeStandard);
        kdqRow("free extended", freeExtended);
    }

    void cards()
    {
        QFETCH(Layout, layout);
        constexpr unsigned seed = 20261;
        RandomCards random(seed);
        LogCapture log; // of values that are not plausible
        for (int i = 0; i < 2000; ++i) {
            const Card card = random.next();
            const Written written = write(*card, layout);
            QVERIFY(written.result);
            const QByteArray what =
                "seed " + QByteArray::number(seed) + ", card " + QByteArray::number(i) + '\n' + written.deck;
            const coDeckOption option = read(written.deck, layout);
            QVERIFY2(option.card, what.constData());
            const Written again = write(*option.card, layout);
            QVERIFY2(again.deck == written.deck, (what + "becomes\n" + again.deck).constData());
            QCOMPARE(option.size, qint64(written.deck.size()));

            // The solver reads 0 there, too, but the card would write it.
            const QByteArray zero = layout.format == datFormat::free ? ",0," : "    0";
            const QByteArray blank = layout.format == datFormat::free ? ",," : "     ";
            QByteArray blanked = written.deck;
            if (blanked.contains(zero))
                blanked.replace(blanked.indexOf(zero), zero.size(), blank);
            const coDeckOption other = read(blanked, layout);
            QVERIFY2(!other.card || write(*other.card, layout).deck == blanked, blanked.constData());
        }
    }

    /// What cards make of a deck that is known to the letter.
    void literalDeck()
    {
        const QByteArray load = "point load\n1,0,0,\n1,0,0,0,0,0,ptld_0_punch top\n";
        const QByteArray deck = "table,0,0,2,1,1,0,0,1,\n"
                                "autoforge,2,3,2,9,0,21,1,4,5,15,1,6,\n"
                                "auto load\n100,0,10,3,4,2.50000E+0,1.25000E-1,\n"
                                "table,flow\n4,2,0,0,1,\n5,3,1,12,2,2,\n"
                                "0.00000E+0,1.00000E-1,2.00000E-1,\n2.00000E+1,4.00000E+2,\n"
                                "1.00000E+0 c\n2.00000E+0 c\n3.00000E+0 c\n"
                                "4.00000E+0 c\n5.00000E+0 c\n6.00000E+0,\n"
                                "$ Point load for component 'Punch %1'.\n$ from above\n"
            + load
            + "1.50000E+0,-2.5000E+0,1.23456E+3,\n0,0,0,\n2,\npunch top\n"
              "$ Point load for component 'a'.\n$ Point load for component 'b'.\n"
            + load
            + "1.23456E+3,1.50000E+0,\n0,0,\n2,\npunch top\n"
              "point current\n0,0,\n1,0,0,0,0,0,weld,\n1.25000E+4,0.00000E+0,0.00000E+0,\n"
              "7,0,0,\n2,\nnode_1,\n";
        QBuffer device;
        device.setData(deck);
        QVERIFY(device.open(QIODevice::ReadOnly));
        coDeckReader reader(device, freeStandard.mode);
        coDeckOption option;
        QByteArray written;
        while (reader.next(option)) {
            QVERIFY2(option.card, qPrintable(option.text()));
            written += write(*option.card, freeStandard).deck;
            const Written dryRun = write(*option.card, freeStandard, false);
            QVERIFY(dryRun.result && dryRun.deck.isEmpty());
        }
        QCOMPARE(written, deck);
        QVERIFY(!read("table,t\n1,1,0,0,2,\n1,1,2,\n1.00000E+0,,\n", freeStandard).card);
    }

    /// Options follow each other without a gap and without taking each other's lines.
    void decks_data() { cards_data(); }

    void decks()
    {
        QFETCH(Layout, layout);
        RandomCards random(4);
        LogCapture log;
        DeckBuffer buffer(layout.mode, layout.format);
        QVector<QByteArray> expected;
        const auto add = [&](auto write) {
            const int before = buffer.bytes().size();
            write(buffer.writer());
            expected.append(buffer.bytes().mid(before));
        };
        for (int i = 0; i < 300; ++i) {
            add([&](CFEDatLineWriter& writer) { writer.writeTitle(random.text(20)); });
            add([&](CFEDatLineWriter& writer) {
                writer.writeKeywordLine("coordinates");
                writer.writeList(QList<int>{1, 2, 3, 4, 5}, 2);
                writer.writeCommentLine("between the lines");
                writer.writeDoubleValues({random.real(), random.real()}, 1);
            });
            add([&](CFEDatLineWriter& writer) { writer.writeCard(*random.next()); });
            add([&](CFEDatLineWriter& writer) { writer.writeNodal(random.number()); });
            add([&](CFEDatLineWriter& writer) { writer.writeLoadcase(random.text(20)); });
        }
        QBuffer device;
        device.setData(buffer.bytes());
        QVERIFY(device.open(QIODevice::ReadOnly));
        const coDeckLayout found = coDeckLayout::find(device);
        QCOMPARE(int(found.mode()), int(layout.mode));
        coDeckReader reader(device, found);
        coDeckOption option;
        qint64 end = 0;
        for (const QByteArray& bytes : qAsConst(expected)) {
            QVERIFY(reader.next(option));
            QCOMPARE(option.offset, end);
            end += option.size;
            QCOMPARE(option.kind == coDeckOption::Nodal, bytes.startsWith("nodal"));
            QCOMPARE(buffer.bytes().mid(int(option.offset), int(option.size)), bytes);
        }
        QVERIFY(!reader.next(option));
    }

    void valuesAreThoseThatPrintTheText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("value");
        kdqRow("nearest prints lower", QByteArray("3.000000000000000E-1"), 0.30000000000000004);
        kdqRow("nearest prints the text", QByteArray("1.000000000000000E-1"), 0.1);
        kdqRow("negative", QByteArray("-3.00000000000000E-1"), -0.30000000000000004);
        kdqRow("as people write it", QByteArray("                 0.3"), 0.30000000000000004);
        kdqRow("Fortran", QByteArray("              2.5D+3"), 2500.0);
        kdqRow("no letter", QByteArray("              2.5-30"), 2.5e-30);
        kdqRow("more digits than a deck shows", QByteArray("0.299999999999999999"), 0.3);
        kdqRow("least", QByteArray("4.9406564584124E-324"), 4.9406564584124e-324);
    }

    void valuesAreThoseThatPrintTheText()
    {
        QFETCH(QByteArray, text);
        const coDeckOption option = read(
            "tablet\n         1         1         0         0         2\n         1         1         2\n"
            "1.000000000000000E+0"
                + text.leftJustified(20) + '\n',
            fixedExtended);
        const auto card = option.card.dynamicCast<coFeDataTableCard>();
        QVERIFY(card);
        QTEST(card->values()->constFirst(), "value");
    }
};

KDQ_TEST_MAIN(TestDeckRoundTrip)
#include "tst_deckroundtrip.moc"
