#include "kdqtest.h"

#include <kdQCore/coProductInformation>

#include <atomic>
#include <thread>

class TestCoProductInformation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { coProductInformation::unregisterProduct(); }
    void knowsWhatWasRegistered();
    void readersSeeWholeRegistrations();
};

void TestCoProductInformation::knowsWhatWasRegistered()
{
    QVERIFY(!coProductInformation::isRegistered());
    QVERIFY(coProductInformation::productType().isUnknown());
    QCOMPARE(coProductInformation::versionNumber(), coVersionNumber());

    coProductInformation::registerProduct(coProductType::welding(), {2018, 1, 0, 345});
    QVERIFY(coProductInformation::isRegistered());
    QCOMPARE(coProductInformation::productType(), coProductType::welding());
    QCOMPARE(coProductInformation::versionNumber().toString(), QStringLiteral("2018.1.0.345"));
}

void TestCoProductInformation::readersSeeWholeRegistrations()
{
    coProductInformation::registerProduct(coProductType::jes(), {4, 4, 4, 4});
    std::atomic<bool> stop{false};
    std::thread writer([&stop] {
        while (!stop) {
            coProductInformation::registerProduct(coProductType::mesh(), {7, 7, 7, 7});
            coProductInformation::registerProduct(coProductType::jes(), {4, 4, 4, 4});
        }
    });
    bool allWhole = true;
    for (int i = 0; i < 20000; ++i) {
        const coProductInformation::Product product = coProductInformation::product();
        const int id = product.type.toVariant().toInt();
        allWhole = allWhole && product.version == coVersionNumber(id, id, id, id);
    }
    stop = true;
    writer.join();
    QVERIFY(allWhole);
}

KDQ_TEST_MAIN(TestCoProductInformation)
#include "tst_coproductinformation.moc"
