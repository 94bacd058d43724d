#pragma once

#include "cocsvwriter.h"

#include <functional>

/// Writes rows that the caller computes while the file is written.
///
/// \code
/// coCustomCSVWriter writer({QStringLiteral("step"), QStringLiteral("time")}, steps.size(),
///                          [&steps](int row) { return QList<QVariant>{row + 1, steps[row].time}; });
/// writer.setUnitIndex(kdUnitSystem::Time, 2); // min, where the provider gives kdUnitValues
/// writer.write(QStringLiteral("steps.csv"));
/// \endcode
///
/// What the provider refers to must live as long as the writer. The provider is called once a row, in order,
/// in the thread that writes; what it throws passes through write().
class KDQCORE_EXPORT coCustomCSVWriter : public coCSVWriter {
public:
    using RowProvider = std::function<QList<QVariant>(int row)>;

    /// Without a provider all rows are empty lines; a negative count is none.
    coCustomCSVWriter(const QStringList& titles, int rows, RowProvider provider);

    void writeColumnHeader(QTextStream& stream) const override;
    QList<QVariant> getTokens(int row) const override;
    int nbElements() const override;

private:
    QStringList m_titles;
    int m_rows;
    RowProvider m_provider;
};
