#pragma once

#include <kdQCore/kdUnitSystem>
#include <kdqcore_export.h>

#include <QString>
#include <QVector>

#include <atomic>

/// One column of a table: double values with a unit, a role and a name.
///
/// A column knows its smallest and largest value at any time and works out on demand whether its values rise
/// or fall; table lookups rest on both. NaN marks a missing value: it is stored, but counts neither as an
/// extreme nor as a step up or down.
///
/// \code
/// kdDataColumn time;
/// time.setType(kdUnitSystem::Time);
/// time.setUsage(kdDataColumn::UsageX);
/// for (double seconds : {0.0, 0.5, 2.0})
///     time.appendValue(seconds);
/// time.getMonotonicity(); // kdDataColumn::Increasing
/// \endcode
///
/// Indices outside the column are ignored by the setters and read as 0.0.
/// Several threads may call const members of one column at the same time; a change needs exclusive access.
/// A column is a value; once appended to a kdDataTable as a pointer, the table owns it.
class KDQCORE_EXPORT kdDataColumn {
public:
    /// The kind of quantity, as stored in files. Any other number is kept as it was read.
    enum Type : int {
        TypeUnspecified = 0,
        TypeLength = 5,
        TypeStress = 7,
        TypeTime = 8,
        TypeTemperature = 9
    };

    /// The role in a table.
    enum Usage : int {
        UsageUnspecified = 0,
        UsageX = 1, ///< independent variable
        UsageY = 2  ///< dependent variable
    };

    /// How the values run from first to last. Increasing and Decreasing are not strict: equal neighbours are
    /// allowed as long as one step at least goes the stated way.
    enum eMonotonicity : int {
        Undefined = 0, ///< only NaN neighbours: no step can be judged
        Constant = 1,
        Increasing = 2,
        Decreasing = 3,
        NotMonotonic = 4
    };

    /// The value farthest from zero.
    struct AbsMaxDetails {
        double value = 0.0; ///< its absolute value
        double sign = 0.0;  ///< 1.0, -1.0 or 0.0
        int index = -1;     ///< of its first occurrence; -1 for a column without a number
    };

    kdDataColumn();
    explicit kdDataColumn(kdUnitSystem::Dimension dimension, Usage usage = UsageUnspecified,
                          const QString& name = QString());
    kdDataColumn(const kdDataColumn& other);
    kdDataColumn& operator=(const kdDataColumn& other);
    virtual ~kdDataColumn();

    /// A new copy, which the caller owns.
    virtual kdDataColumn* getCopy() const;
    void getCopy(kdDataColumn& copy) const { copy = *this; }

    /// Compares unit, type, usage, title, name and values, not id and colour. A NaN makes two columns differ,
    /// even a column from itself.
    bool operator==(const kdDataColumn& other) const;
    bool operator!=(const kdDataColumn& other) const { return !(*this == other); }

    // --- Values ---

    int size() const { return m_values.size(); }
    bool isEmpty() const { return m_values.isEmpty(); }
    /// 0.0 for an index outside the column.
    double value(int index) const;
    const QVector<double>& values() const { return m_values; }
    /// Exact comparison; NaN is never contained.
    bool containsValue(double value) const;

    void setValues(const QVector<double>& values);
    void setValueAt(int index, double value);
    void appendValue(double value);
    /// Inserts before \a index; an index equal to size() appends.
    void insertValueAt(int index, double value);
    void removeValueAt(int index);
    /// Removes \a count values from \a first on; a stretch that leaves the column is ignored.
    void removeValues(int first, int count);
    void reserve(int size) { m_values.reserve(size); }
    /// Removes the values and keeps everything else.
    void clearValues();
    /// Makes the column as new: no values, no name, no unit.
    void clear();
    /// Multiplies every value; a negative factor swaps the extremes and turns the column's direction.
    void scaleValues(double factor);
    /// Sorts ascending, equal values in their old order, NaN last; the column then counts as Increasing,
    /// even where all values are equal.
    void sortValues();

    // --- Extremes ---

    /// Smallest and largest value, in the column's unit; both 0 for an empty column. Single changes only
    /// widen the pair where that is enough, so 0 may remain in it from a time when the column held nothing
    /// but NaN; generateMinMax() sweeps it out.
    double minimum() const { return m_minimum.load(std::memory_order_relaxed); }
    double maximum() const { return m_maximum.load(std::memory_order_relaxed); }
    /// Determines both extremes from all values. A column of nothing but NaN gets the largest finite double
    /// as its minimum and the negative of that as its maximum.
    void generateMinMax() const;
    /// Index of the first value equal to the extreme, which is determined anew; -1 where there is none.
    int indexOfMax() const;
    int indexOfMin() const;
    /// A tie between a positive and a negative value goes to the negative one.
    AbsMaxDetails getAbsMaxDetails() const;
    /// The smallest value that is not exactly 0.0; the largest finite double where there is none.
    double minNonZeroValue() const;

    // --- Monotonicity ---

    /// Direction of the step from \a first to \a second; Undefined where a NaN is involved.
    static eMonotonicity monotonicityByPair(double first, double second);
    /// From the cache where that is valid, else computed (one pass over the values) and kept.
    eMonotonicity getMonotonicity() const { return static_cast<eMonotonicity>(order() & ~nanBit); }
    /// Computes it anew. Fewer than two values are Constant; steps from or to a NaN are skipped.
    void generateMonotonicity() const;
    void invalidateMonotonicity();
    /// Whether a curve over this column can be summed with another: Constant, Increasing or Decreasing.
    bool isValidXValForSumming() const { return isValidXValForSumming(getMonotonicity()); }
    static bool isValidXValForSumming(eMonotonicity monotonicity);
    /// Whether a value is missing. Known together with the monotonicity, which takes no notice of such
    /// values: {1, 2, NaN, 0} is Increasing.
    bool hasNaN() const { return (order() & nanBit) != 0; }

    /// Index of the first value from \a startIndex on (negative counts as 0) that equals \a value or from
    /// which the step to the next value crosses it; -1 where there is none.
    int indexOfRootValue(int startIndex, double value) const;

    // --- Unit, role and texts ---

    kdUnitSystem getUnitSystem() const { return m_unitSystem; }
    /// Sets the unit without touching the values. Where the dimension changes, the type follows.
    void setUnit(const kdUnitSystem& unitSystem);
    int getUnitIndex() const;
    /// Sets the index of the unit within the dimension without touching the values; -1 means none.
    void setUnitIndex(int unitIndex);

    Type getType() const { return m_type; }
    /// Sets the SI unit of the dimension and the type that belongs to the dimension; the values stay.
    void setType(kdUnitSystem::Dimension dimension);
    /// Sets the type alone.
    void setType(Type type) { m_type = type; }
    static Type typeOfDimension(kdUnitSystem::Dimension dimension);

    /// Convert the values. False, and nothing changed, where the column has no unit or the target none in its
    /// dimension.
    bool toUnit(int unitIndex);
    bool toUnit(const kdUnitSystem& unitSystem);
    bool toUnit(kdUnitSystem::Dimension) = delete;
    bool toUnitIndex(int unitIndex) { return toUnit(unitIndex); }
    bool toViewUnit();
    bool toSIUnit();

    Usage getUsage() const { return m_usage; }
    void setUsage(Usage usage) { m_usage = usage; }
    int getId() const { return m_id; }
    void setId(int id) { m_id = id; }
    /// Short name, by which tables find their columns.
    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    /// Title of the axis in a diagram.
    QString title() const { return m_title; }
    void setTitle(const QString& title) { m_title = title; }

    // --- Presentation ---

    /// Components from 0 to 255, stored as given.
    void setRGBColor(int red, int green, int blue);
    void removeRGBColor();
    bool hasRGBColor() const { return m_hasColor; }
    int red() const { return m_red; }
    int green() const { return m_green; }
    int blue() const { return m_blue; }
    /// Whether diagrams show the column; true at first.
    bool isVisible() const { return m_visible; }
    void setVisible(bool visible) { m_visible = visible; }

    /// Bytes held by the column, its texts and values included.
    qint64 memoryFootprint() const;

private:
    enum : int { unknownOrder = -1, nanBit = 8 };

    bool contains(int index) const { return index >= 0 && index < m_values.size(); }
    void noteInserted(double value);
    void widenExtremes(double value);
    void replaceInExtremes(double oldValue);
    int order() const
    {
        const int known = m_order.load(std::memory_order_relaxed);
        return known == unknownOrder ? determinedOrder() : known;
    }
    int determinedOrder() const;

    QVector<double> m_values;
    QString m_name;
    QString m_title;
    kdUnitSystem m_unitSystem;
    Type m_type = TypeUnspecified;
    Usage m_usage = UsageUnspecified;
    int m_id = -1;
    int m_red = 0;
    int m_green = 0;
    int m_blue = 0;
    bool m_hasColor = false;
    bool m_visible = true;
    // Results of const scans. Threads that scan at the same time store the same numbers.
    mutable std::atomic<double> m_minimum{0.0};
    mutable std::atomic<double> m_maximum{0.0};
    mutable std::atomic<int> m_order{unknownOrder}; // monotonicity, and a bit for NaN
};

/// What two neighbouring stretches make together: Undefined and Constant give way to the other, opposite
/// directions are NotMonotonic.
KDQCORE_EXPORT kdDataColumn::eMonotonicity operator+(kdDataColumn::eMonotonicity first,
                                                     kdDataColumn::eMonotonicity second);

/// Agrees with operator==.
KDQCORE_EXPORT uint qHash(const kdDataColumn& column, uint seed = 0);
