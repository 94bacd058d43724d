#include "coproducttype.h"

#include "productversion.h"

#include <kdQCore/kdLog>

#include <chrono>
#include <thread>

namespace {

constexpr bool isProductId(int id)
{
    return id >= coProductType::Additive && id <= coProductType::Remote;
}

} // namespace

template <coProductType::e_Type type>
const coProductType& coProductType::shared()
{
    static constexpr coProductType instance(type);
    return instance;
}

const coProductType& coProductType::unknown()
{
    return shared<Unknown>();
}

const coProductType& coProductType::additive()
{
    return shared<Additive>();
}

const coProductType& coProductType::demosAndExamples()
{
    return shared<DemosAndExamples>();
}

const coProductType& coProductType::forming()
{
    return shared<Forming>();
}

const coProductType& coProductType::jes()
{
    return shared<Jes>();
}

const coProductType& coProductType::joining()
{
    return shared<Joining>();
}

const coProductType& coProductType::material()
{
    return shared<Material>();
}

const coProductType& coProductType::mesh()
{
    return shared<Mesh>();
}

const coProductType& coProductType::service()
{
    return shared<Service>();
}

const coProductType& coProductType::welding()
{
    return shared<Welding>();
}

const coProductType& coProductType::monitor()
{
    return shared<Monitor>();
}

const coProductType& coProductType::remote()
{
    return shared<Remote>();
}

// The value as a double first: QVariant::toInt() cuts 64-bit numbers without a word, and rounds.
bool coProductType::isStoredId(const QVariant& id)
{
    const double value = id.toDouble();
    if (!(value >= int(Additive) && value <= int(Remote)))
        return false;
    bool ok = false;
    const int number = id.toInt(&ok);
    return ok && !(number < value) && !(number > value);
}

coProductType coProductType::fromVariant(const QVariant& id)
{
    const int number = id.toInt();
    return coProductType(typeFromId(isProductId(number) ? number : 0));
}

QVariant coProductType::toVariant() const
{
    return typeToId(m_type);
}

int coProductType::typeToId(e_Type type)
{
    return isProductId(type) ? type : 0;
}

coProductType::e_Type coProductType::typeFromId(int id)
{
    if (!isProductId(id))
        KD_LOG(kdLog::Critical, kdLog::General,
               QStringLiteral("No product has the id %1; the call does not return.").arg(id));
    // Volatile: the compiler may not take the loop away. Retried without haste, to spare the processor.
    volatile int retried = id;
    while (!isProductId(retried)) {
        retried = 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return static_cast<e_Type>(retried);
}

QString coProductType::viewName() const
{
    return ProductVersion(m_type).productName();
}
