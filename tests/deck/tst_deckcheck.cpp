#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coDeckCheck>
#include <kdQCore/coDeckReader>
#include <kdQCore/coDeckScanner>

#include <QBuffer>

namespace {

/// Gives what it has in pieces of a few bytes, then fails.
class TricklingDevice : public QIODevice {
public:
    TricklingDevice(const QByteArray& bytes, bool fails) : m_bytes(bytes), m_fails(fails) { open(ReadOnly); }
    bool isSequential() const override { return true; }
    bool atEnd() const override { return m_bytes.isEmpty() && !m_fails; }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        if (m_bytes.isEmpty() && m_fails) {
            setErrorString(QStringLiteral("cable pulled"));
            return -1;
        }
        const int count = int(qMin<qint64>(most, qMin(7, m_bytes.size())));
        memcpy(data, m_bytes.constData(), size_t(count));
        m_bytes.remove(0, count);
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    bool m_fails;
};

const QByteArray pointTable = "tablek\n"
                              "    4    1    0    0    2\n"
                              "   12    2    2\n"
                              "2.93149E+23.55000E+8\n"
                              "6.73149E+2-5.0000E-1\n";

const QByteArray gridTable = "table,flow\n4,2,0,0,0,\n5,3,1,12,2,2,\n0.00000E+0,1.00000E-1,2.00000E-1,\n"
                             "2.00000E+1,4.00000E+2,\n1.00000E+0,2.00000E+0,3.00000E+0 c\n"
                             "4.00000E+0,5.00000E+0,6.00000E+0,\n";

const QByteArray pointLoad = "point load\n    1    0    0\n    1    0    0    0    0    0ptld_3\n"
                             "1.00000E+02.00000E+03.00000E+0\n    0    0    0\n    2\nmy nodes\n"
                             "define,node,set,my  nodes\n";

QByteArray with(QByteArray deck, const char* what, const char* by)
{
    return deck.replace(what, by);
}

} // namespace

class TestDeckCheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findings_data()
    {
        QTest::addColumn<QByteArray>("deck");
        QTest::addColumn<QString>("findings"); // a line each
        kdqRow("sound points", pointTable, "");
        kdqRow("sound grid", gridTable, "");
        kdqRow("CR LF, no line end at last", with(pointTable, "\n", "\r\n").chopped(2), "");
        kdqRow("point missing", pointTable.left(pointTable.size() - 21),
               "line 3: error: table 'k': 2 points are announced, 1 follow.");
        kdqRow("point too many", pointTable + "7.00000E+21.00000E+0\n",
               "line 3: error: table 'k': 2 points are announced, 3 follow.");
        kdqRow("x descends", with(pointTable, "6.73149E+2", "1.73149E+2"),
               "line 5, column 1: error: table 'k': x must not descend, but 173.149 follows 293.149.");
        kdqRow("no number", with(pointTable, "3.55000E+8", "3.55,00E+8"),
               "line 4, column 11: error: table 'k': number expected, found '3.55,00E+8'.");
        kdqRow("not finite", with(pointTable, "3.55000E+8", "       nan"),
               "line 4, column 18: error: table 'k': finite number expected, found 'nan'.");
        kdqRow("fields blank", with(pointTable, "    0    0    2", "              2"),
               "line 2, column 11: warning: table 'k': blank fields read as 0: 3, 4.");
        kdqRow("value missing", with(pointTable, "3.55000E+8", ""),
               "line 4, column 11: warning: table 'k': the blank field reads as 0.");
        kdqRow("field missing where 0 is none", with(pointTable, "    2    2\n", "    2\n"),
               "line 3, column 11: error: table 'k': 1 or 2 expected in field 3, found nothing.");
        kdqRow("constant missing", QByteArray("auto load\n5,0,,1,0,1.,1.,\n"),
               "line 2, column 5: warning: auto load: field 3 is blank, where cards write 10.");
        kdqRow("point load on nodes with a blank in their name", pointLoad, "");
        kdqRow("force missing", with(pointLoad, "3.00000E+0", ""),
               "line 5: warning: point load 'ptld_3': the third force is missing and reads as 0.");
        kdqRow("extrapolation code", with(pointTable, "    2    2\n", "    2    3\n"),
               "line 3, column 15: error: table 'k': 1 or 2 expected in field 3, found '3'.");
        kdqRow("comments between the lines", with(pointTable, "\n", "\n$ x\n"), "");
        kdqRow("upper case", QByteArray("AUTO LOAD\n0,0,10,1,0,1.,1.,\nTIME STEP\n1.0,\n"), "");
        kdqRow("deck ends early", pointTable.left(32),
               "line 2: error: table 'k': data line expected, found the end of the deck.");
        kdqRow("grid values missing", with(gridTable, "5.00000E+0,", ""),
               "line 6: error: table 'flow': 6 table values expected, found 5.");
        kdqRow("grid x alike", with(gridTable, "2.00000E-1", "1.00000E-1"),
               "line 4, column 23: error: table 'flow': values 2 and 3 of variable 1 print alike: 0.1.");
        kdqRow("grid x descends", with(gridTable, "4.00000E+2", "1.00000E+1"),
               "line 5, column 12: error: table 'flow': the values of variable 2 must ascend, but 10 "
               "follows 20.");
        kdqRow("record breaks off", with(gridTable, "\n4.00000E+0", "\nend\n4.00000E+0"),
               "line 7, column 1: error: table 'flow': data line expected, found 'end'.");
        kdqRow("id used twice", pointTable + gridTable,
               "line 6: error: table 'flow': the id 4 is taken by the table of line 1.");
        kdqRow(
            "references",
            QByteArray("point current\n0,0,\n1,0,0,0,0,0,weld,\n1.25000E+4,0.00000E+0,0.00000E+0,\n7,0,0,\n"
                       "2,\nnode_1,\ndefine node set node_2\n"),
            "line 1: error: point current 'weld': the deck holds no table 7.\n"
            "line 1: warning: point current 'weld': no keyword line of the deck names the node list "
            "'node_1'.");
        kdqRow("no such solver", QByteArray("solver\n    7    0    0    0    0    0    0    0\n"),
               "line 2, column 1: error: solver: 7 is the number of no solver.");
        kdqRow("data without keyword", QByteArray("$ mesh\n1,2,\n"),
               "line 2, column 1: error: lines without keyword: keyword expected, found data.");
        kdqRow("other value than ours", QByteArray("auto load\n5,0,11,1,0,1.00000E+0,1.00000E+0,\n"),
               "line 2, column 5: warning: auto load: field 3 is 11, where cards write 10.");
        kdqRow("lines too long",
               "$ " + QByteArray(159, 'x') + "\ncoordinates\n" + QByteArray(161, '1') + '\n',
               "line 1, column 161: warning: comments: the line has more than the 160 columns that the "
               "solver reads.\n"
               "line 3, column 161: error: coordinates: the line has more than the 160 columns that the "
               "solver reads.");
        kdqRow("NUL bytes",
               with(pointTable, "3.55000E+8", "3.55").replace("3.55", QByteArray("3.55000\0+8", 10)),
               QStringLiteral("line 4, column 11: error: table 'k': number expected, found '3.55000%1+8'.")
                   .arg(QChar(0)));
    }

    void findings()
    {
        QFETCH(QByteArray, deck);
        QBuffer device(&deck);
        QVERIFY(device.open(QIODevice::ReadOnly));
        LogCapture log;
        coDeckCheck check(CFEDatLineWriter::standard);
        const bool isSound = check.run(device);
        QStringList found;
        for (const coDeckFinding& finding : check.findings())
            found.append(finding.toString());
        QTEST(found.join(QLatin1Char('\n')), "findings");
        QCOMPARE(isSound, check.errors() == 0);
        QCOMPARE(log.texts(), QStringList()); // a file from outside is no failed assertion
    }

    /// What lacks a line is found broken, and still is one option.
    void lineMissing()
    {
        QList<QByteArray> lines = pointLoad.split('\n');
        for (int missing = 1; missing < 6; ++missing) {
            QList<QByteArray> others = lines;
            others.removeAt(missing);
            QByteArray deck = others.join('\n');
            QBuffer device(&deck);
            QVERIFY(device.open(QIODevice::ReadOnly));
            coDeckCheck check(CFEDatLineWriter::standard);
            QVERIFY2(!check.run(device), deck.constData());
            QCOMPARE(check.options(), 2);
        }
    }

    void widths_data()
    {
        QTest::addColumn<QByteArray>("deck");
        QTest::addColumn<QString>("text");
        const QByteArray foreign = "coordinates\n1.5E+3,1.234567E+3,\n";
        kdqRow("none", foreign, "extended widths, which the deck does not show");
        kdqRow("reals", foreign + "2.93149E+23.55000E+8\n", "standard widths, as line 3 shows");
        kdqRow("least real", foreign + "-4.94065645841E-324,\n", "extended widths, as line 3 shows");
        kdqRow("key", foreign + "optimize     11\n", "standard widths, as line 3 shows");
    }

    void widths()
    {
        QFETCH(QByteArray, deck);
        QBuffer device(&deck);
        QVERIFY(device.open(QIODevice::ReadOnly));
        QTEST(coDeckLayout::find(device).text(), "text");
        QCOMPARE(device.pos(), qint64(0));
    }

    void anyDeviceAndAnyLine()
    {
        QList<QPair<qint64, qint64>> expected{{0, 3}, {3, 1}, {4, 500001}, {500005, 5}};
        for (const bool fails : {true, false}) {
            TricklingDevice device("a\r\n\n" + QByteArray(500000, 'x') + "\n 1 c\nlast", fails);
            coDeckScanner scanner(device);
            QList<QPair<qint64, qint64>> sizes;
            while (scanner.next())
                sizes.append({scanner.line().offset, scanner.line().size});
            QCOMPARE(sizes, expected);
            QCOMPARE(scanner.errorText(),
                     fails ? QStringLiteral("The deck cannot be read on after line 4: cable pulled")
                           : QString());
            expected.append({500010, 4}); // a last line without end, where nothing fails
        }
    }
};

KDQ_TEST_MAIN(TestDeckCheck)
#include "tst_deckcheck.moc"
