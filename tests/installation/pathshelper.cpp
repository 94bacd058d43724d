// An application that finds its installation: prints, in UTF-8, what it found, also when the environment has
// changed, what it logged, and what the settings file then holds.
// Usage: PATHSHELPER_SETTINGS=<folder> [PATHSHELPER_BARE=1] pathshelper [<argument>...]

#include <kdQCore/coPaths>
#include <kdQCore/kdLog>

#include <QCoreApplication>

#include <cstdio>
#include <optional>

namespace {

void print(const char* what, const QString& text)
{
    std::printf("%s=%s\n", what, text.toUtf8().constData());
}

class Printer : public kdLog::Sink {
public:
    Printer() { attach(); }
    ~Printer() override { detach(); }

    void received(const kdLog::Record& record) override
    {
        if (record.severity == kdLog::Trace && record.tag == kdLog::Paths)
            print("log", record.text);
    }
};

} // namespace

int main(int argc, char** argv)
{
    std::optional<QCoreApplication> application;
    if (!qEnvironmentVariableIsSet("PATHSHELPER_BARE"))
        application.emplace(argc, argv);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       qEnvironmentVariable("PATHSHELPER_SETTINGS"));
    coPaths::createInstance();
    coPaths& paths = coPaths::I();
    {
        const Printer printer;
        print("base", paths.getKaldoranBasePath());
    }
    qputenv("KALDORAN_BASEPATH", ".");
    print("again", paths.getKaldoranBasePath());
    print("welding", paths.getWeldingVersionPath());
    print("stored", paths.value(QStringLiteral("BasePath"), QStringLiteral("nothing")).toString());
    coPaths::removeInstance();
    return 0;
}
