#pragma once
// The slips of banks/boletoimpressao.h handed to the report engine: the data
// as the engine takes it, and the preview of frmRelatorio.
#include "banks/boletoimpressao.h"
#include "reporting/imprime.h"

inline ReportData dadosRelatorio(const ImpressaoBoletos &impressao)
{
    ReportData d;
    d.columns = impressao.colunas;
    d.rows = impressao.linhas;
    d.title = impressao.titulo;
    for (const auto &f : impressao.formulas)
        d.setFormula(f.first, f.second);
    return d;
}

// Shows the slips in the preview, titled with txtTitulo.
inline void mostraBoletos(const ImpressaoBoletos &impressao)
{
    MostraRelatorio(impressao.modelo, dadosRelatorio(impressao));
}
