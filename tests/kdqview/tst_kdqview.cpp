#include "curveview.h"
#include "familyapplication.h"
#include "heatfile.h"
#include "kdqtest.h"
#include "language.h"
#include "logdock.h"
#include "mainwindow.h"
#include "outlineview.h"
#include "viewcommand.h"
#include "workspace.h"

#include <kdQCore/CFEDatLineWriter>
#include <kdQCore/coFeDataTableCard>
#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/kdCommandDispatcher>

#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QTableView>
#include <QtCharts/QChartView>
#include <QtCharts/QXYSeries>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>

using namespace QtCharts;

/// Drives the real window by mouse and keyboard, on a screen of its own.
class TestKdqview : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    Language m_language;
    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<MainWindow> m_window;

    QString write(const QString& name, const QByteArray& content) const
    {
        QFile file(m_folder.filePath(name));
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
        return isWritten ? file.fileName() : QString();
    }

    QString curveFile() const
    {
        return write(QStringLiteral("curve.csv"), "time [min];temperature [degC]\n0;20\n5;576.5\n30;842\n");
    }

    QString heatFile() const
    {
        coHeatTreatmentData process(nHeatTreatment::CaseHardening);
        nHeatTreatment::coHeatTreatmentDataFactory::setup(process);
        QFile file(m_folder.filePath(QStringLiteral("gear.xml")));
        return file.open(QIODevice::WriteOnly) && HeatFile::write(file, process) ? file.fileName()
                                                                                 : QString();
    }

    QString deckFile() const
    {
        kdDataTable table(kdUnitSystem::Temperature, kdUnitSystem::Stress);
        table.addPoint(293.15, 355e6);
        table.addPoint(773.15, 276.9e6);
        coFeDataTableCard card(QStringLiteral("yield"), 1,
                               coFeTableCard::IndependentVarUsingValues(nMarc::e_TableVariableType(12)));
        QFile file(m_folder.filePath(QStringLiteral("plate.dat")));
        QTextStream stream(&file);
        CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::fixed);
        writer.setFileHandler(&stream);
        const bool ok = file.open(QIODevice::WriteOnly) && card.setTable(table)
            && writer.writeTitle(QStringLiteral("steel plate")) && writer.writeCard(card) && writer.flush();
        return ok ? file.fileName() : QString();
    }

    template <typename Widget>
    Widget& part(const char* name = "") const
    {
        return *m_window->findChild<Widget*>(QLatin1String(name));
    }

    QTableView& table() const { return part<QTableView>("table"); }
    QString cell(int row, int column) const { return table().model()->index(row, column).data().toString(); }
    QString lastMessage() const { return part<LogDock>("log").lastText(); }

    /// What the chart on the screen has marked in its first curve.
    QPointF mark() const
    {
        const QList<QAbstractSeries*> series = m_window->findChild<QChartView*>()->chart()->series();
        const auto curves = m_window->findChild<CurveView*>()->figure().curves.size();
        const auto marks = static_cast<const QXYSeries*>(series.at(series.size() - curves));
        return marks->count() == 1 ? marks->at(0) : QPointF();
    }

    /// No window manager gives the keyboard back to the window when a dialog has closed.
    bool activate() const
    {
        m_window->activateWindow();
        return QTest::qWaitForWindowActive(m_window.get());
    }

    void press(int key, Qt::KeyboardModifiers modifiers) const
    {
        QVERIFY(activate());
        QTest::keyClick(&table(), Qt::Key(key), modifiers);
    }

    void type(int row, int column, const QString& text) const
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          table().visualRect(table().model()->index(row, column)).center());
        QTest::keyClick(table().viewport(), Qt::Key_F2);
        const auto editors = table().viewport()->findChildren<QLineEdit*>(); // former ones first
        QVERIFY(!editors.isEmpty());
        QLineEdit* const editor = editors.constLast();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor hands its text over by an event
    }

    /// Presses the keys of an action that asks for a file, and types the file's name.
    void pressAndName(int key, Qt::KeyboardModifiers modifiers, const QString& path) const
    {
        QTimer waiting;
        connect(&waiting, &QTimer::timeout, &waiting, [&] {
            if (const auto dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                waiting.stop();
                auto& name = *dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                name.setCompleter(nullptr); // its list would take the Return key
                name.setText(path);
                QTest::keyClick(&name, Qt::Key_Return);
            }
        });
        waiting.start(20);
        press(key, modifiers);
    }

    QAction& language(const char* code) const { return part<QAction>(code); }
    QString menuTexts() const
    {
        QStringList texts;
        for (const QAction* const menu : m_window->menuBar()->actions())
            for (const QAction* const action : menu->menu()->actions())
                texts.append(action->text());
        return texts.join(QLatin1Char('|'));
    }

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_folder.isValid() && m_language.choose(kdQLanguage::English));
        m_workspace = std::make_unique<Workspace>();
        m_window = std::make_unique<MainWindow>(m_language);
        m_window->resize(1240, 760);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(activate());
    }

    void cleanup()
    {
        m_window.reset();
        m_workspace.reset();
    }

    void editsAndFollows()
    {
        pressAndName(Qt::Key_O, Qt::ControlModifier, curveFile());
        QCOMPARE(m_workspace->documents().size(), 1);
        QCOMPARE(table().model()->headerData(1, Qt::Horizontal).toString(),
                 QStringLiteral("temperature [°C]"));

        type(1, 1, QStringLiteral("650.25"));
        QCOMPARE(cell(1, 1), QStringLiteral("650.25"));
        QCOMPARE(mark(), QPointF(5.0, 650.25));
        QVERIFY(m_window->isWindowModified());
        QVERIFY2(menuTexts().contains(QLatin1String("Undo: change value")), qPrintable(menuTexts()));

        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(mark(), QPointF(5.0, 576.5));
        QVERIFY(!m_window->isWindowModified());
        const int redo = QKeySequence(QKeySequence::Redo)[0]; // differs between systems
        press(redo & ~int(Qt::KeyboardModifierMask),
              Qt::KeyboardModifiers(redo & int(Qt::KeyboardModifierMask)));
        QCOMPARE(mark(), QPointF(5.0, 650.25));

        type(1, 1, QStringLiteral("65O"));
        QCOMPARE(cell(1, 1), QStringLiteral("650.25"));
        QVERIFY2(lastMessage().contains(QLatin1String("'65O' is no number")), qPrintable(lastMessage()));
        pressAndName(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier,
                     m_folder.filePath(QStringLiteral("other"))); // gets the ending of the chosen form
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(m_workspace->documents().constFirst()->fileName(), QStringLiteral("other.xml"));
    }

    void changesRowsAndUnits()
    {
        m_window->openFiles({curveFile()});
        type(1, 0, QStringLiteral("6"));
        press(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(table().model()->rowCount(), 4);
        QCOMPARE(mark(), QPointF(3.0, 298.25)); // half-way between the neighbours
        const int number = m_workspace->documents().constFirst()->number();
        QVERIFY(kdCommandDispatcher::I().execute(QStringLiteral("unit %1 1 2 K").arg(number)));
        QCOMPARE(mark(), QPointF(3.0, 298.25 + 273.15));
        QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
        press(Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(table().model()->rowCount(), 0);
        for (int i = 0; i < 4; ++i)
            press(Qt::Key_Z, Qt::ControlModifier);
        QFile file(curveFile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        kdDataTable before;
        QTextStream stream(&file);
        kdDataTable::importFromTextStream(stream, before);
        QVERIFY(m_workspace->documents().constFirst()->sheet(0)->table().equalsContent(before));
        QVERIFY(!m_window->isWindowModified());
    }

    void exports_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* const name : {"table.xml", "table.txt", "table.csv"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void exports()
    {
        QFETCH(QString, name);
        m_window->openFiles(
            {write(QStringLiteral("noted.csv"),
                   "# Furnace \"A\", 5 %\n// as measured\ntime [min];temperature [degC]\n0;20\n"
                   "# door opened\n5;576.5\n30;842\n")});
        const auto* const log = part<LogDock>("log").findChild<QTreeWidget*>();
        QCOMPARE(log->findItems(QStringLiteral("comments between"), Qt::MatchContains, 1).size(), 1);
        type(2, 1, QStringLiteral("900.125"));
        const kdDataTable written = m_workspace->documents().constFirst()->sheet(0)->table();
        pressAndName(Qt::Key_E, Qt::ControlModifier, m_folder.filePath(name));
        m_window->openFiles({m_folder.filePath(name)});
        QCOMPARE(m_workspace->documents().size(), 2);
        const kdDataTable& again = m_workspace->documents().constLast()->sheet(0)->table();
        QVERIFY(again.equalsContent(written));
        QCOMPARE(again.comment(), QStringLiteral("Furnace \"A\", 5 %\nas measured"));

        pressAndName(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier,
                     m_folder.filePath(name + QStringLiteral(".svg")));
        QFile picture(m_folder.filePath(name + QStringLiteral(".svg")));
        QVERIFY(picture.open(QIODevice::ReadOnly));
        QVERIFY(picture.readAll().contains("Temperature [°C]"));
    }

    void speaksGerman()
    {
        m_window->openFiles({curveFile()});
        language("de").trigger();
        QCoreApplication::processEvents();
        QVERIFY2(menuTexts().contains(QLatin1String("&Speichern")), qPrintable(menuTexts()));
        QCOMPARE(cell(1, 1), QStringLiteral("576,5"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
        type(1, 1, QStringLiteral("577,5"));
        QCOMPARE(mark().y(), 577.5);
        QVERIFY2(menuTexts().contains(QString::fromUtf8("Wert ändern")), qPrintable(menuTexts()));
        language("en").trigger();
        QCoreApplication::processEvents();
        QVERIFY2(menuTexts().contains(QStringLiteral("change value")), qPrintable(menuTexts()));
        QCOMPARE(cell(1, 1), QStringLiteral("577.5"));
    }

    void editsHeatTreatment()
    {
        const QString path = heatFile();
        m_window->openFiles({path});
        const Document& document = *m_workspace->documents().constFirst();
        QVERIFY(document.sheetCount() > 1 && part<OutlineView>("outline").topLevelItemCount() > 1);
        QVERIFY(!(table().model()->flags(table().model()->index(0, 1)) & Qt::ItemIsEditable));
        const double before = document.sheet(0)->valuesOf(1).at(1);
        const QString line = QStringLiteral("set %1 2 2 2 %2");
        QVERIFY(kdCommandDispatcher::I().execute(
            line.arg(QString::number(document.number()), QString::number(before - 10.0))));
        QCOMPARE(document.sheet(0)->valuesOf(1).at(1), before - 10.0);
        press(Qt::Key_S, Qt::ControlModifier);

        QFile file(path);
        coHeatTreatmentData saved;
        QString error;
        QVERIFY2(file.open(QIODevice::ReadOnly) && HeatFile::read(file, path, saved, error),
                 qPrintable(error));
        kdDataTable temperature = *saved.stages().constFirst()->temperature().dataTable();
        temperature.toViewUnit();
        QCOMPARE(temperature.pointAt(1).y(), before - 10.0);
    }

    void showsDeck()
    {
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(deckFile())});
        QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QDropEvent drop(QPointF(100, 100), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_window.get(), &drop);
        QCOMPARE(part<OutlineView>("outline").topLevelItemCount(), 2);
        QCOMPARE(cell(1, 1), QStringLiteral("276900000"));
        QCOMPARE(mark(), QPointF(293.15, 355e6));
        const int number = m_workspace->documents().constFirst()->number();
        QVERIFY(!kdCommandDispatcher::I().execute(QStringLiteral("set %1 1 1 1 0").arg(number)));
        QVERIFY2(lastMessage().contains(QLatin1String("cannot be edited")), qPrintable(lastMessage()));
    }

    void refusesFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("message");
        QTest::newRow("broken XML") << QByteArray("<kdDataTable>\n<column") << QStringLiteral("line 2");
        QTest::newRow("other XML") << QByteArray("<html/>") << QStringLiteral("line 1");
        QTest::newRow("no number") << QByteArray("1;2\n3;x4\n") << QStringLiteral("x4");
        QTest::newRow("empty") << QByteArray(" \n") << QStringLiteral("is empty");
    }

    void refusesFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, message);
        auto& log = part<LogDock>("log");
        log.close();
        m_window->openFiles({write(QStringLiteral("wrong.xyz"), content)});
        QVERIFY2(lastMessage().contains(message), qPrintable(lastMessage()));
        QVERIFY(log.isVisible() && m_workspace->documents().isEmpty());
    }

    void stopsReading()
    {
        QByteArray text;
        for (int row = 0; row < 1000000; ++row)
            text += QByteArray::number(row) + ";1.5\n";
        const QString path = write(QStringLiteral("long.csv"), text);
        bool isCancelled = false;
        QTimer::singleShot(0, this, [&] { // comes to its turn while the file is being read
            auto& cancel = part<QToolButton>("cancel");
            isCancelled = cancel.isVisible() && !table().isEnabled();
            QTest::mouseClick(&cancel, Qt::LeftButton);
        });
        m_window->openFiles({path});
        QVERIFY(isCancelled && table().isEnabled() && m_workspace->documents().isEmpty());
        QVERIFY2(lastMessage().contains(QLatin1String("was stopped")), qPrintable(lastMessage()));
    }

    void asksForUnsavedChanges()
    {
        m_window->openFiles({curveFile()});
        type(0, 1, QStringLiteral("21"));
        for (const QMessageBox::StandardButton button : {QMessageBox::Cancel, QMessageBox::Discard}) {
            bool isAsked = false;
            QTimer::singleShot(0, this, [&] {
                const auto box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                isAsked = box != nullptr;
                if (isAsked)
                    QTest::mouseClick(box->button(button), Qt::LeftButton);
            });
            QCOMPARE(m_window->close(), button == QMessageBox::Discard);
            QVERIFY(isAsked);
        }
    }

    void isInThePicture()
    {
        const QString examples = qEnvironmentVariable("KDQ_TEST_DATA") + QStringLiteral("/examples/fire/");
        m_window->openFiles({examples + QStringLiteral("iso834_fire_curve.csv"),
                             examples + QStringLiteral("steel_s355_en1993.csv"), deckFile(), heatFile()});
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          table().visualRect(table().model()->index(3, 1)).center());
        const QString target = qEnvironmentVariable("KDQVIEW_PICTURE", QStringLiteral(KDQVIEW_PICTURE));
        QVERIFY(m_window->grab().save(target, "PNG", 0));
        QVERIFY(QFileInfo(target).size() > 20000 && QFileInfo(target).size() < 150000);
    }
};

int main(int argc, char** argv)
{
    const QTemporaryDir logs;
    qputenv("LOCALAPPDATA", QFile::encodeName(logs.path()));
    FamilyApplication::prepare();
    // Without a window manager the server refuses requests that Qt then repeats.
    qputenv("QT_LOGGING_RULES", "qt.qpa.xcb.warning=false");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    FamilyApplication::describe(QStringLiteral("tst_kdqview"));
    kdqPrepareTest("tst_kdqview");
    const FamilyApplication family(argc, argv);
    ViewCommand::registerAll();
    TestKdqview test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_kdqview.moc"
