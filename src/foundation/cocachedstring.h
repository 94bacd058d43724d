#pragma once

#include <QString>

/// A text that is computed once, on first use, and remembers whether it has been set; an empty text counts.
///
/// \code
/// if (!m_folder.initialized())
///     m_folder = findFolder();
/// return m_folder;
/// \endcode
///
/// A value type. A move copies, so the source stays set.
class coCachedString {
public:
    coCachedString() = default;
    coCachedString(const QString& text) : m_text(text), m_isInitialized(true) { } // NOLINT: as assignment
    coCachedString(const coCachedString&) = default;
    coCachedString& operator=(const coCachedString&) = default;
    ~coCachedString() = default;

    coCachedString& operator=(const QString& text)
    {
        m_text = text;
        m_isInitialized = true;
        return *this;
    }

    bool initialized() const { return m_isInitialized; }
    /// Null until one has been set.
    operator QString() const { return m_text; } // NOLINT: stands for its text

    void setNull() { *this = coCachedString(); }

private:
    QString m_text;
    bool m_isInitialized = false;
};
