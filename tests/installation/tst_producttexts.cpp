#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/nCompanyInfo>
#include <kdQCore/nKaldoranAm>
#include <kdQCore/nKaldoranDemos>
#include <kdQCore/nKaldoranJes>
#include <kdQCore/nKaldoranJoining>
#include <kdQCore/nKaldoranMaterial>
#include <kdQCore/nKaldoranWelding>
#include <kdQCore/nProcessInfo>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace am = nKaldoranAm;
namespace demos = nKaldoranDemos;
namespace jes = nKaldoranJes;
namespace joining = nKaldoranJoining;
namespace material = nKaldoranMaterial;
namespace welding = nKaldoranWelding;

class TestProductTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        if (kdCommandDispatcher::created())
            kdCommandDispatcher::removeInstance();
        QLocale::setDefault(QLocale::system());
    }

    void literalTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // a regular expression
        int number = 0;
        const auto row = [&number](const QString& text, const char* expected) {
            QTest::addRow("%d %s", ++number, expected) << text << QString::fromUtf8(expected);
        };
        row(am::versionDependentIniFileName(false), "kaldoran\\.additive_2018");
        row(am::versionDependentIniFileName(true), "kaldoran\\.additive_2018\\.1");
        row(am::exeFileName(true), "Kaldoran Additive\\.exe");
        row(joining::productNameFullVersionAndSuffix(), "Kaldoran Joining Optimizer 2018\\.1 \\(dev\\)");
        row(joining::settingsFolderName(), "kaldoran\\.joining_2018\\.1");
        row(joining::settingsFileNameResultThresholdsSpr(QString()), "resultThresholdsSpr");
        row(joining::settingsFileNameResultThresholdsCli(S("%1")), "resultThresholdsCli_%1");
        row(joining::fileComment(S("Rivets %2")),
            "Rivets %2 - written by Kaldoran Simulation Systems GmbH Kaldoran Joining Optimizer 2018\\.1 "
            "\\(rev\\. \\d+, \\S+\\) \\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d");
        row(material::productNameAndVersion(), "Kaldoran Material 2018");
        row(material::exeFileName(true), "kaldoran\\.material\\.exe");
        row(material::nFilterArgs::mkFilterArg(S("Area"), S("%2")), "Area:%2");
        row(demos::standardNameFilter().join(QLatin1Char('|')), "\\*\\.xml\\|\\*\\.kddemos");
        row(jes::projectFileSelectionFilter(), "jes files \\(\\*\\.jes\\)");
        row(welding::fullVersion(false), "2018");
        row(welding::fullRevisionOSVersionDate(),
            "2018\\.1\\.\\d+\\.[a-z]+(32|64) [A-Z][a-z]{2} \\d\\d \\d{4}");
        row(welding::productNameAndFullRevisionOSVersionTime(),
            "Kaldoran Welding 2018\\.1\\.\\d+\\.[a-z]+(32|64) - \\d\\d:\\d\\d:\\d\\d");
        using nKaldoranProducts::e_Product;
        row(nProcessInfo::productName(static_cast<e_Product>(1)), "Kaldoran Forming");
        row(nProcessInfo::productName(static_cast<e_Product>(5)), "Kaldoran Material");
        row(nProcessInfo::productVersion(static_cast<e_Product>(4)), "Undefined");
        row(nProcessInfo::productVersion(static_cast<e_Product>(-77)), "Undefined");
        row(nCompanyInfo::companyContactHomepageLink(S("A & <b> %1")),
            "<a href=\"https://[^\"]*\">A &amp; &lt;b&gt; %1</a>");
        // A name with a place marker in it must come through as it is.
        const QString folder = S("f");
        row(jes::createProjectFilePath(folder, S("%1")), "f[/\\\\]%1[/\\\\]%1\\.jes");
        row(jes::createProjectFolderPath(folder, S("p")), "f[/\\\\]p");
    }

    void literalTexts()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const QRegularExpression form(QRegularExpression::anchoredPattern(expected));
        QVERIFY2(form.match(text).hasMatch(), qPrintable(text));
    }

    void pagesAndDocumentsFollowTheLanguage_data()
    {
        QTest::addColumn<int>("locale");
        QTest::addColumn<int>("commandLanguage"); // -1: no dispatcher
        QTest::addColumn<QString>("code");
        QTest::newRow("German") << int(QLocale::German) << -1 << "de";
        QTest::newRow("French") << int(QLocale::French) << -1 << "en";
        QTest::newRow("dispatcher") << int(QLocale::German) << int(kdQLanguage::English) << "en";
    }

    void pagesAndDocumentsFollowTheLanguage()
    {
        QFETCH(int, locale);
        QFETCH(int, commandLanguage);
        QFETCH(QString, code);
        QLocale::setDefault(QLocale(static_cast<QLocale::Language>(locale)));
        if (commandLanguage >= 0) {
            kdCommandDispatcher::createInstance();
            QVERIFY(
                kdCommandDispatcher::I().setLanguage(static_cast<kdQLanguage::KDLANGUAGE>(commandLanguage)));
        }
        const QString page = nCompanyInfo::companyContactHomepage();
        QVERIFY2(page.endsWith(QLatin1Char('/') + code), qPrintable(page));
        QVERIFY(page.contains(nCompanyInfo::organisationDomainName()));
        QCOMPARE(material::tutorialFilePath(),
                 material::documentsFolder() + QDir::separator() + S("Kaldoran_Material_Tutorial_") + code
                     + S(".pdf"));
    }

    // Runs this very function once more as an application in "<root>/welding/bin".
    void startsMaterialApplicationOfItsInstallation()
    {
#ifdef Q_OS_WIN
        QSKIP("The stand-in for the material application is a shell script.");
#endif
        const QStringList arguments{material::openFileFlag(), S("a b.xmt")};
        if (QCoreApplication::applicationDirPath().endsWith(S("/welding/bin"))) {
            LogCapture log;
            QVERIFY(material::execute(arguments));
            QVERIFY(log.contains(kdLog::Trace, kdLog::General,
                                 S("Open Kaldoran Material, path: ") + material::executableFilePath()));
            return;
        }

        QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(S("welding/bin")));
        const QString welding = root.filePath(S("welding/bin/welding"));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), welding));
        const QString script = root.filePath(S("material/bin/kaldoran.material"));
        QVERIFY(
            kdqWrite(script, "#!/bin/sh\nprintf '%s|' \"$@\" >\"$0.new\" && mv \"$0.new\" \"$0.started\"\n"));
        QVERIFY(QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

        QCOMPARE(QProcess::execute(welding, {QString::fromLatin1(QTest::currentTestFunction())}), 0);
        const QString started = script + S(".started");
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(started), 30000);
        QCOMPARE(QString::fromUtf8(kdqContentOf(started)),
                 arguments.join(QLatin1Char('|')) + QLatin1Char('|'));
    }
};

KDQ_TEST_MAIN(TestProductTexts)
#include "tst_producttexts.moc"
