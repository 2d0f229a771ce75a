#pragma once
// The slips of banks/boletoimpressao.h handed to the report engine: the data
// as the engine takes it, and the preview of frmRelatorio.
#include "banks/boletoimpressao.h"
#include "core/prompter.h"
#include "reporting/imprime.h"

// The statement's lines as the rows of the slip's sub-report.
inline void poeDemonstrativo(ReportData &d, const QStringList &linhas)
{
    SubreportData &sub = d.subreports[kSubDemonstrativo];
    sub.columns = {QStringLiteral("Linha")};
    sub.rows.clear();
    sub.rows.reserve(size_t(linhas.size()));
    for (const QString &l : linhas)
        sub.rows.push_back({l});
}

// The session's statement on a print that builds its own data (frmBoleto):
// the formulas Linha000 .. Linha121 and the sub-report's rows.
inline void demonstrativoNoRelatorio(ReportData &d)
{
    for (const auto &f : formulasDemonstrativo())
        d.setFormula(f.first, f.second);
    poeDemonstrativo(d, linhasDemonstrativo());
}

inline ReportData dadosRelatorio(const ImpressaoBoletos &impressao)
{
    ReportData d;
    d.columns = impressao.colunas;
    d.rows = impressao.linhas;
    d.title = impressao.titulo;
    for (const auto &f : impressao.formulas)
        d.setFormula(f.first, f.second);
    poeDemonstrativo(d, impressao.demonstrativo);
    return d;
}

// Shows the slips in the preview, titled with txtTitulo.
// Slips whose bar code the engine cannot draw are named to the clerk: on the
// page they would only lack their bars.
inline void mostraBoletos(const ImpressaoBoletos &impressao)
{
    MostraRelatorio(impressao.modelo, dadosRelatorio(impressao));
    const QStringList semBarra = recibosSemBarraValida(impressao);
    if (!semBarra.isEmpty())
        MsgBox(QStringLiteral("O código de barras dos recibos ") + semBarra.join(QStringLiteral(", "))
                   + QStringLiteral(" não tem 44 dígitos: esses boletos saem sem as barras. "
                                    "Confira os parâmetros do banco e calcule de novo !"),
               vbExclamation, QStringLiteral("Atenção"));
}
