#include "datmultiply_p.h"
#include "datreal_p.h"
#include "decknumber_p.h"
#include "kdqtest.h"
#include "realcheck.h"

class TestDatReal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hardValues()
    {
        // The first two lie nearest to the thresholds of the rounding.
        QList<double> values = {2.873419488446010e-67, 9.421180134141965e-39, 0.0, 0.3, 99999.95};
        values << 123456789012345678.0 << 4503599627370497.5 << std::numeric_limits<double>::max();
        for (int exponent = -1074; exponent < 1024; ++exponent)
            values.append(std::ldexp(1.0, exponent));
        for (int exponent = -323; exponent < 309; ++exponent)
            for (const double factor : {1.0, 9.0, 9.9999995, 9.99999999999999, 1.5, 1.2345649999999999})
                values.append(RealCheck::finite(factor * std::pow(10.0, exponent)));
        const RealCheck check;
        for (const double value : qAsConst(values))
            for (int steps = -8; steps <= 8; ++steps)
                for (const double sign : {1.0, -1.0}) {
                    const std::string difference =
                        check.difference(sign * RealCheck::neighbour(value, steps));
                    QVERIFY2(difference.empty(), difference.c_str());
                }
    }

    /// In the long run a hundred million values.
    void randomValues()
    {
        constexpr unsigned seed = 20260117;
        const int count = qEnvironmentVariableIsSet("KDQ_LONG_RUN") ? 100000000 : 2000000;
        qInfo("%d values from seed %u", count, seed);
        std::mt19937_64 random(seed);
        const RealCheck check;
        for (int i = 0; i < count; ++i) {
            const std::string difference = check.difference(RealCheck::next(random));
            QVERIFY2(difference.empty(), difference.c_str());
        }
    }

    void allDigitsFirst()
    {
        std::mt19937_64 random(7);
        for (int i = 0; i < 100000; ++i) {
            const double value = RealCheck::next(random);
            for (const bool leadingBlank : {false, true})
                for (const int width : {10, 19, 20}) {
                    char text[nDatReal::bufferSize];
                    QCOMPARE(nDatReal::formatExact(value, width, leadingBlank, text), width);
                    QCOMPARE(std::string(text),
                             RealCheck::cut(RealCheck::printed(value, leadingBlank),
                                            static_cast<std::size_t>(width)));
                }
        }
    }

    void printsReadAsTheNearestDouble()
    {
        std::mt19937_64 random(9);
        for (int i = 0; i < 300000; ++i) {
            const double mantissa = std::ldexp(static_cast<double>(random() >> 11), -52);
            const double value =
                std::ldexp(i % 2 ? mantissa : -mantissa, static_cast<int>(random() % 240) - 120);
            char text[nDatReal::bufferSize];
            const int width = 10 + static_cast<int>(random() % 11);
            nDatReal::format(value, width, false, text);
            double read = 0.0;
            QVERIFY2(nDeckNumber::readReal(text, text + width, read), text);
            QVERIFY2(read == QByteArray(text, width).toDouble(), text);
            text[random() % static_cast<unsigned>(width)] = "x/:,"[random() % 4];
            QVERIFY2(!nDeckNumber::readReal(text, text + width, read), text);
            QVERIFY2(!nDeckNumber::isPlainReal(text, text + width), text);
        }
    }

    void productByHalves()
    {
        constexpr std::uint64_t most = ~std::uint64_t(0);
        QCOMPARE(nDatMultiply::multiplyHalves(most, most).high, most - 1);
        QCOMPARE(nDatMultiply::multiplyHalves(most, most).low, std::uint64_t(1));
        std::mt19937_64 random(8);
        for (int i = 0; i < 100000; ++i) {
            const std::uint64_t a = random() | (i % 3 ? 0 : 0xffffffff00000000u);
            const std::uint64_t b = random() | (i % 5 ? 0 : 0xffffffffu);
            QCOMPARE(nDatMultiply::multiplyHalves(a, b).high, nDatMultiply::multiply(a, b).high);
            QCOMPARE(nDatMultiply::multiplyHalves(a, b).low, a * b);
        }
    }
};

KDQ_TEST_MAIN(TestDatReal)
#include "tst_datreal.moc"
