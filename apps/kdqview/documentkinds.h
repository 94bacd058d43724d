#pragma once

#include "document.h"
#include "tableexport.h"

#include <kdQCore/coHeatTreatmentData>

/// A file of one table: XML or text, and written as what it was read from unless its new name says otherwise.
class TableDocument : public Document {
    Q_OBJECT

public:
    TableDocument(const QString& path, kdDataTable table);

    QString summary() const override;
    QString iconPath() const override { return QStringLiteral(":/icons/table.svg"); }
    QStringList fileEndings() const override { return TableExport::endings(); }

protected:
    bool write(QIODevice& device, const QString& path) const override;
};

/// A heat-treatment process: the temperature of the whole process, which follows from the stages and cannot
/// be edited, then the tables of its stages.
class HeatDocument : public Document {
    Q_OBJECT

public:
    HeatDocument(const QString& path, const coHeatTreatmentData& process);

    QString summary() const override;
    QString iconPath() const override { return QStringLiteral(":/icons/heat.svg"); }
    QStringList fileEndings() const override { return {QStringLiteral("xml")}; }
    QString sheetName(int index) const override;
    Outline outline() const override;
    /// Of the process with the names of its stages.
    bool makeFigure(int sheet, const QVector<int>& columns, Figure& figure, QString& error) const override;

protected:
    bool write(QIODevice& device, const QString& path) const override;

private:
    enum Quantity { Temperature, HeatTransfer, MassTransfer, CarbonPotential };

    struct StageTable {
        int stage = 0;
        Quantity quantity = Temperature;
    };

    kdDataTable processTemperature() const;
    QString timeText(const kdUnitValue& time) const;
    static QString quantityText(Quantity quantity);
    void addStageTable(const StageTable& place, const coTableInput& input);
    void takeOver(const StageTable& place, const kdDataTable& table);

    coHeatTreatmentData m_process;
    QVector<StageTable> m_stageTables; ///< of sheets 1, 2, ...
};

/// An input deck: its tables and the list of its options. Decks are for looking at, they belong to those who
/// write them.
class DeckDocument : public Document {
    Q_OBJECT

public:
    explicit DeckDocument(const QString& path);

    void addTable(const kdDataTable& table) { addSheet(table, TableModel::ReadOnly); }
    /// An option; \a sheet is that of its table, or -1.
    void addOption(qint64 line, qint64 lines, const QString& text, int sheet);

    QString summary() const override;
    QString iconPath() const override { return QStringLiteral(":/icons/deck.svg"); }
    Outline outline() const override;
    QStringList fileEndings() const override { return {}; }

protected:
    bool write(QIODevice& device, const QString& path) const override;

private:
    QVector<Outline::Row> m_options;
};
