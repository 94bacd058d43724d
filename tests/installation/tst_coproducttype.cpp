#include "kdqtest.h"

#include <kdQCore/coProductType>

#include <chrono>
#include <future>
#include <memory>
#include <thread>

using Type = coProductType;

namespace {

struct Row {
    const Type& (*product)();
    bool (Type::*is)() const;
};

// By number.
const Row rows[] = {
    {Type::unknown, &Type::isUnknown},
    {Type::additive, &Type::isAdditive},
    {Type::demosAndExamples, &Type::isDemosAndExamples},
    {Type::forming, &Type::isForming},
    {Type::jes, &Type::isJes},
    {Type::joining, &Type::isJoining},
    {Type::material, &Type::isMaterial},
    {Type::mesh, &Type::isMesh},
    {Type::service, &Type::isService},
    {Type::welding, &Type::isWelding},
    {Type::monitor, &Type::isMonitor},
    {Type::remote, &Type::isRemote},
};

} // namespace

class TestCoProductType : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyProduct();
    void storedIds_data();
    void storedIds();
    void unknownIdNeverReturns();
};

void TestCoProductType::everyProduct()
{
    int number = 0;
    for (const Row& row : rows) {
        const Type& product = row.product();
        QCOMPARE(&product, &row.product());
        QCOMPARE(product.toVariant(), QVariant(number));
        for (const Row& other : rows) {
            QCOMPARE((product.*other.is)(), &other == &row);
            QCOMPARE(product == other.product(), &other == &row);
        }
        if (number > 0)
            QCOMPARE(Type::fromVariant(product.toVariant()), product);
        ++number;
    }
    QCOMPARE(Type::welding().viewName(), QStringLiteral("Kaldoran Welding"));
}

void TestCoProductType::storedIds_data()
{
    QTest::addColumn<QVariant>("id");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("nothing") << QVariant() << false;
    QTest::newRow("first") << QVariant(1) << true;
    QTest::newRow("last") << QVariant(11) << true;
    QTest::newRow("beyond") << QVariant(12) << false;
    QTest::newRow("text") << QVariant(QStringLiteral("9")) << true;
    QTest::newRow("beyond int") << QVariant(qint64(4294967305)) << false;
    QTest::newRow("fraction") << QVariant(9.4) << false;
}

void TestCoProductType::storedIds()
{
    QFETCH(QVariant, id);
    QFETCH(bool, isStored);
    QCOMPARE(Type::isStoredId(id), isStored);
    if (isStored)
        QCOMPARE(Type::fromVariant(id).toVariant().toInt(), id.toInt());
}

// The thread cannot be ended, so it must not own anything of the test.
void TestCoProductType::unknownIdNeverReturns()
{
    const auto returned = std::make_shared<std::promise<void>>();
    std::future<void> future = returned->get_future();
    std::thread([returned] {
        Type::fromVariant(QVariant(0));
        returned->set_value();
    }).detach();
    QCOMPARE(future.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout);
}

KDQ_TEST_MAIN(TestCoProductType)
#include "tst_coproducttype.moc"
