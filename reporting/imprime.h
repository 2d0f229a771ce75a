#pragma once
// The printing routine that every printing form calls: runs the report's list
// statement, copies every cell as text (Null as empty), sets the common
// formulas and the report's own, lays the template out and hands the pages to
// the report viewer (frmRelatorio in the program).
#include "core/datastore.h"
#include "core/session.h"
#include "reporting/renderer.h"

#include <QList>
#include <QPair>
#include <functional>
#include <memory>

using ReportFormulas = QList<QPair<QString, QString>>;
// Builds one row of cells, in the order of the columns, from the current record.
using RowFiller = std::function<QStringList(const Recordset &)>;
// Shows a finished report.
using ReportViewer = std::function<void(std::shared_ptr<const ReportDocument>)>;

// Installs the viewer (the program's main window installs frmRelatorio's) and
// returns the one it replaces. With no viewer the report is only kept as the
// last report.
ReportViewer setReportViewer(ReportViewer viewer);
// True when a viewer is installed to show what is printed.
bool temVisualizador();
// Takes the direct prints in place of the default printer (habdrive writes
// them as PDF files); returns the one it replaces. True when printed.
using ReportPrinter = std::function<bool(std::shared_ptr<const ReportDocument>)>;
ReportPrinter setReportPrinter(ReportPrinter printer);
// The last report built by this routine: what a viewer was given.
std::shared_ptr<const ReportDocument> lastReport();

// The printer type picks the template of the receipt and of the ledger: "M"
// the matrix one, every other letter (empty too) the laser one.
// modeloPorImpressora("Recibo", "M") is "ReciboM.rpt"; ("RRazao01_", "S") "RRazao01_L.rpt".
QString modeloPorImpressora(const QString &prefix, const QString &impressora);

// Adds the common formulas uEmpat, uNempat and gClient (gClient with its
// padding) where the caller did not set them.
void formulasComuns(ReportData &data);

// Lays out the template of the program directory over the data, with the
// common formulas. A missing or broken template throws TemplateError.
std::shared_ptr<const ReportDocument> MontaRelatorio(const QString &templateName, ReportData data);
// Builds the report and shows it in the viewer.
void MostraRelatorio(const QString &templateName, ReportData data);
// Builds the report and sends it to the default printer, with no dialog and no
// preview. A printing fault is not reported: false comes back.
bool ImprimeDireto(const QString &templateName, ReportData data);

// The whole print of a form. Closes rs if open and opens it on sql (keyset,
// pessimistic). An empty list ends quietly: false, no report, pointer restored.
// Each row is fill(rs) when given, else the value of each column by name.
bool ImprimeRelatorio(Connection &con, Recordset &rs, const QString &sql, const QStringList &columns,
                      const QString &templateName, const QString &title, const ReportFormulas &formulas = {},
                      const RowFiller &fill = {});
