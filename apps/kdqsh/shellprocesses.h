#pragma once

#include <kdQCore/coHeatTreatmentData>

#include <QMap>
#include <QStringList>

/// The heat treatments of a session by name. Like tables they are never changed in place, so a copy of this
/// object is cheap and is all that undo needs.
class ShellProcesses {
public:
    using Process = QSharedPointer<const coHeatTreatmentData>;

    QStringList names() const { return m_processes.keys(); }
    /// Null where there is none.
    Process find(const QString& name) const { return m_processes.value(name); }
    /// A process that had the name is replaced.
    void put(const QString& name, coHeatTreatmentData process)
    {
        m_processes.insert(name, Process::create(std::move(process)));
    }
    void remove(const QString& name) { m_processes.remove(name); }

private:
    QMap<QString, Process> m_processes;
};
