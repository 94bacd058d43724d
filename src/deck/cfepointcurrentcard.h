#pragma once

#include "cfeabstractdatcard.h"

#include <kdQCore/kdUnitValue>

#include <QString>

/// An electric current that enters at a control node, constant or following a table over time.
///
/// \code
/// cFePointCurrentCard card;
/// card.setLabel(QStringLiteral("weld_current"));
/// card.setCurrent(kdUnitValue(12.5, kdUnitSystem(kdUnitSystem::ElectricCurrent, 1))); // kA
/// card.setControlNode(QStringLiteral("electrode_node"));
/// writer.writeCard(card);
/// \endcode
///
/// The current is written in ampere, from whichever unit it is given in; a value without a dimension counts
/// as ampere. Not thread-safe. Owns all its data.
class KDQCORE_EXPORT cFePointCurrentCard : public cFeAbstractDatCard {
public:
    /// A missing label, a missing control node, neither current nor table, and a current in a unit that is
    /// not one of current are logged as failed assertions; then nothing is written and the result is false.
    bool write(CFEDatLineWriter& writer) const override;
    ~cFePointCurrentCard() override;

    /// The unique name by which load cases refer to the card; at most 127 bytes.
    QString label() const { return m_label; }
    void setLabel(const QString& label) { m_label = label; }

    kdUnitValue current() const { return m_current; }
    void setCurrent(const kdUnitValue& current);

    /// The table that the current follows, 0 for a constant current.
    int tableId() const { return m_tableId; }
    void setTableId(int id);

    /// Whether a current or a table was set.
    bool isInitialized() const { return m_isInitialized; }

    /// Name of the node; at most 127 bytes.
    QString controlNode() const { return m_controlNode; }
    void setControlNode(const QString& node) { m_controlNode = node; }

private:
    bool arePreconditionsMet() const;

    bool m_isInitialized = false;
    int m_tableId = 0;
    kdUnitValue m_current;
    QString m_label;
    QString m_controlNode;
};
