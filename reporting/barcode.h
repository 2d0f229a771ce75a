#pragma once
// Interleaved 2 of 5 bar codes for bank slips, encoded by zint and drawn as
// plain rectangles, so that they print the same on paper, in the preview and
// in a PDF.
#include <QPainter>
#include <QRectF>
#include <QString>
#include <vector>

// The bank slip's bar code: 103 x 13 mm, with 2.5 mm left blank on each side.
inline constexpr double kBarcodeWidthMm = 103.0;
inline constexpr double kBarcodeHeightMm = 13.0;
inline constexpr double kBarcodeQuietZoneMm = 2.5;

struct BarcodeBars {
    std::vector<QRectF> bars;   // dark bars, in the units of the area asked for
    QString error;              // why nothing can be drawn; empty when bars were made
};

// Encodes digits as Interleaved 2 of 5 and stretches the bars over area (the
// quiet zone lies outside it). An empty text, a character that is not a digit
// or an odd number of digits is refused: never padded.
BarcodeBars interleaved2of5(const QString &digits, const QRectF &area);

// Draws bars with the painter's current brush settings replaced by solid black.
void drawBars(QPainter &painter, const std::vector<QRectF> &bars);
