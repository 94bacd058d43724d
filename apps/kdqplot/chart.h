#pragma once

#include "figure.h"

#include <QFont>
#include <QSize>
#include <QtCharts/QChart>

#include <memory>

/// Makes charts of figures and pictures of charts. For the thread of the windows; needs a QApplication.
///
/// \code
/// if (figure.fault().isEmpty())
///     view->setChart(nChart::make(figure).release());
/// \endcode
namespace nChart {

constexpr int smallest = 200; ///< pixels, width and height
constexpr int largest = 10000;

/// In which all texts of charts are set.
QFont font(int pixels, bool isBold = false);

/// A chart with titles, units, round ticks and a legend; its colours are told apart by colour-blind people,
/// and its lines by their dashes in a grey print. The figure must have no fault().
std::unique_ptr<QtCharts::QChart> make(const Figure& figure);

enum Format { Svg, Png };

/// For programs that draw and show nothing, before their QApplication: lets them run where nobody sees a
/// screen, unless the variable QT_QPA_PLATFORM chooses.
void useNoScreen();

/// The picture of a figure as the bytes of a file; with \a scale, a PNG has so many times the pixels. Empty,
/// and \a error says why, where the figure has a fault or the size is out of range.
QByteArray picture(const Figure& figure, Format format, const QSize& size, double scale, QString& error);

} // namespace nChart
