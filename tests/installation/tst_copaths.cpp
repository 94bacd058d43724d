#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coPaths>
#include <kdQCore/coProductInformation>

#include <QProcess>
#include <QTemporaryDir>

namespace {

QString native(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

const QString executableEnd = kdqOnWindows ? S(".exe") : QString();

} // namespace

class TestCoPaths : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString& name) const { return m_folder->filePath(name); }
    bool makeFolders(const QStringList& names) const
    {
        return std::all_of(names.begin(), names.end(),
                           [this](const QString& name) { return QDir(path(QString())).mkpath(name); });
    }
    /// A path of the library, relative to the test's installation.
    QString relative(const QString& nativePath) const
    {
        const QString root = native(path(S("root"))) + QDir::separator();
        return nativePath.startsWith(root) ? QDir::fromNativeSeparators(nativePath.mid(root.size()))
                                           : S("not below the root: ") + nativePath;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_folder->setAutoRemove(false);
        QVERIFY(makeFolders({S("root"), S("settings")}));
        qputenv("KALDORAN_BASEPATH", QFile::encodeName(path(S("root"))));
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path(S("settings")));
        coPaths::createInstance();
    }

    void cleanup()
    {
        coProductInformation::unregisterProduct();
        coPaths::setDefaultExecutable(QString());
        if (coPaths::created())
            coPaths::removeInstance();
        kdqRemoveFolder(m_folder->path());
    }

    void basePath_data()
    {
        QTest::addColumn<QString>("variable"); // "#" stands for the test's folder
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("stored"); // before; empty for nothing
        QTest::addColumn<bool>("isInside");  // the application lies below a folder "kaldoran"
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("reason"); // end of the log line; empty where there is none
        QTest::addColumn<bool>("isRemembered");

        const QString tree = S("#/a/kaldoran");
        const QString fallback = S("C:/Program Files/kaldoran");
        const QString byVariable = S("the 'KALDORAN_BASEPATH' variable.");
        const QString byOption = S("the '-basePath' option.");
        const QString byPath = S("the application path.");
        const QString option = S("-basePath");
        const auto row = [](const char* name, const QString& variable, const QStringList& arguments,
                            const QString& stored, bool isInside, const QString& base, const QString& reason,
                            bool isRemembered) {
            QTest::newRow(name) << variable << arguments << stored << isInside << base << reason
                                << isRemembered;
        };
        row("variable before all", S("#/var %1"), {option, S("opt")}, S("/old"), true, S("#/var %1"),
            byVariable, true);
        row("relative variable", S("opt/../var %1/."), {}, {}, false, S("#/var %1"), byVariable, true);
        row("variable of a missing folder", S("none"), {S("x"), option, S("opt/")}, {}, true, S("#/opt"),
            byOption, true);
        row("variable of a file", S("file"), {}, {}, true, tree, byPath, true);
        row("option without folder", {}, {option}, {}, true, tree, byPath, true);
        row("option with an empty folder", {}, {option, {}}, {}, true, tree, byPath, true);
        row("only the first option counts", {}, {option, S("none"), option, S("opt")}, {}, true, tree, byPath,
            true);
        row("options in another case", {}, {S("-basepath"), S("opt"), S("-undosetup")}, S("/old"), true, tree,
            byPath, true);
        row("set-up being undone", {}, {S("-undoSetup")}, S("/old"), true, tree, byPath, false);
        row("remembered", {}, {option}, S("/old"), false, S("/old"), {}, false);
        row("nothing known", {}, {}, {}, false, fallback, {}, false);
        row("no application object", S("bare"), {option, S("opt")}, {}, true, fallback, {}, false);
    }

    void basePath()
    {
        QFETCH(QString, variable);
        QFETCH(QStringList, arguments);
        QFETCH(QString, stored);
        QFETCH(bool, isInside);
        QFETCH(QString, base);
        QFETCH(QString, reason);
        QFETCH(bool, isRemembered);
        const QString here = m_folder->path();
        const QString folder = isInside ? S("a/kaldoran/welding/2018.1/bin") : S("b/Kaldoran/bin");
        QVERIFY(makeFolders({S("opt"), S("var %1"), S("a/kaldoran/welding/2019/bin"), folder}));
        QVERIFY(kdqWrite(path(S("file"))));
        const QString name = S("/pathshelper") + executableEnd;
        QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + name, path(folder) + name));
        if (!stored.isEmpty())
            coPaths::I().setValue(S("BasePath"), stored);
        coPaths::removeInstance();

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(S("PATHSHELPER_SETTINGS"), path(S("settings")));
        if (variable == S("bare"))
            environment.insert(S("PATHSHELPER_BARE"), S("1"));
        environment.insert(S("KALDORAN_BASEPATH"), variable.replace(QLatin1Char('#'), here));
        environment.insert(S("PATH"),
                           native(QCoreApplication::applicationDirPath()) + QDir::listSeparator()
                               + environment.value(S("PATH")));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(here);
        process.start(path(folder) + name, arguments);
        QVERIFY(process.waitForFinished(60000));

        base.replace(QLatin1Char('#'), here);
        const QString welding = base == here + S("/a/kaldoran") ? S("/welding/2018.1") : S("/welding");
        if (isRemembered)
            stored = native(base);
        QString expected;
        if (!reason.isEmpty())
            expected = S("log=Kaldoran base path set to: ") + base + S(" using ") + reason + S("\n");
        expected += S("base=") + base + S("\nagain=") + base + S("\nwelding=") + native(base + welding)
            + S("\nstored=") + (stored.isEmpty() ? S("nothing") : stored) + S("\n");
        QCOMPARE(QString::fromUtf8(kdqWithPlainLineEnds(process.readAllStandardOutput())), expected);
    }

    void installationTree()
    {
        QVERIFY(
            makeFolders({S("root/welding/2018.9/scripts"), S("root/welding/2018.10"), S("root/welding/old"),
                         S("root/welding/2018.1.0.0.7"), S("root/additive/scripts")}));
        coPaths& paths = coPaths::I();
        LogCapture log;
        QStringList tree{paths.getVersionRootDir()};
        for (const auto getter :
             {&coPaths::getFormingVersionPath, &coPaths::getWeldingVersionPath,
              &coPaths::getJoiningVersionPath, &coPaths::getAmVersionPath, &coPaths::getkdMeshFilePath,
              &coPaths::getFormingScriptPath, &coPaths::getWeldingScriptPath, &coPaths::getAmScriptPath,
              &coPaths::getWeldingDemosPath, &coPaths::getWeldingExamplePath, &coPaths::getAmDemosPath,
              &coPaths::getAmExamplePath, &coPaths::getAmTemplatePath, &coPaths::getAmTutorialPath,
              &coPaths::getMaterialDocsPath, &coPaths::getMaterialKaldoranLibraryPath})
            tree.append(relative((paths.*getter)()));
        for (const coProductType& product :
             {coProductType::additive(), coProductType::joining(), coProductType::mesh(),
              coProductType::jes(), coProductType::welding(), coProductType::material(),
              coProductType::demosAndExamples()})
            tree.append(relative(paths.getAppPathForProduct(product)));
        QCOMPARE(tree.join(QLatin1Char('\n')),
                 S("\nforming\nwelding/2018.10\njoining\nadditive\ntools/kaldoran.mesh\n"
                   "forming/scripts\nwelding/2018.10/scripts\nadditive/scripts\n"
                   "welding/2018.10/demos\nwelding/2018.10/examples\n"
                   "additive/demos\nadditive/examples\nadditive/templates\nadditive/tutorials\n"
                   "material/doc\nmaterial/data\n"
                   "additive/bin/Kaldoran Additive%1\njoining/bin/kaldoran.joining%1\n"
                   "tools/kaldoran.mesh/bin/kaldoran.mesh%1\ntools/bin/kaldoran.jes%1\n"
                   "welding/2018.10/bin/kaldoran.welding%1\n"
                   "material/bin/kaldoran.material%1\ndemos/bin/kaldoran.demos%1")
                     .arg(executableEnd));
        QCOMPARE(relative(paths.getDemosApplicationFilePath()).prepend(QLatin1Char('/')),
                 paths.getRelativeDemosExecutablePath());
        QCOMPARE(relative(paths.getMaterialApplicationFilePath()).prepend(QLatin1Char('/')),
                 paths.getRelativeMaterialExePath());
        QCOMPARE(relative(paths.getVersionRootDir() + QDir::separator()), QString());

        QStringList lines;
        for (const kdLog::Record& record : log.records())
            if (record.tag == kdLog::Paths)
                lines.append(QString::number(record.severity) + QLatin1Char(' ') + record.text);
        const QString root = native(path(S("root/")));
        QCOMPARE(lines.mid(1).join(QLatin1Char('\n')).remove(root),
                 native(S("0 Kaldoran Forming version path: forming.\n"
                          "0 Kaldoran Welding version path: welding/2018.10.\n"
                          "0 Kaldoran Joining version path is 'joining'.\n"
                          "0 Kaldoran Additive version path: additive.\n"
                          "2 The kaldoran.mesh product folder could not be found.\n"
                          "0 Kaldoran Mesh version path is 'tools/kaldoran.mesh'.\n"
                          "2 No submit script directory in: forming.\n"
                          "2 No submit script directory in: welding/2018.10.")));
    }

    void settersMoveWhatDependsOnThem()
    {
        coPaths& paths = coPaths::I();
        const auto shown = [this, &paths] {
            QStringList all;
            for (const auto folder : {coPaths::VersionRoot, coPaths::WeldingScripts, coPaths::WeldingDemos,
                                      coPaths::WeldingExamples, coPaths::JoiningVersion, coPaths::AmTutorials,
                                      coPaths::AmDemos, coPaths::MaterialDocs})
                all.append(relative(paths.path(folder)));
            return all.join(QLatin1Char(' '));
        };
        paths.setWeldingDemosPath(path(S("root/my//demos/")));
        paths.setVersionRootDir(path(S("root/v/./1/")));
        QCOMPARE(shown(),
                 S("v/1 v/1/welding/scripts my/demos v/1/welding/examples v/1/joining "
                   "v/1/additive/tutorials v/1/additive/demos material/doc"));
        paths.fixWeldingVersionPath(path(S("root/w")));
        paths.setJoiningVersionPath(path(S("root/j")));
        paths.fixAmVersionPath(path(S("root/a")));
        paths.setAmDemosPath(path(S("root/d")));
        paths.setWeldingExamplePath(path(S("root/e")));
        QCOMPARE(shown(), S("v/1 w/scripts my/demos e j a/tutorials d material/doc"));
        QCOMPARE(paths.origin(coPaths::WeldingDemos), coPaths::Set);
        QCOMPARE(paths.origin(coPaths::WeldingScripts), coPaths::Composed);

        paths.fixWeldingVersionPath(QString());
        paths.setWeldingDemosPath(QString());
        QVERIFY2(shown().startsWith(S("v/1 v/1/welding/scripts v/1/welding/demos e ")), qPrintable(shown()));
    }

    void componentsAreTheNearest_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("mesh");  // where set
        QTest::addColumn<QString>("above"); // the folder that holds them
        QTest::addColumn<bool>("isMissing");
        const QStringList usual{S("components"), S("root/components")}; // the first one is not ours
        QTest::newRow("above the working directory")
            << usual + QStringList{S("root/x/components"), S("root/x/y")} << S("root/x/y") << QString()
            << S("root/x") << false;
        QTest::newRow("not outside the installation") << usual << S(".") << QString() << S("root") << false;
        QTest::newRow("above the mesh product") << usual + QStringList{S("root/tools/components")} << S(".")
                                                << QString() << S("root/tools") << false;
        QTest::newRow("in a mesh product elsewhere")
            << usual + QStringList{S("mesh/components")} << S(".") << S("mesh") << S("mesh") << false;
        QTest::newRow("missing") << QStringList{S("components")} << S("root") << QString() << S("root")
                                 << true;
    }

    void componentsAreTheNearest()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, current);
        QFETCH(QString, mesh);
        QFETCH(QString, above);
        QFETCH(bool, isMissing);
        QVERIFY(makeFolders(folders));
        if (!mesh.isEmpty())
            coPaths::I().setKdMeshPath(path(mesh));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(path(current)));
        LogCapture log;
        const QString found = coPaths::I().getUpperMSCComponentFilePath();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(found, native(path(above + S("/components"))));
        QCOMPARE(log.contains(
                     kdLog::Notable, kdLog::Paths,
                     S("The msc component folder could not be found in '%1'.").arg(native(path(S("root"))))),
                 isMissing);
    }

    void executablesAreKept()
    {
        using type = coProductType;
        const QVector<QPair<coProductType, QString>> stored{{type::welding(), S("2018.10")},
                                                            {type::additive(), S("2018")},
                                                            {type::welding(), S("2018.9")},
                                                            {type::joining(), S("2017")},
                                                            {type::forming(), S("2016.2")}};
        for (const auto& entry : stored)
            coPaths::I().setProductExecutable(entry.first, entry.second, S("/x//") + entry.second);
        coPaths::removeInstance();
        coPaths::createInstance();
        coPaths& paths = coPaths::I();
        QStringList all{S("Additive_2018.0.0.0"), S("Forming_2016.2.0.0"), S("Joining_Optimizer_2017.0.0.0"),
                        S("Welding_2018.9.0.0"), S("Welding_2018.10.0.0")};
        const QString prefix = S("ProductExecutables/Kaldoran_");
        QCOMPARE(paths.allProductKeyNames(), all.replaceInStrings(QRegularExpression(S("^")), prefix));
        QCOMPARE(paths.kaldoranAmKeyNames() + paths.kaldoranFormingKeyNames()
                     + paths.kaldoranJoiningKeyNames() + paths.kaldoranWeldingKeyNames(),
                 paths.allProductKeyNames());
        QCOMPARE(paths.value(paths.kaldoranWeldingKeyNames().last()).toString(), native(S("/x/2018.10")));

        coPaths::setDefaultExecutable(S("any"));
        QCOMPARE(paths.productExecutable(type::welding(), S("2018.9")), native(S("/x/2018.9")));
        paths.removeProductExecutable(type::welding(), S("2018.9"));
        paths.setProductExecutable(type::additive(), S("2018"), QString());
        QCOMPARE(paths.productExecutable(type::welding(), S("2018.9")), S("any"));
        QCOMPARE(paths.allProductKeyNames().size(), 3);
    }

    void documents()
    {
        QVERIFY(makeFolders({S("root/doc/a.pdf"), S("root/additive/doc/b.pdf")}));
        coPaths& paths = coPaths::I();
        QCOMPARE(relative(paths.docFilePath(S("a.pdf"))), S("doc/a.pdf"));
        QCOMPARE(paths.databaseDirName(), S("Database"));
        coProductInformation::registerProduct(coProductType::additive(), S("2018.1"));
        QCOMPARE(paths.databaseDirName(), S("MasterLibrary"));
        QCOMPARE(relative(paths.docFilePath(S("a.pdf"))), S("additive/doc/a.pdf"));
        QCOMPARE(relative(paths.docFilePathWithFallback(S("a.pdf"))), S("doc/a.pdf"));
        for (const QString& name : {S("b.pdf"), S("c.pdf")})
            QCOMPARE(paths.docFilePathWithFallback(name), paths.docFilePath(name));
        QCOMPARE(paths.releaseNotesBaseName(coProductType::joining(), S("2018.1.7")),
                 S("Kaldoran_Joining_Optimizer_2018.1_ReleaseNotes"));
    }

    void nothingWithoutBasePath()
    {
        qunsetenv("KALDORAN_BASEPATH");
        coPaths& paths = coPaths::I();
        paths.setValue(S("BasePath"), QString());
        for (int folder = coPaths::BasePath; folder <= coPaths::DemosApplication; ++folder)
            QCOMPARE(paths.path(static_cast<coPaths::e_Folder>(folder)), QString());
        QCOMPARE(paths.getUpperMSCComponentFilePath() + paths.docFilePathWithFallback(S("a"))
                     + paths.getAppPathForProduct(coProductType::jes()),
                 QString());
    }

    void nothingWithoutInstance()
    {
        LogCapture log;
        coPaths::createInstance();
        coPaths::removeInstance();
        coPaths::removeInstance();
        const auto entries = [this] { return QDir(path(S("settings"))).entryList() + QDir().entryList(); };
        const QStringList before = entries();
        coPaths& standIn = coPaths::I();
        standIn.fixWeldingVersionPath(S("x"));
        QCOMPARE(standIn.getKaldoranBasePath() + standIn.getWeldingScriptPath(), QString());
        standIn.setProductExecutable(coProductType::welding(), S("2018"), S("x"));
        standIn.sync();
        QCOMPARE(entries(), before);
        coPaths::createInstance();
        QCOMPARE(
            log.texts(),
            QStringList({S("coPaths creation failed!"), S("coPaths removed."), S("coPaths remove failed!"),
                         S("Call of coPaths while instance does not exist !"), S("coPaths created.")}));
        QVERIFY(log.contains(kdLog::Fault, kdLog::General, log.texts().at(3)));
        QVERIFY(log.contains(kdLog::Trace, kdLog::Paths, log.texts().constLast()));
    }

    void unwritableSettingsAreLogged()
    {
        coPaths::removeInstance();
        QVERIFY(kdqWrite(path(S("file"))));
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path(S("file")));
        coPaths::createInstance();
        LogCapture log;
        QCOMPARE(coPaths::I().getKaldoranBasePath(), path(S("root")));
        QVERIFY(log.contains(kdLog::Notable, kdLog::Paths,
                             S("The base path could not be stored in '%1'.").arg(coPaths::I().fileName())));
    }
};

KDQ_TEST_MAIN(TestCoPaths)
#include "tst_copaths.moc"
