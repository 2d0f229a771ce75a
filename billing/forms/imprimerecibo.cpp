#include "billing/forms/imprimerecibo.h"

#include "billing/impressaorecibo.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "reporting/imprime.h"

QString modeloRecibo()
{
    return modeloPorImpressora(QStringLiteral("Recibo"), session.impressora);
}

static ReportData dadosRecibos(Connection &con, const QString &sql)
{
    ReportData data;
    data.columns = colunasRecibo();
    data.rows = linhasRecibos(con, sql);
    for (const auto &[nome, valor] : formulasRecibo(con))
        data.setFormula(nome, valor);
    data.title = QStringLiteral("Balancete");
    return data;
}

bool imprimeReciboDireto(Connection &con, const QString &numero)
{
    Ampulheta ampulheta;
    ReportData data = dadosRecibos(con, sqlReciboPorNumero(numero));
    if (data.rows.empty())
        return false;
    data.title = QStringLiteral("Recibo ") + numero;
    return ImprimeDireto(modeloRecibo(), std::move(data));  // a fault comes back as false, unreported
}

void mostraRecibos(Connection &con, const QString &sql)
{
    Ampulheta ampulheta;
    MostraRelatorio(modeloRecibo(), dadosRecibos(con, sql));
}
