#include "kdqtest.h"

#include <kdQCore/kdException>
#include <kdQCore/nFileSystem>

using namespace nFileSystem;

namespace {

/// Every entry below the folder, links marked with "@".
QStringList treeOf(const QString& path)
{
    QStringList result;
    QDirIterator entries(path, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QString mark = entries.fileInfo().isSymbolicLink() ? S("@") : QString();
        result.append(mark + QDir(path).relativeFilePath(entries.filePath()));
    }
    result.sort();
    return result;
}

template <typename Function>
QString failureOf(Function function)
{
    try {
        function();
    } catch (const kdException& failure) {
        return failure.getErrorMessage();
    }
    return QString();
}

} // namespace

class TestNFileSystem : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    // Qt makes a shortcut where the system lets the user make no link.
    bool canLink() const
    {
        const QString probe = path("probe");
        const bool linked = QFile::link(m_folder->path(), probe) && QFileInfo(probe).isSymbolicLink();
        return QFile::remove(probe) && linked;
    }

    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void copiesATree()
    {
        if (!canLink())
            QSKIP("needs symbolic links");
        QVERIFY(kdqWrite(path("from/a.dat"), "new"));
        QVERIFY(kdqWrite(path("from/.hidden/Größe 1.txt"), "y"));
        QVERIFY(QDir().mkpath(path("from/empty/inner")));
        QVERIFY(QFile::link(S("a.dat"), path("from/link")));
        QVERIFY(QFile::link(S("."), path("from/.hidden/circle")));
        QVERIFY(QFile::link(S("nowhere"), path("from/broken")));
        QVERIFY(kdqWrite(path("to/run/a.dat"), "old"));
        QVERIFY(kdqWrite(path("to/run/kept"), "kept"));

        copyDirRecursivly(path("from"), path("to/run"));
        QStringList expected = treeOf(path("from")) + QStringList(S("kept"));
        expected.sort();
        QCOMPARE(treeOf(path("to/run")), expected);
        QCOMPARE(kdqContentOf(path("to/run/a.dat")), QByteArray("new"));
        QCOMPARE(kdqContentOf(path("to/run/.hidden/Größe 1.txt")), QByteArray("y"));
        QCOMPARE(QFileInfo(path("to/run/link")).canonicalFilePath(),
                 QFileInfo(path("to/run/a.dat")).canonicalFilePath());
    }

    void copyIntoItself()
    {
        if (!canLink())
            QSKIP("needs symbolic links");
        QVERIFY(kdqWrite(path("from/a")));
        QVERIFY(QFile::link(path("from"), path("link")));
        const QStringList before = treeOf(m_folder->path());
        for (const char* target : {"./from/../from/", "from/new/newer", "link/new"}) {
            const QString failure = failureOf([&] { copyDirRecursivly(path("from"), path(target)); });
            QVERIFY2(failure.contains(QLatin1String("lies in the source")), qPrintable(failure));
            QCOMPARE(treeOf(m_folder->path()), before);
        }
    }

    void copyFileKeepsWhatItCannotReplace()
    {
        if (!canLink())
            QSKIP("needs symbolic links");
        QVERIFY(kdqWrite(path("a"), "content"));
        QVERIFY(failureOf([&] { copyFile(path("a"), path("a")); }).contains(QLatin1String("same file")));
        QVERIFY(QFile::link(path("a"), path("link")));
        QVERIFY(failureOf([&] { copyFile(path("a"), path("link")); }).contains(QLatin1String("same file")));
        QVERIFY(!failureOf([&] { copyFile(path("missing"), path("a")); }).isEmpty());
        QVERIFY(!failureOf([&] { copyFile(m_folder->path(), path("a")); }).isEmpty());
        QCOMPARE(kdqContentOf(path("a")), QByteArray("content"));
        copyFile(path("a"), path("new/b"));
        QCOMPARE(kdqContentOf(path("new/b")), QByteArray("content"));
    }

    void removesATreeButNotWhatLinksLeadTo()
    {
        if (!canLink())
            QSKIP("needs symbolic links");
        QVERIFY(kdqWrite(path("kept/file")));
        QVERIFY(kdqWrite(path("gone/.inner/file")));
        QVERIFY(QFile::link(path("kept"), path("gone/link")));
        QVERIFY(QFile::link(path("nowhere"), path("gone/broken")));
        QVERIFY(QFile::link(path("kept"), path("linkedFolder")));
        QFile::setPermissions(path("gone/.inner/file"), QFileDevice::ReadOwner);
        removeDirRecursivly(path("gone"));
        removeDirRecursivly(path("linkedFolder"));
        QCOMPARE(treeOf(m_folder->path()), QStringList({S("kept"), S("kept/file")}));
    }

    void failures()
    {
        QVERIFY(kdqWrite(path("file")));
        QVERIFY(QDir().mkpath(path("folder %1")));
        const QString below = path("file/%1 below");
        const QString missing = path("missing");
        QCOMPARE(failureOf([&] { createDir(below); }), S("Could not create directory '%1'.").arg(below));
        QCOMPARE(failureOf([&] { copyDirRecursivly(path("folder %1"), below); }),
                 S("Could not create directory '%1'.").arg(below));
        const QString noFolder = S("Directory '%1' does not exist.");
        QCOMPARE(failureOf([&] { copyDirRecursivly(missing, path("x")); }), noFolder.arg(missing));
        QVERIFY(!QFile::exists(path("x")));
        QCOMPARE(failureOf([&] { copyDirRecursivly(path("file"), path("x")); }), noFolder.arg(path("file")));
        QCOMPARE(failureOf([&] { removeDirRecursivly(missing); }), noFolder.arg(missing));
        QCOMPARE(failureOf([&] { removeDirRecursivly(path("file")); }), noFolder.arg(path("file")));
        for (const QString& name : {missing, path("folder %1")}) {
            QFile file(name);
            QVERIFY(!file.remove());
            QCOMPARE(failureOf([&] { removeFile(name); }),
                     S("Failed to remove file '%1': %2").arg(name, file.errorString()));
        }
    }

    void cleanPaths()
    {
        struct Row {
            const char* path;
            bool withSeparator;
            const char* clean;
        };
        QVector<Row> rows{{"/a/b/", false, "/a/b"},
                          {"a/b", true, "a/b/"},
                          {"/a//./x/../b", true, "/a/b/"},
                          {"/", true, "/"},
                          {"", true, ""}};
        if (kdqOnWindows)
            rows += {{"C:\\a\\.\\b/", false, "C:\\a\\b"},
                     {"C:\\", false, "C:\\"},
                     {"\\\\server\\share\\", true, "\\\\server\\share\\"}};
        for (const Row& row : rows)
            QCOMPARE(toCleanAndNativeDirPath(QLatin1String(row.path), row.withSeparator),
                     QDir::toNativeSeparators(QLatin1String(row.clean)));
    }
};

KDQ_TEST_MAIN(TestNFileSystem)
#include "tst_nfilesystem.moc"
