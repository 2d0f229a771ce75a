#pragma once
// The banded renderer: lays a template out over a table of text columns and
// named formulas into pages of drawing operations, then paints those pages on
// any paint device (printer, PDF writer, preview, image). Layout happens once;
// a preview repaints the same pages at every zoom.
#include "reporting/template.h"

#include <QHash>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

// The rows of a sub-report (the statement of a slip): columns and cells.
struct SubreportData {
    QStringList columns;
    std::vector<QStringList> rows;
};

// The data of one print: text columns in order, one list of cells per row, the
// named formulas and the title.
struct ReportData {
    QStringList columns;
    std::vector<QStringList> rows;
    // Formula texts by name. A text in double quotes is a literal (the quotes go);
    // any other text prints as it stands.
    QHash<QString, QString> formulas;
    QString title;
    // The data sets of the template's sub-reports, by name; the same rows on
    // every page that shows the sub-report.
    QHash<QString, SubreportData> subreports;

    // Sets a formula as a quoted literal, the way every form passes its values.
    void setFormula(const QString &name, const QString &value);
};

struct DrawOp {
    enum Kind { Text, Line, Rect, Bars };
    Kind kind = Text;
    QRectF rect;                 // mm on the page; a line runs from topLeft to bottomRight
    QString text;
    int font = 0;                // index in ReportDocument::fonts
    int flags = 0;               // Qt alignment and text flags
    bool box = false;
    bool dash = false;
    double pen = 0.25;
    QString fill;
    std::vector<QRectF> bars;    // Bars: in mm on the page
};

struct ReportPage {
    std::vector<DrawOp> ops;
};

struct ReportDocument {
    QString title;
    QString templateName;  // the template it was laid out from ("RAptos.rpt")
    QPageSize pageSize{QPageSize::A4};
    bool landscape = false;
    std::vector<FontSpec> fonts;
    std::vector<ReportPage> pages;
    // Notes of the run: fields the data lacks, formulas never set, bar codes refused.
    // Each note is written once.
    QStringList log;

    int pageCount() const { return int(pages.size()); }
    double pageWidth() const;
    double pageHeight() const;
};

// The character that stands for the page count until the pages are painted.
inline constexpr char16_t kPageCountMark = 0xE000;

ReportDocument renderReport(const ReportTemplate &tpl, const ReportData &data);

// Paints one page with the painter's origin at the paper's top-left corner.
void paintPage(QPainter &painter, const ReportDocument &doc, int page, double dotsPerMm);
// Sets the device's page size and paints every page. False when the device
// could not be opened for painting.
bool printReport(const ReportDocument &doc, QPagedPaintDevice &device);
// Writes the document as a PDF file with its fonts embedded.
bool writePdf(const ReportDocument &doc, const QString &path, QString *error = nullptr);

// A value through a template's picture: "trim", a date picture ("dd/mm/yyyy"),
// a text picture ("@@@") or a number picture ("#,###,##0.00"). Empty stays empty.
QString formatValue(const QString &text, const QString &picture);
