// habtool report TEMPLATE DATA.tsv OUT.pdf [NAME=VALUE ...]
// Renders a template headless to PDF. DATA.tsv: a header line of column names,
// then one TAB-separated line per row. Each NAME=VALUE sets a formula.
#include "tools/habtool/habtool.h"

#include "reporting/renderer.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

// Reads the table; false with a message naming the line when it is malformed.
bool readTable(const QString &path, ReportData &data, QString &error)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("arquivo de dados não encontrado: %1").arg(path);
        return false;
    }
    const QString text = QString::fromUtf8(f.readAll());
    QStringList lines = text.split(u'\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    if (lines.isEmpty() || lines.first().trimmed().isEmpty()) {
        error = QStringLiteral("%1: falta a linha de cabeçalho com os nomes das colunas").arg(path);
        return false;
    }
    auto cells = [](QString line) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        return line.split(u'\t');
    };
    data.columns = cells(lines.first());
    for (int i = 0; i < data.columns.size(); ++i)
        if (data.columns[i].trimmed().isEmpty()) {
            error = QStringLiteral("%1, linha 1: coluna %2 sem nome").arg(path).arg(i + 1);
            return false;
        }
    for (int n = 1; n < lines.size(); ++n) {
        QStringList row = cells(lines[n]);
        if (row.size() != data.columns.size()) {
            error = QStringLiteral("%1, linha %2: %3 colunas, o cabeçalho tem %4")
                        .arg(path).arg(n + 1).arg(row.size()).arg(data.columns.size());
            return false;
        }
        data.rows.push_back(std::move(row));
    }
    return true;
}

int cmdReport(const QStringList &args)
{
    if (args.size() < 3) {
        err(QStringLiteral("uso: habtool report MODELO DADOS.tsv SAIDA.pdf [NOME=VALOR ...]"));
        return 2;
    }
    // A bare name is looked up in the program directory, as the program does.
    QString templatePath = args[0];
    if (!QFileInfo::exists(templatePath)) {
        const QString inProgramDir = QCoreApplication::applicationDirPath() + u'/' + templatePath;
        templatePath = QFileInfo::exists(inProgramDir) || templatePath.endsWith(QLatin1String(".rpt"), Qt::CaseInsensitive)
                           ? inProgramDir
                           : inProgramDir + QStringLiteral(".rpt");
    }
    if (!arquivoPresente(templatePath) || !arquivoPresente(args[1]))
        return kArgumentoInvalido;
    ReportData data;
    QString error;
    if (!readTable(args[1], data, error)) {
        err(error);
        return 1;
    }
    for (int i = 3; i < args.size(); ++i) {
        const qsizetype eq = args[i].indexOf(u'=');
        if (eq <= 0) {
            err(QStringLiteral("fórmula sem NOME=VALOR: %1").arg(args[i]));
            return 2;
        }
        data.setFormula(args[i].left(eq), args[i].mid(eq + 1));
    }
    data.title = data.formulas.contains(QStringLiteral("Titu")) ? data.formulas.value(QStringLiteral("Titu")).mid(1).chopped(1)
                                                               : QFileInfo(templatePath).completeBaseName();
    try {
        const ReportTemplate tpl = loadTemplate(templatePath);
        const ReportDocument doc = renderReport(tpl, data);
        for (const QString &note : doc.log)
            err(note);
        if (!writePdf(doc, args[2], &error)) {
            err(error);
            return 1;
        }
        out(QStringLiteral("%1: %2 página(s)").arg(args[2]).arg(doc.pageCount()));
    } catch (const TemplateError &e) {
        err(e.message());
        return 1;
    }
    return 0;
}

const bool registered = registerCommand("report", "MODELO DADOS.tsv SAIDA.pdf [NOME=VALOR ...]",
                                        "gera o PDF de um modelo de relatório com os dados de um arquivo TSV", cmdReport);

} // namespace
