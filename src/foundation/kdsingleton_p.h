#pragma once

#include <kdQCore/kdLog>

#include <QString>

/// What the process-wide objects have in common: one pointer, and the lines that the log shows about it.
/// A class keeps the pointer and forwards its static members here, through KD_SINGLETON, so that
/// the log names the class's own source file.
class kdSingleton {
public:
    kdSingleton(const char* className, kdLog::Tag tag, const char* file, int line)
        : m_className(className), m_tag(tag), m_file(file), m_line(line)
    {
    }

    template <typename T, typename Make>
    void create(T*& instance, Make make) const
    {
        if (instance) {
            log(kdLog::Fault, kdLog::General,
                QLatin1String(m_className) + QLatin1String(" creation failed!"));
            return;
        }
        instance = make();
        log(kdLog::Trace, m_tag, QLatin1String(m_className) + QLatin1String(" created."));
    }

    template <typename T, typename Destroy>
    void remove(T*& instance, Destroy destroy) const
    {
        if (!instance) {
            log(kdLog::Fault, kdLog::General, QLatin1String(m_className) + QLatin1String(" remove failed!"));
            return;
        }
        T* const former = instance;
        instance = nullptr;
        destroy(former);
        log(kdLog::Trace, m_tag, QLatin1String(m_className) + QLatin1String(" removed."));
    }

    /// Without an instance the stand-in takes the call, so that a caller's mistake is logged and not a crash.
    template <typename T, typename MakeStandIn>
    T& access(T* instance, MakeStandIn makeStandIn) const
    {
        if (instance)
            return *instance;
        log(kdLog::Fault, kdLog::General,
            QStringLiteral("Call of %1 while instance does not exist !").arg(QLatin1String(m_className)));
        return makeStandIn();
    }

private:
    void log(kdLog::Severity severity, kdLog::Tag tag, const QString& text) const
    {
        if (kdLog::isWanted(severity))
            kdLog::write(severity, tag, m_file, m_line, text);
    }

    const char* m_className;
    kdLog::Tag m_tag;
    const char* m_file;
    int m_line;
};

#define KD_SINGLETON(ClassName, tag) kdSingleton(#ClassName, tag, __FILE__, __LINE__)
