#include "kdqtest.h"

#include <kdQCore/coProductInformation>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>

using Type = coProductType;
using Information = coProductInformation;

namespace {

struct Row {
    const Type& (*product)();
    bool (Type::*is)() const;
};

// By number.
const Row rows[] = {{Type::unknown, &Type::isUnknown},
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
                    {Type::remote, &Type::isRemote}};

} // namespace

class TestCoProductType : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyProduct()
    {
        int number = 0;
        for (const Row& row : rows) {
            const Type& product = row.product();
            QCOMPARE(product.toVariant(), QVariant(number++));
            for (const Row& other : rows) {
                QCOMPARE((product.*other.is)(), &other == &row);
                QCOMPARE(product == other.product(), &other == &row);
            }
        }
    }

    void storedIds()
    {
        const QVector<QPair<QVariant, int>> ids{
            {1, 1},          {11, 11}, {QStringLiteral("9"), 9},
            {QVariant(), 0}, {12, 0},  {qint64(4294967305), 0}, // 9 in its lower half
            {9.4, 0}};
        for (const auto& id : ids) {
            QCOMPARE(Type::isStoredId(id.first), id.second > 0);
            if (id.second > 0)
                QCOMPARE(Type::fromVariant(id.first).toVariant().toInt(), id.second);
        }
    }

    // The thread cannot be ended, so it must not own anything of the test.
    void unknownIdNeverReturns()
    {
        const auto returned = std::make_shared<std::promise<void>>();
        std::future<void> future = returned->get_future();
        std::thread([returned] {
            Type::fromVariant(QVariant(0));
            returned->set_value();
        }).detach();
        QCOMPARE(future.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout);
    }

    void readersSeeWholeRegistrations()
    {
        QVERIFY(!Information::isRegistered());
        Information::registerProduct(Type::jes(), {4, 4, 4, 4});
        std::atomic<int> halves{0};
        kdqInThreads(2, [&halves](int thread) {
            const auto next = thread ? Information::Product{Type::mesh(), {7, 7, 7, 7}}
                                     : Information::Product{Type::jes(), {4, 4, 4, 4}};
            for (int i = 0; i < 10000; ++i) {
                Information::registerProduct(next.type, next.version);
                const Information::Product product = Information::product();
                const int id = product.type.toVariant().toInt();
                halves += product.version != coVersionNumber(id, id, id, id);
            }
        });
        QCOMPARE(halves.load(), 0);
        Information::unregisterProduct();
        QVERIFY(Information::productType().isUnknown());
    }
};

KDQ_TEST_MAIN(TestCoProductType)
#include "tst_coproducttype.moc"
