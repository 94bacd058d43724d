#include "coproductinformation.h"

#include <mutex>

namespace {

struct Registration {
    std::mutex mutex;
    bool isRegistered = false;
    coProductInformation::Product product;

    void set(bool registered, const coProductInformation::Product& newProduct)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isRegistered = registered;
        product = newProduct;
    }
};

Registration& registration()
{
    static Registration instance;
    return instance;
}

} // namespace

void coProductInformation::registerProduct(const coProductType& type, const coVersionNumber& version)
{
    registration().set(true, {type, version});
}

void coProductInformation::unregisterProduct()
{
    registration().set(false, {});
}

bool coProductInformation::isRegistered()
{
    Registration& current = registration();
    const std::lock_guard<std::mutex> lock(current.mutex);
    return current.isRegistered;
}

coProductType coProductInformation::productType()
{
    return product().type;
}

coVersionNumber coProductInformation::versionNumber()
{
    return product().version;
}

coProductInformation::Product coProductInformation::product()
{
    Registration& current = registration();
    const std::lock_guard<std::mutex> lock(current.mutex);
    return current.product;
}
