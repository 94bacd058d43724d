#pragma once

#include <kdqcore_export.h>

#include <QCoreApplication>
#include <QMetaType>
#include <QVariant>

/// One application of the family.
///
/// Products are had through the accessors, which return the one shared constant of each:
///
/// \code
/// settings.setValue(QStringLiteral("Product"), coProductType::welding().toVariant());
///
/// const QVariant stored = settings.value(QStringLiteral("Product"));
/// if (coProductType::isStoredId(stored) && coProductType::fromVariant(stored).isWelding())
///     openWeldingProject();
/// \endcode
///
/// A one-byte value type.
class KDQCORE_EXPORT coProductType {
    Q_DECLARE_TR_FUNCTIONS(coProductType)

public:
    /// The numbers are stored in files.
    enum e_Type : quint8 {
        Unknown = 0,
        Additive = 1,
        DemosAndExamples = 2,
        Forming = 3,
        Jes = 4, ///< the job editor
        Joining = 5,
        Material = 6,
        Mesh = 7,
        Service = 8,
        Welding = 9,
        Monitor = 10,
        Remote = 11
    };

    /// The unknown product.
    constexpr coProductType() = default;

    static const coProductType& unknown();
    static const coProductType& additive();
    static const coProductType& demosAndExamples();
    static const coProductType& forming();
    static const coProductType& jes();
    static const coProductType& joining();
    static const coProductType& material();
    static const coProductType& mesh();
    static const coProductType& service();
    static const coProductType& welding();
    static const coProductType& monitor();
    static const coProductType& remote();

    /// Whether fromVariant() may be asked: the value converts to a whole number from 1 to 11.
    static bool isStoredId(const QVariant& id);

    /// The product of a stored id. \warning Never returns for any other value, the unknown product's id 0
    /// included: ask isStoredId() first about every value that comes from outside.
    static coProductType fromVariant(const QVariant& id);

    /// The id to store; 0 for the unknown product, which fromVariant() does not take back.
    QVariant toVariant() const;

    constexpr e_Type type() const { return m_type; }
    constexpr bool isUnknown() const { return m_type == Unknown; }
    constexpr bool isAdditive() const { return m_type == Additive; }
    constexpr bool isDemosAndExamples() const { return m_type == DemosAndExamples; }
    constexpr bool isForming() const { return m_type == Forming; }
    constexpr bool isJes() const { return m_type == Jes; }
    constexpr bool isJoining() const { return m_type == Joining; }
    constexpr bool isMaterial() const { return m_type == Material; }
    constexpr bool isMesh() const { return m_type == Mesh; }
    constexpr bool isService() const { return m_type == Service; }
    constexpr bool isWelding() const { return m_type == Welding; }
    constexpr bool isMonitor() const { return m_type == Monitor; }
    constexpr bool isRemote() const { return m_type == Remote; }

    /// The name under which users know the product: "Kaldoran Welding".
    QString viewName() const;

private:
    constexpr explicit coProductType(e_Type type) : m_type(type) { }

    template <e_Type type>
    static const coProductType& shared();

    static int typeToId(e_Type type);
    static e_Type typeFromId(int id);

    e_Type m_type = Unknown;
};

constexpr bool operator==(const coProductType& a, const coProductType& b)
{
    return a.type() == b.type();
}

constexpr bool operator!=(const coProductType& a, const coProductType& b)
{
    return a.type() != b.type();
}

Q_DECLARE_TYPEINFO(coProductType, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(coProductType)
