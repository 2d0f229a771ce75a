#include "reporting/barcode.h"

#include <zint.h>

#include <algorithm>
#include <memory>

BarcodeBars interleaved2of5(const QString &digits, const QRectF &area)
{
    BarcodeBars result;
    if (digits.isEmpty()) {
        result.error = QStringLiteral("código de barras vazio");
        return result;
    }
    for (QChar c : digits)
        if (c < u'0' || c > u'9') {
            result.error = QStringLiteral("código de barras com caractere que não é dígito: \"%1\"").arg(digits);
            return result;
        }
    // zint would put a zero in front of an odd count; a slip's code never has one.
    if (digits.size() % 2 != 0) {
        result.error = QStringLiteral("código de barras com número ímpar de dígitos (%1): \"%2\"").arg(digits.size()).arg(digits);
        return result;
    }

    std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(), &ZBarcode_Delete);
    symbol->symbology = BARCODE_C25INTER;
    symbol->show_hrt = 0;
    const QByteArray data = digits.toLatin1();
    int rc = ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char *>(data.constData()), int(data.size()));
    if (rc < ZINT_ERROR)
        rc = ZBarcode_Buffer_Vector(symbol.get(), 0);
    if (rc >= ZINT_ERROR || !symbol->vector) {
        result.error = QStringLiteral("zint: %1").arg(QString::fromLatin1(symbol->errtxt));
        return result;
    }

    // Normalise zint's extent to the area: the first bar starts at its left edge
    // and the last one ends at its right edge.
    double left = 1e300, right = -1e300;
    for (const zint_vector_rect *r = symbol->vector->rectangles; r; r = r->next) {
        left = std::min(left, double(r->x));
        right = std::max(right, double(r->x + r->width));
    }
    const double scale = area.width() / (right - left);
    for (const zint_vector_rect *r = symbol->vector->rectangles; r; r = r->next)
        result.bars.emplace_back(area.left() + (r->x - left) * scale, area.top(), r->width * scale, area.height());
    std::sort(result.bars.begin(), result.bars.end(), [](const QRectF &a, const QRectF &b) { return a.left() < b.left(); });
    return result;
}

void drawBars(QPainter &painter, const std::vector<QRectF> &bars)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    for (const QRectF &r : bars)
        painter.drawRect(r);
    painter.restore();
}
