#pragma once
// Helpers of the report tests: PDF text through pdftotext, pages as images,
// and a decoder of Interleaved 2 of 5 from a row of pixels.
#include "reporting/renderer.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

// The texts of a page's text operations, in drawing order; page -1: every page.
inline QStringList pageTexts(const ReportDocument &doc, int page = -1)
{
    QStringList out;
    for (int p = 0; p < doc.pageCount(); ++p)
        if (page < 0 || p == page)
            for (const DrawOp &op : doc.pages[size_t(p)].ops)
                if (op.kind == DrawOp::Text)
                    out << op.text;
    return out;
}

// The text operation of a page that prints exactly text, or null.
inline const DrawOp *findText(const ReportDocument &doc, int page, const QString &text)
{
    for (const DrawOp &op : doc.pages[size_t(page)].ops)
        if (op.kind == DrawOp::Text && op.text == text)
            return &op;
    return nullptr;
}

// pdftotext's text of a PDF file (-layout keeps lines).
inline QString pdfFileText(const QString &pdf, bool layout = true)
{
    QProcess p;
    QStringList args;
    if (layout)
        args << QStringLiteral("-layout");
    args << pdf << QStringLiteral("-");
    p.start(QStringLiteral("pdftotext"), args);
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

// Writes doc as a PDF and returns pdftotext's text of it.
inline QString pdfText(const ReportDocument &doc, bool layout = true)
{
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("r.pdf"));
    return writePdf(doc, pdf) ? pdfFileText(pdf, layout) : QStringLiteral("<no pdf>");
}

// The text of each page of the PDF (pages split on form feeds).
inline QStringList pdfPages(const ReportDocument &doc)
{
    QStringList pages = pdfText(doc).split(QChar(u'\f'));
    if (!pages.isEmpty() && pages.last().trimmed().isEmpty())
        pages.removeLast();
    return pages;
}

inline QImage pageImage(const ReportDocument &doc, int page, double dotsPerMm)
{
    QImage img(int(doc.pageWidth() * dotsPerMm), int(doc.pageHeight() * dotsPerMm), QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    paintPage(p, doc, page, dotsPerMm);
    p.end();
    return img;
}

// Reads Interleaved 2 of 5 from the pixels of one row between x0 and x1:
// start (narrow bar, space, bar, space), pairs of digits (one in the bars, one
// in the spaces), stop. Returns "" when the pattern does not decode.
inline QString decodeInterleaved2of5(const QImage &img, int row, int x0, int x1)
{
    std::vector<int> runs;
    bool dark = false;
    int length = 0;
    bool started = false;
    for (int x = x0; x < x1; ++x) {
        const bool d = qGray(img.pixel(x, row)) < 128;
        if (!started) {
            if (!d)
                continue;
            started = true;
            dark = true;
            length = 0;
        }
        if (d == dark) {
            ++length;
        } else {
            runs.push_back(length);
            dark = d;
            length = 1;
        }
    }
    if (started && dark)
        runs.push_back(length);
    if (runs.size() < 7 || (runs.size() - 7) % 10 != 0)
        return QString();
    const int narrow = *std::min_element(runs.begin(), runs.end());
    auto wide = [&](int r) { return r > narrow * 1.8; };
    for (int i = 0; i < 4; ++i)
        if (wide(runs[size_t(i)]))
            return QString();
    static const int weights[5] = {1, 2, 4, 7, 0};
    auto digit = [&](size_t first) {
        int sum = 0, wides = 0;
        for (int k = 0; k < 5; ++k)
            if (wide(runs[first + size_t(2 * k)])) {
                sum += weights[k];
                ++wides;
            }
        if (wides != 2)
            return -1;
        return sum == 11 ? 0 : sum;
    };
    QString out;
    for (size_t i = 4; i + 3 < runs.size(); i += 10) {
        const int a = digit(i), b = digit(i + 1);
        if (a < 0 || b < 0 || a > 9 || b > 9)
            return QString();
        out += QChar(u'0' + a);
        out += QChar(u'0' + b);
    }
    const size_t s = runs.size() - 3;   // stop: wide bar, narrow space, narrow bar
    if (!wide(runs[s]) || wide(runs[s + 1]) || wide(runs[s + 2]))
        return QString();
    return out;
}
