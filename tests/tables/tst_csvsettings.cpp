#include "kdqtest.h"

#include <kdQCore/coCSVBase>
#include <kdQCore/coCSVSettings>

#include <QSettings>
#include <QTemporaryDir>

/// The user's separators: their numbers, their storage, and what comes of settings that hold nonsense.
class TestCsvSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stored_data()
    {
        QTest::addColumn<QVariantMap>("values"); // below "CSVExport/"
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("separator");
        QTest::addColumn<QString>("number"); // 1234.5 by the settings' locale

        const QString type = S("FieldSeparatorType");
        const QString separator = S("FieldSeparator");
        const QString decimal = S("DecimalSeparator");
        QTest::newRow("nothing") << QVariantMap() << 0 << S(";") << S("1234.5");
        QTest::newRow("texts, as in files")
            << QVariantMap{{type, S("4")}, {decimal, S("1")}} << 4 << S(" ") << S("1234,5");
        QTest::newRow("type before text")
            << QVariantMap{{type, 0}, {separator, S("|")}} << 0 << S(";") << S("1234.5");
        QTest::newRow("text alone") << QVariantMap{{separator, S(",")}} << 1 << S(",") << S("1234.5");
        QTest::newRow("custom without text") << QVariantMap{{type, 2}} << 2 << S(";") << S("1234.5");
        QTest::newRow("unknown type") << QVariantMap{{type, 17}} << 17 << S("\t") << S("1234.5");
        QTest::newRow("nonsense") << QVariantMap{{type, S("x")}, {decimal, S("x")}} << 0 << S(";")
                                  << S("1234.5");
    }

    void stored()
    {
        QFETCH(QVariantMap, values);
        QTemporaryDir folder;
        QSettings file(folder.filePath(S("user.ini")), QSettings::IniFormat);
        for (auto i = values.cbegin(); i != values.cend(); ++i)
            file.setValue(S("CSVExport/") + i.key(), i.value());
        const coCSVSettings settings(file);
        QTEST(int(settings.fieldSeparatorType()), "type");
        QTEST(settings.fieldSeparator(), "separator");
        QTEST(settings.locale().toString(1234.5), "number");

        coCSVBase form;
        form.initFromSettings(settings);
        QTEST(form.delimiter(), "separator");
        QTEST(form.locale().toString(1234.5), "number");
    }

    void choiceOutlivesTheObject()
    {
        QTemporaryDir folder;
        QSettings file(folder.filePath(S("user.ini")), QSettings::IniFormat);
        for (const QString& separator : {S("\t"), S("; "), S(","), S("\"")}) {
            {
                coCSVSettings settings(&file);
                settings.setFieldSeparatorType(nCSV::CustomSeparator);
                settings.setFieldSeparator(separator);
                settings.setDecimalSeprator(nCSV::DecimalComma);
            }
            const coCSVSettings reread(file);
            QCOMPARE(reread.fieldSeparator(), separator);
            QCOMPARE(reread.decimalSeparator(), nCSV::DecimalComma);
        }
    }

    void applicationSettingsAreTaken()
    {
        QCoreApplication::setOrganizationName(S("kdqcore-test-%1").arg(QCoreApplication::applicationPid()));
        coCSVSettings().setFieldSeparatorType(nCSV::Comma);
        coCSVBase form;
        QCOMPARE(form.delimiter(), S(";"));
        form.initFromSettings();
        QCOMPARE(form.delimiter(), S(","));
        QSettings().clear();
    }

    void unitChoices()
    {
        coCSVBase form;
        form.setUnitIndices({{kdUnitSystem::Length, 1},
                             {kdUnitSystem::Time, 99},
                             {static_cast<kdUnitSystem::Dimension>(1000), 0}});
        QCOMPARE(form.unitIndices(), (coCSVBase::UnitIndices{{kdUnitSystem::Length, 1}}));
        QCOMPARE(form.unitIndices(kdUnitSystem::Time), int(kdUnitSystem::NoUnit));
        form.setUnitIndex(kdUnitSystem::Length, kdUnitSystem::NoUnit);
        QVERIFY(form.unitIndices().isEmpty());
    }
};

KDQ_TEST_MAIN(TestCsvSettings)
#include "tst_csvsettings.moc"
