#pragma once

#include <kdqcore_export.h>

#include <QString>

#include <cstddef>

/// The table of an enumeration: for every value its name in files and its name for users.
///
/// \code
/// constexpr coEnumData::Row rows[] = {{0, "upset", QT_TRANSLATE_NOOP("nPress", "Upset")},
///                                     {1, "pierce", QT_TRANSLATE_NOOP("nPress", "Pierce")}};
/// constexpr coEnumData operations("nPress", rows);
/// operations.name(1);                  // "pierce"
/// operations.translatedDisplayName(1); // "Lochen" in a German application
/// \endcode
///
/// Tables are constants that refer to constant rows; they are ready before any code runs. Thread-safe.
class KDQCORE_EXPORT coEnumData {
public:
    struct Row {
        int value;
        const char* name;        ///< stable, written to files
        const char* displayName; ///< English
    };

    /// \a context is that of the display names' translation. Nothing is copied.
    template <std::size_t count>
    constexpr coEnumData(const char* context, const Row (&rows)[count])
        : m_context(context), m_rows(rows), m_count(static_cast<int>(count))
    {
    }

    constexpr int count() const { return m_count; }
    constexpr const Row* begin() const { return m_rows; }
    constexpr const Row* end() const { return m_rows + m_count; }

    /// The row of a value or of a name, which is compared with upper and lower case; null where there is
    /// none.
    const Row* find(int value) const;
    const Row* find(const QString& name) const;

    // These are empty for a value without a row.
    QString name(int value) const;
    QString displayName(int value) const;
    QString translatedDisplayName(int value) const;

private:
    const char* m_context;
    const Row* m_rows;
    int m_count;
};
