#pragma once

#include "kddatacolumn.h"
#include "kddatatablepointiterator.h"

#include <kdQCore/kdUnitValue>
#include <kdqcore_export.h>

#include <QList>
#include <QPair>
#include <QPointF>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class QIODevice;
class QLocale;
class QTextStream;
class QXmlStreamReader;
class QXmlStreamWriter;

/// A table of measured or computed process data: a flow curve, a temperature over time, a press stroke.
///
/// Most tables are XY tables: two columns, X the independent and Y the dependent variable, each with its
/// unit. Such a table is handled by points; a table with more columns by kdDataColumn.
///
/// \code
/// kdDataTable curve(kdUnitSystem::Time, kdUnitSystem::Temperature); // in s and K
/// curve.addPoint(0.0, 293.15);
/// curve.addPoint(60.0, 1218.49);
/// double kelvin = curve.getInterpolDoubleValue(1, 30.0, kdDataTable::HoldEndValues);
/// curve.toUnit(1, 1); // to the second units of both dimensions: ms and degC
/// \endcode
///
/// The table owns its columns and deletes them; a copy has columns of its own. All columns hold the same
/// number of values: who changes a column through its pointer keeps to that. Operations on points do nothing
/// and return false for a table that is not an XY table. Indices out of range are ignored and read as 0.
///
/// Several threads may call const members of one table at the same time; a change needs exclusive access.
class KDQCORE_EXPORT kdDataTable {
public:
    /// What the table describes, as stored in files. Any other number is kept as it was read.
    enum Type : int {
        TypeUnspecified = 0,
        TypeFlowCurve = 1,
        TypeTemperatureOverTime = 2,
        TypePressStroke = 3,
        TypeMaterialProperty = 4
    };

    /// What a lookup returns outside the range of X.
    enum e_InterpolationRuleOutsideInterval : int {
        HoldEndValues = 0, ///< the Y value of the nearer end
        ZeroOutside = 1    ///< 0; the ends themselves still belong to the range
    };

    /// Two curves made into one.
    enum Combination { Sum, Difference, Average };

    /// Asked now and then by what takes long, with the part that is done, 0 to 1; false ends it. May be
    /// empty.
    using GoOn = std::function<bool(double done)>;

    using UvPoint = QPair<kdUnitValue, kdUnitValue>; ///< X and Y of a point with their units

    using PointIterator = kdDataTablePointIterator;

    // --- Construction and comparison ---

    /// A table without columns.
    kdDataTable();
    explicit kdDataTable(bool editable);
    /// An XY table without points, in the SI units of the dimensions.
    kdDataTable(kdUnitSystem::Dimension x, kdUnitSystem::Dimension y);
    kdDataTable(const kdDataTable& other);
    kdDataTable(kdDataTable&& other) noexcept;
    kdDataTable& operator=(const kdDataTable& other);
    kdDataTable& operator=(kdDataTable&& other) noexcept;
    ~kdDataTable();

    /// Make \a copy a copy of this table. The first form of the pointer is replaced by a new table.
    void getCopy(kdDataTable& copy) const;
    void getCopy(QSharedPointer<kdDataTable>& copy) const;
    /// Copies the attributes and two of the columns, which become columns 0 and 1. False, and \a copy
    /// unchanged, for an index out of range.
    bool getCopy(kdDataTable& copy, int xIndex, int yIndex) const;

    /// Compares name, comment, editable flag, default columns, id tag and columns, not type and colour id.
    bool operator==(const kdDataTable& other) const;
    bool operator!=(const kdDataTable& other) const { return !(*this == other); }
    /// Compares the columns only.
    bool equalsContent(const kdDataTable& other) const;

    // --- Attributes ---

    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    QString comment() const { return m_comment; }
    void setComment(const QString& comment) { m_comment = comment; }
    /// Identifies the table across files; empty for most tables.
    QString idTag() const { return m_idTag; }
    void setIdTag(const QString& idTag) { m_idTag = idTag; }
    bool hasIdTag() const { return !m_idTag.isEmpty(); }
    Type type() const { return m_type; }
    void setType(Type type) { m_type = type; }
    bool isEditable() const { return m_editable; }
    void setEditable(bool editable) { m_editable = editable; }
    /// The columns that a diagram shows first, 0 and 1 at first. The setters ignore an index out of range.
    int defaultXColumnIndex() const { return m_defaultXColumnIndex; }
    void setDefaultXColumnIndex(int index);
    int defaultYColumnIndex() const { return m_defaultYColumnIndex; }
    void setDefaultYColumnIndex(int index);
    /// Number of the curve's colour in the application's palette; -1 where it has none of its own.
    int colorId() const { return m_colorId; }
    void setColorId(int colorId) { m_colorId = colorId; }
    bool hasPreferedColor() const { return m_colorId != -1; }

    // --- Columns ---

    int columns() const { return static_cast<int>(m_columns.size()); }
    /// Number of values of column 0.
    int rows() const;
    int size() const { return rows(); }
    bool isEmpty() const { return rows() == 0; }

    /// Null for an index out of range. The table keeps the column.
    const kdDataColumn* column(int index) const;
    kdDataColumn* column(int index);
    /// As column(), for an index that is known to exist; any other is logged and answered by an empty column
    /// that belongs to no table.
    const kdDataColumn& columnRef(int index) const;
    kdDataColumn& columnRef(int index);
    /// The first column that matches, or null.
    const kdDataColumn* columnForID(int id) const;
    kdDataColumn* columnForID(int id);
    const kdDataColumn* getDataColumnByName(const QString& name) const;
    kdDataColumn* getDataColumnByName(const QString& name);
    const kdDataColumn* getDataColumnByTitle(const QString& title) const;
    kdDataColumn* getDataColumnByTitle(const QString& title);
    /// -1 where no column has the name.
    int getDataColumnIndexByName(const QString& name) const;

    /// Appends a copy. A column whose length differs from that of column 0, when that is not empty, is
    /// refused: the log tells, and the call returns false.
    bool appendColumn(const kdDataColumn& column);
    /// As appendColumn(), but takes the column itself. The table owns it only if the call returns true; a
    /// refused column (wrong length, null, already in the table) stays the caller's to delete.
    bool append(kdDataColumn* column);
    /// Appends copies of all columns of the other table, or none where one of them does not fit.
    bool append(const kdDataTable& table);
    /// Appends the points of another XY table, converted to the units of this one. False, and nothing
    /// changed, where a unit cannot be converted.
    bool appendXYValue(const kdDataTable& table);

    /// Delete a column; false where there is none such.
    bool removeAt(int index);
    bool remove(kdDataColumn* column);
    /// Puts another column in a place and deletes the old one. Refused like append() where the table has
    /// other columns with values and the lengths differ; a refused column stays the caller's.
    bool replaceDataColumnAt(int index, kdDataColumn* column);
    bool replaceColumn(int index, const kdDataColumn& column);
    bool replaceColumn(int index, kdDataColumn* column) { return replaceDataColumnAt(index, column); }
    bool replaceColumn(kdDataColumn* oldColumn, kdDataColumn* newColumn);
    /// Makes the table as new: no columns, no name, default attributes.
    void clear();
    /// Deletes all columns.
    void clearColumns();
    /// Removes the values of an XY table and keeps its columns.
    void clearXYColumnValues();

    void setXName(const QString& name);
    void setYName(const QString& name);
    void setColumColor(int index, int red, int green, int blue);

    // --- Points of an XY table ---

    /// Two columns of which the first may serve as X and the second as Y.
    bool isXYDataTable() const;

    PointIterator begin() const;
    /// Equals begin() for a table that is not an XY table.
    PointIterator end() const;
    QVector<QPointF> points() const;
    /// (0, 0) for an index out of range.
    QPointF pointAt(int index) const;
    bool setPointAt(int index, const QPointF& point);
    bool setPointAt(int index, double x, double y) { return setPointAt(index, QPointF(x, y)); }
    bool addPoint(const QPointF& point);
    bool addPoint(double x, double y) { return addPoint(QPointF(x, y)); }
    /// Inserts before \a index; an index equal to rows() appends.
    bool insertPoint(int index, const QPointF& point);
    bool insertPoint(int index, double x, double y) { return insertPoint(index, QPointF(x, y)); }
    bool removePointAt(int index);
    bool setPoints(const QVector<QPointF>& points);

    /// The point with the units of its columns; two empty values for an index out of range.
    UvPoint uvPointAt(int index) const;
    /// The values are converted to the units of the columns; false, and nothing changed, where that cannot
    /// be.
    bool setUvPointAt(int index, const UvPoint& point);
    bool setUvPointAt(int index, const kdUnitValue& x, const kdUnitValue& y);
    bool addUvPoint(const UvPoint& point);
    bool addUvPoint(const kdUnitValue& x, const kdUnitValue& y);

    /// The points and the indices of their units; with \a inViewUnits converted to the view units.
    bool getXYData(QVector<QPointF>& points, int& unitX, int& unitY, bool inViewUnits = false) const;
    /// The values of both axes, in the units of the columns.
    bool getXYAxisData(QVector<double>& x, QVector<double>& y) const;
    bool getXYAxisData(QList<double>& x, QList<double>& y) const;
    /// Makes the table an XY table of these columns, which it then owns; they may be its own (which swaps the
    /// axes). False, and ownership stays with the caller, where one is null, both are one or their lengths
    /// differ.
    bool setXYData(kdDataColumn* x, kdDataColumn* y);
    /// Sets the points and the indices of the units that they are in. A table without columns gets two.
    bool setXYData(const QVector<QPointF>& points, int unitX, int unitY);

    // --- Units ---

    /// Convert all columns; a column that has no unit, or none of that index, stays as it is. The axes alone
    /// return whether they were converted.
    void toViewUnit();
    void toSIUnit();
    void toUnit(int unitX, int unitY);
    void toUnit(const kdUnitSystem& unitX, const kdUnitSystem& unitY);
    bool xToViewUnit();
    bool yToViewUnit();
    bool xToUnit(int unit);
    bool xToUnit(const kdUnitSystem& unit);
    bool yToUnit(int unit);
    bool yToUnit(const kdUnitSystem& unit);
    /// Every column but the first; false where one of them could not be converted.
    bool allYToUnit(int unit);
    bool allYToUnit(const kdUnitSystem& unit);

    /// Index of the unit of column 0 or 1; false, and -1, where there is no such column.
    bool unitX(int& unit) const;
    bool unitY(int& unit) const;
    /// Set the unit without touching the values.
    void setUnitX(int unit);
    void setUnitX(const kdUnitSystem& unit);
    void setUnitY(int unit);
    void setUnitY(const kdUnitSystem& unit);
    kdUnitSystem xUnitSystem() const;
    kdUnitSystem yUnitSystem() const;
    /// Whether no column has a dimension.
    bool allColumnsUnitSystemNone() const;

    // A dimension alone is no unit; without these it would be taken for the index of one.
    bool xToUnit(kdUnitSystem::Dimension) = delete;
    bool yToUnit(kdUnitSystem::Dimension) = delete;
    bool allYToUnit(kdUnitSystem::Dimension) = delete;
    void setUnitX(kdUnitSystem::Dimension) = delete;
    void setUnitY(kdUnitSystem::Dimension) = delete;
    void toUnit(kdUnitSystem::Dimension, kdUnitSystem::Dimension) = delete;

    // --- Values ---

    /// Extremes of columns 0 and 1 with their units; an empty value without such a column.
    kdUnitValue maxXValue() const;
    kdUnitValue minXValue() const;
    kdUnitValue maxYValue() const;
    kdUnitValue minYValue() const;
    /// First row of the extreme of column 1; -1 where there is none.
    int indexOfYMax() const;
    int indexOfYMin() const;
    /// Arithmetic mean of a column without its NaN, 0 where nothing is left.
    double columnAverage(int index) const;

    /// Y at \a x on the straight line between the neighbouring nodes, in the units of the columns.
    ///
    /// Takes logarithmic time where X rises or falls, and gives what a search from the first node on would
    /// give: nodes nearer than 1e-20 to \a x answer with their own Y, the first such node wins. Where X
    /// neither rises nor falls, the line through the first two nodes answers. 0 for empty columns and for
    /// columns of different lengths; a single node answers for every x.
    static double getInterpolDoubleValue(const kdDataColumn& xColumn, const kdDataColumn& yColumn, double x,
                                         e_InterpolationRuleOutsideInterval rule = HoldEndValues);
    static double getInterpolDoubleValue(const kdDataColumn* xColumn, const kdDataColumn* yColumn, double x,
                                         e_InterpolationRuleOutsideInterval rule = HoldEndValues);
    /// With column 0 as X; 0 for an index out of range.
    double getInterpolDoubleValue(int yColumn, double x,
                                  e_InterpolationRuleOutsideInterval rule = HoldEndValues) const;
    /// The mean of y1 and y2 where x1 and x2 are nearer than 1e-20.
    static double linearInterpolation(double x, double x1, double y1, double x2, double y2);

    // --- Sorting and scaling ---

    /// Whether the table can be sorted: an XY table with points.
    bool canSortXYData() const;
    /// Sort the points; equal ones keep their order, NaN go last. Nothing happens where canSortXYData() is
    /// false.
    void sortForXValues(bool descending = false);
    void sortForYValues(bool descending = false);
    /// As sortForXValues(), for long tables: false, and nothing changed, where \a goOn said no.
    bool sortForXValues(bool descending, const GoOn& goOn);
    void scaleXData(double factor);
    /// Scales every column but the first.
    void scaleYData(double factor);

    // --- Combining curves ---
    //
    // These take another curve in any units that convert to those of this table; columns without a unit are
    // taken as they are. The result runs in the direction of this table, in its units and with its
    // attributes. Rows whose X is NaN are left out. All return false, and change nothing, where they cannot
    // be done.

    /// X rises, falls or is constant, and no two neighbouring rows have the same X with different Y.
    bool canSumOrSubtract() const;
    /// Adds the Y of the other curve, at the X values of both together; a curve that ends earlier goes on
    /// with its end value. Both must pass canSumOrSubtract(). A table with several Y columns takes one Y
    /// column for all of its own, or as many as it has itself.
    bool sumXY(const kdDataTable& table);
    /// As sumXY(), but subtracts.
    bool subtractXY(const kdDataTable& table);
    /// The mean of both curves, at the X values of both together, over the range that both cover. Same
    /// conditions as sumXY(); false where the ranges do not meet. \a result may be either of the two.
    bool average(const kdDataTable& other, kdDataTable& result) const;
    /// The part of this curve within the range of X of the other, with interpolated points at the cuts. False
    /// where X neither rises nor falls or the ranges do not meet. \a result may be either of the two.
    bool getCutByOtherTable(const kdDataTable& other, kdDataTable& result) const;
    /// As sumXY(), subtractXY() and average(), for long tables: false, too, where \a goOn said no. \a result
    /// may be either of the two.
    bool combine(Combination combination, const kdDataTable& other, kdDataTable& result,
                 const GoOn& goOn) const;
    /// Replaces X by the given values, in their order, and every Y by its lookup there, with the end values
    /// outside; NaN among them is left out. False where X neither rises nor falls or nothing is given.
    bool applySamplingPoints(const kdDataColumn& samplingPoints);
    bool applySamplingPoints(const kdDataColumn* samplingPoints)
    {
        return samplingPoints && applySamplingPoints(*samplingPoints);
    }

    // --- Editing curves ---

    /// Removes the rows whose Y is zero in the given unit, up to the rounding of a conversion (with degC,
    /// those at 273.15 K), and returns how many.
    int removePointsWithYValueZero(const kdUnitSystem& unitSystem);
    /// Maps Y linearly so that it runs from \a minimum to \a maximum, both in the given unit. False, and
    /// nothing changed, where Y is constant, the limits are not in order or the unit does not fit.
    bool adjustYValuesToNewMinMax(const kdUnitSystem& unitSystem, double minimum, double maximum);
    /// Keeps the rows from \a first to \a last, both included. False, and nothing changed, for a range that
    /// does not lie within the table.
    bool cropDataTable(int first, int last);
    /// Of the leading rows with equal X (with \a useY: equal Y) only the last stays. Returns how many went.
    int removeMultipleXValuesAtBeginning(bool useY = false);
    /// First and last row of the first stretch in which Y rises, as cropDataTable() takes them: the forward
    /// stroke of a press. Rests within the stretch belong to it, rests before and after it do not; a NaN ends
    /// it. False, and both -1, where Y never rises.
    bool getForthStrokeSection(int& first, int& last) const;
    /// Sorts by X, then moves the curve so that it begins at 0. False where there is no X or one is negative.
    bool moveAllXToZero();
    /// Sorts by X; whether the first X is 0.0.
    bool allXGreaterZeroExceptFirst();
    /// Sorts by X; whether no X is negative.
    bool allXPositive();
    /// Whether all Y of all Y columns are greater than 0; a NaN is not.
    bool allYGreaterZero() const;

    // --- XML ---
    //
    // Written are name, id tag, comment and type of the table, of each column the title, type, unit, usage
    // and name, and the values in C notation with 16 significant digits: a value of 17 digits comes back
    // rounded at the sixteenth. Characters that XML cannot hold become U+FFFD.
    //
    // Readers replace what is written and keep the rest (editable flag, colour id, default columns as far as
    // they exist). They take the elements in any order, skip those they do not know, and go by what is there:
    // an element goes before the attribute of the same name, and the claimed numbers of columns and rows do
    // not matter. The unit goes by its symbol, then by its index; the dimension by its number, in files
    // without that by the column's type, then by the symbol. On failure they raise an error on the reader
    // that names row and column, counted from 1, return false and leave the table as it was.

    static QString xmlStartElement(); ///< "kdDataTable"
    static QString tagNameForJES();   ///< "DataTable"
    /// The element alone, without a declaration.
    QString toXml() const;
    /// A table without columns, and \a ok false, where the text holds no table or is not well-formed.
    static kdDataTable fromXml(const QString& xml, bool* ok = nullptr);
    /// The reader stands on or somewhere before the start element, and afterwards on its end element. The
    /// search ends with the element in which the reader stands.
    bool readXML(QXmlStreamReader& reader, const QString& startElement = xmlStartElement());
    /// Writes a whole document. A closed device is opened, emptied and closed again. False where the device
    /// does not take all of it.
    bool writeXML(QIODevice& device) const;
    /// Writes the element where the writer stands.
    bool writeXML(QXmlStreamWriter& writer) const;
    /// The form that the job editor reads: the same content in an element "DataTable", every value of a row
    /// followed by ";".
    bool readXMLForJES(QXmlStreamReader& reader, const QString& startElement = tagNameForJES());
    bool writeXMLForJES(QXmlStreamWriter& writer) const;

    // --- Text ---

    /// Reads a text of measured values: one line a row, one field a column.
    ///
    /// Fields are separated by ";", else by tabs, else by "|", else by ",", else by blanks, whichever the
    /// first line of values holds; they may stand in quotation marks. With ";", tabs or "|" a comma in a
    /// number is its decimal mark. Empty lines, empty fields at the end of a line, lines that begin with # //
    /// % ! $ or * and a first line such as "sep=;" are skipped. Lines end with LF, CRLF or CR. A line whose
    /// first field holds a digit and no letter is one of values, however odd. Above the values may stand
    /// - a line of names, with units in brackets ("time [s]; force (kN)") or not, and a line of units;
    /// - or one line for each column as exportValuesToTextStream() writes it, with or without "#"; the
    ///   separator in these lines is then that of the file, and a comma beside it a decimal mark;
    /// - or a comment line of names with a unit for each.
    ///
    /// The table gets new columns, the first as X and all others as Y, and keeps everything else. A name
    /// whose unit is not known stays whole. Text without values and header gives a table without columns.
    ///
    /// Throws kdTypedException<QPair<int, int>> and leaves the table as it was where a field is no number,
    /// the fields of two lines differ in number or the header does not fit. The payload is the line in the
    /// text and the field in the line, both counted from 1; the message says it in words.
    static void importFromTextStream(QTextStream& stream, kdDataTable& table);
    /// The same, for the bare texts: one list for each line of values, with decimal points, and one for each
    /// line of the header (names, units, or dimension, unit and name of a column). Lists are replaced; each
    /// may be null.
    static void importValuesFromTextStream(QTextStream& stream, QList<QStringList>* values,
                                           QList<QStringList>* headers = nullptr);
    /// Writes, for every column, a line "#dimension=4;unit=1;name=width" (numbers of dimension and unit; the
    /// separator as given), then one line a row, with the shortest texts that read back as the same doubles.
    ///
    /// Of the locale the decimal comma is taken, unless the separator holds a comma; null means a point. Line
    /// breaks in names become blanks. False, and nothing written, for a separator that is empty or could be
    /// taken for part of a number or of the header (letters, digits, + - . = # " and line breaks); false
    /// also where the stream fails.
    bool exportValuesToTextStream(QTextStream& stream, const QString& separator = QStringLiteral(";"),
                                  bool withHeader = true, const QLocale* locale = nullptr) const;

    /// Bytes held by the table, its columns included.
    qint64 memoryFootprint() const;

private:
    using ColumnPointer = std::unique_ptr<kdDataColumn>;

    bool fits(const kdDataColumn& column) const;
    int indexOf(const kdDataColumn* column) const;
    void copyAttributes(const kdDataTable& other);
    void replaceColumns(std::vector<ColumnPointer> columns);
    bool sortPoints(bool byX, bool descending, const GoOn& goOn = GoOn());
    void keepRows(const QVector<int>& rows);
    bool inColumnUnits(const UvPoint& point, QPointF& converted) const;

    std::vector<ColumnPointer> m_columns;
    QString m_name;
    QString m_comment;
    QString m_idTag;
    Type m_type = TypeUnspecified;
    bool m_editable = true;
    int m_defaultXColumnIndex = 0;
    int m_defaultYColumnIndex = 1;
    int m_colorId = -1;
};

/// Agrees with operator==.
KDQCORE_EXPORT uint qHash(const kdDataTable& table, uint seed = 0);
