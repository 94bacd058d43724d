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
    const char* name;
};

// By number.
const Row rows[] = {
    {Type::unknown, &Type::isUnknown, "Kaldoran"},
    {Type::additive, &Type::isAdditive, "Kaldoran Additive"},
    {Type::demosAndExamples, &Type::isDemosAndExamples, "Kaldoran Demos"},
    {Type::forming, &Type::isForming, "Kaldoran Forming"},
    {Type::jes, &Type::isJes, "Kaldoran Job Editor"},
    {Type::joining, &Type::isJoining, "Kaldoran Joining Optimizer"},
    {Type::material, &Type::isMaterial, "Kaldoran Material"},
    {Type::mesh, &Type::isMesh, "Kaldoran Mesh"},
    {Type::service, &Type::isService, "Kaldoran Service"},
    {Type::welding, &Type::isWelding, "Kaldoran Welding"},
    {Type::monitor, &Type::isMonitor, "Kaldoran Monitor"},
    {Type::remote, &Type::isRemote, "Kaldoran Remote"},
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
        QCOMPARE(product.viewName(), QString::fromLatin1(row.name));
        for (const Row& other : rows) {
            QCOMPARE((product.*other.is)(), &other == &row);
            QCOMPARE(product == other.product(), &other == &row);
            QCOMPARE(product != other.product(), &other != &row);
        }
        if (number > 0)
            QCOMPARE(Type::fromVariant(product.toVariant()), product);
        ++number;
    }
    QCOMPARE(sizeof(Type), std::size_t(1));
}

void TestCoProductType::storedIds_data()
{
    QTest::addColumn<QVariant>("id");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("nothing") << QVariant() << false;
    QTest::newRow("unknown") << QVariant(0) << false;
    QTest::newRow("first") << QVariant(1) << true;
    QTest::newRow("last") << QVariant(11) << true;
    QTest::newRow("beyond") << QVariant(12) << false;
    QTest::newRow("negative") << QVariant(-9) << false;
    QTest::newRow("text") << QVariant(QStringLiteral("9")) << true;
    QTest::newRow("no number") << QVariant(QStringLiteral("welding")) << false;
    QTest::newRow("empty text") << QVariant(QString()) << false;
    QTest::newRow("beyond int") << QVariant(qint64(4294967305)) << false;
    QTest::newRow("fraction") << QVariant(9.4) << false;
    QTest::newRow("fraction text") << QVariant(QStringLiteral("9.0")) << false;
    QTest::newRow("not a number") << QVariant(qQNaN()) << false;
    QTest::newRow("list") << QVariant(QVariantList{9}) << false;
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
