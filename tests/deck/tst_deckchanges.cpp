#include "kdqtest.h"

#include <kdQCore/coDeckCompare>
#include <kdQCore/coDeckPatch>
#include <kdQCore/coFeSolverCard>
#include <kdQCore/coProjectPathLockFile>

#include <QBuffer>
#include <QTemporaryDir>

namespace {

const QByteArray deck = "titleplate\n"
                        "$ yield stress\n"
                        "tablek\n"
                        "    4    1    0    0    2\n"
                        "   12    2    2\n"
                        "2.93149E+23.55000E+8\n"
                        "6.73149E+2-5.0000E-1\n"
                        "mesh\n"
                        "    1    2    3\n"
                        "point current\n"
                        "    0    0\n"
                        "    1    0    0    0    0    0weld, c\n"
                        "1.25000E+40.00000E+00.00000E+0\n"
                        "    4    0    0\n"
                        "    2\n"
                        "node 1\n"
                        "solver\n"
                        "   11    0    0    0    0    0    0    0\n"
                        "optimize     11\n";

const QByteArray freeDeck =
    "title,plate\n"
    "table,k\n4,1,0,0,2,\n12,2,2,\n2.93149E+2,3.55000E+8,\n6.73149E+2,-5.0000E-1,\n"
    "mesh\n1,2,3,\npoint current\n0,0,\n1,0,0,0,0,0,weld, c,\n"
    "1.25000E+4,0.00000E+0,0.00000E+0,\n4,0,0,\n2,\nnode 1,\nsolver\n11,0,0,0,0,0,0,0,\noptimize,11,\n";

QByteArray with(const char* what, const char* by)
{
    return QByteArray(deck).replace(what, by);
}

} // namespace

/// Comparing decks and changing single options of them.
class TestDeckChanges : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QString::fromUtf8("Blech ß.dat"));

    void write(const QByteArray& bytes)
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

private Q_SLOTS:
    void comparison_data()
    {
        QTest::addColumn<QByteArray>("other");
        QTest::addColumn<double>("tolerance");
        QTest::addColumn<QString>("report");
        kdqRow("other layout", freeDeck, 0.0, "");
        kdqRow("other comment", with("yield", "flow"), 0.0, "");
        kdqRow("number within the tolerance", with("3.55000E+8", "3.55001E+8"), 1e-5, "");
        kdqRow("number beyond it", with("3.55000E+8", "3.55010E+8"), 1e-5,
               "table 'k': words that differ: 1, the first: (numbers by up to 2.82e-05, relatively)\n"
               "- line 6: 3.55000E+8\n+ line 6: 3.55010E+8\n");
        kdqRow("whole number", with("    1    2    3", "    1    2    4"), 0.5,
               "mesh: words that differ: 1, the first:\n- line 9: 3\n+ line 9: 4\n");
        kdqRow("more words", with("    1    2    3", "    1    2    3    4"), 0.0,
               "mesh: words that differ: 1, the first:\n- line 9: \n+ line 9: 4\n");
        kdqRow("renamed", with("tablek", "tablem"), 0.0,
               "table 'k': only in the first deck, line 3\ntable 'm': only in the second deck, line 3\n");
        kdqRow("broken option", with("   11    0", "   1x    0"), 0.0,
               "solver: words that differ: 1, the first:\n- line 18: 11\n+ line 18: 1x\n");
        kdqRow("other case", with("solver", "SOLVER"), 0.0, "");
        kdqRow("moved", with("mesh\n    1    2    3\n", "") + "mesh\n    1    2    3\n", 0.0,
               "mesh: at another place: line 8, line 18\n");
    }

    void comparison()
    {
        QFETCH(QByteArray, other);
        QFETCH(double, tolerance);
        QByteArray first = deck;
        QBuffer a(&first);
        QBuffer b(&other);
        QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        coDeckCompare compare(tolerance);
        const bool isSame = compare.run(a, CFEDatLineWriter::standard, b, CFEDatLineWriter::standard);
        QTEST(compare.report(), "report");
        QCOMPARE(isSame, compare.report().isEmpty());
    }

    void patches_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const int point = deck.indexOf("point");
        const QByteArray changed = "titleplate\n"
                                   "$ yield stress\n"
                                   "feature    7\n"
                                   "mesh\n"
                                   "    1    2    3\n"
            + deck.mid(point, deck.indexOf("solver") - point)
            + "nodal    1\n"
              "solver\n"
              "    8    0    0    0    0    0    0    0\n"
              "optimize     11\n"
              "end\n";
        kdqRow("LF", deck, changed);
        kdqRow("CR LF", QByteArray(deck).replace("\n", "\r\n"), QByteArray(changed).replace("\n", "\r\n"));
        kdqRow("last line without end", deck.chopped(1), changed);
    }

    void patches()
    {
        QFETCH(QByteArray, before);
        write(before);
        coDeckPatch patch(m_path);
        QVERIFY2(patch.read(), qPrintable(patch.errorText()));
        const int solver = patch.find(QStringLiteral("solver"));
        const int table = patch.find(QStringLiteral("table 'k'"));
        QVERIFY(solver > table && table > 0);
        QCOMPARE(patch.find(QStringLiteral("table 'k'"), 1), -1);
        patch.insertAfter(solver, "end\r\n");
        patch.replace(solver, patch.bytesOf(coFeSolverCard(nSolver::MultifrontalDirect), solver));
        patch.insertBefore(solver, "nodal    1");
        patch.insertBefore(table, "feature    7\n");
        patch.remove(table);
        QVERIFY2(patch.apply(coDeckPatch::KeepOld), qPrintable(patch.errorText()));
        QTEST(kdqContentOf(m_path), "after");
        QCOMPARE(kdqContentOf(m_path + QStringLiteral(".bak")), before);
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files).size(), 2);
    }

    void refusedPatches()
    {
        write(deck);
        coDeckPatch patch(m_path);
        QVERIFY(patch.read());
        patch.remove(0);
        {
            coProjectPathLockFile other(m_folder.path());
            QVERIFY(other.tryLock(0));
            QVERIFY(!patch.apply());
            QVERIFY2(patch.errorText().contains(QStringLiteral("locked by process")),
                     qPrintable(patch.errorText()));
        }
        write(deck + "end\n");
        QVERIFY(!patch.apply());
        QVERIFY2(patch.errorText().contains(QStringLiteral("changed by somebody else")),
                 qPrintable(patch.errorText()));
        QCOMPARE(kdqContentOf(m_path), deck + "end\n");
        QVERIFY(patch.read());
        patch.replace(0, QByteArray());
        QVERIFY(!patch.apply());
        QVERIFY2(patch.errorText().contains(QStringLiteral("no new lines")), qPrintable(patch.errorText()));
        QVERIFY(!coDeckPatch(m_folder.filePath(QStringLiteral("missing.dat"))).read());
        const int files = QDir(m_folder.path()).entryList(QDir::Files).size();
        for (const double end : {0.0, 0.4, 0.6}) { // at once, while reading, while writing
            const QByteArray before = deck.repeated(5000);
            write(before);
            coDeckPatch stopped(m_path);
            stopped.setProgress([end](double done) { return done < end; });
            const bool isRead = stopped.read();
            QCOMPARE(isRead, end > 0.5);
            if (isRead)
                stopped.remove(0);
            QVERIFY(!isRead || !stopped.apply(coDeckPatch::KeepOld));
            QVERIFY2(stopped.errorText().startsWith(QStringLiteral("Stopped")),
                     qPrintable(stopped.errorText()));
            QCOMPARE(kdqContentOf(m_path), before);
            QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files).size(), files);
        }
    }
};

KDQ_TEST_MAIN(TestDeckChanges)
#include "tst_deckchanges.moc"
