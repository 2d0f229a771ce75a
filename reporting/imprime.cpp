#include "reporting/imprime.h"

#include "reporting/junta.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPrinter>
#include <utility>

namespace {

ReportViewer &viewer()
{
    static ReportViewer v;
    return v;
}

ReportPrinter &directPrinter()
{
    static ReportPrinter p;
    return p;
}

std::shared_ptr<const ReportDocument> &last()
{
    static std::shared_ptr<const ReportDocument> doc;
    return doc;
}

// The hourglass for the length of a print, restored on every way out.
class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

} // namespace

ReportViewer setReportViewer(ReportViewer v)
{
    ReportViewer old = std::move(viewer());
    viewer() = std::move(v);
    return old;
}

bool temVisualizador() { return bool(viewer()); }

ReportPrinter setReportPrinter(ReportPrinter p) { return std::exchange(directPrinter(), std::move(p)); }

std::shared_ptr<const ReportDocument> lastReport()
{
    return last();
}

QString modeloPorImpressora(const QString &prefix, const QString &impressora)
{
    return prefix + (impressora == QLatin1String("M") ? QStringLiteral("M.rpt") : QStringLiteral("L.rpt"));
}

void formulasComuns(ReportData &data)
{
    if (!data.formulas.contains(QStringLiteral("uEmpat")))
        data.setFormula(QStringLiteral("uEmpat"), QString::number(session.empat));
    if (!data.formulas.contains(QStringLiteral("uNempat")))
        data.setFormula(QStringLiteral("uNempat"), session.nomeEmp);
    if (!data.formulas.contains(QStringLiteral("gClient")))
        data.setFormula(QStringLiteral("gClient"), session.nomeCliente);
}

std::shared_ptr<const ReportDocument> MontaRelatorio(const QString &templateName, ReportData data)
{
    return MontaRelatorioDesde(templateName, std::move(data), 1);
}

std::shared_ptr<const ReportDocument> MontaRelatorioDesde(const QString &templateName, ReportData data, int primeiraPagina)
{
    formulasComuns(data);
    const ReportTemplate tpl = loadTemplate(session.sysPath + templateName);
    auto doc = std::make_shared<ReportDocument>(renderReport(tpl, data, primeiraPagina));
    doc->templateName = templateName;
    last() = doc;
    return doc;
}

void MostraRelatorio(const QString &templateName, ReportData data)
{
    auto doc = MontaRelatorio(templateName, std::move(data));
    if (viewer())
        viewer()(doc);
}

std::shared_ptr<const ReportDocument> juntaRelatorios(const std::vector<std::shared_ptr<const ReportDocument>> &partes)
{
    auto doc = std::make_shared<ReportDocument>(*partes.front());
    for (size_t i = 1; i < partes.size(); ++i) {
        const ReportDocument &parte = *partes[i];
        const int primeiraFonte = int(doc->fonts.size());
        doc->fonts.insert(doc->fonts.end(), parte.fonts.begin(), parte.fonts.end());
        for (ReportPage page : parte.pages) {
            for (DrawOp &op : page.ops)
                op.font += primeiraFonte;
            doc->pages.push_back(std::move(page));
        }
        doc->log << parte.log;
    }
    doc->log.removeDuplicates();
    return doc;
}

void MostraDocumento(std::shared_ptr<const ReportDocument> doc)
{
    last() = doc;
    if (viewer())
        viewer()(std::move(doc));
}

bool ImprimeDireto(const QString &templateName, ReportData data)
{
    auto doc = MontaRelatorio(templateName, std::move(data));
    if (directPrinter())
        return directPrinter()(doc);
    QPrinter printer(QPrinter::HighResolution);
    if (!printer.isValid())
        return false;
    printer.setDocName(doc->title);
    return printReport(*doc, printer);
}

bool ImprimeRelatorio(Connection &con, Recordset &rs, const QString &sql, const QStringList &columns,
                      const QString &templateName, const QString &title, const ReportFormulas &formulas,
                      const RowFiller &fill)
{
    WaitCursor wait;
    if (rs.State() == 1)
        rs.Close();
    rs.Open(sql, con, 1, 2);
    if (rs.eof())
        return false;

    ReportData data;
    data.columns = columns;
    data.title = title;
    data.rows.reserve(size_t(rs.recordCount()));
    while (!rs.eof()) {
        if (fill) {
            data.rows.push_back(fill(rs));
        } else {
            QStringList row;
            row.reserve(columns.size());
            for (const QString &c : columns)
                row << rs[c].text();
            data.rows.push_back(std::move(row));
        }
        rs.moveNext();
    }
    for (const auto &[name, value] : formulas)
        data.setFormula(name, value);
    MostraRelatorio(templateName, std::move(data));
    return true;
}
