#pragma once

#include <kdQCore/cFeAbstractDatCard>
#include <kdQCore/CFEDatLineWriter>

#include <QByteArray>

/// The application's own option: from when on, and how often, the solver writes restart data.
class cRestartCard : public cFeAbstractDatCard {
public:
    bool write(CFEDatLineWriter& writer) const override;

    /// Takes the values from the lines of such an option, in any layout of these widths. False, and nothing
    /// changed, where they do not fit.
    bool read(QByteArray lines, CFEDatLineWriter::datExtensionMode widths);

    int increments() const { return m_increments; }
    void setIncrements(int increments) { m_increments = increments; }
    double startTime() const { return m_startTime; }
    void setStartTime(double seconds) { m_startTime = seconds; }

private:
    int m_increments = 1;
    double m_startTime = 0;
};
