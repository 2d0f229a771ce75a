// habtool razao FILE ANO MESINI [MESFIN] [CTAINI CTAFIM]: fills MovRazao.
#include "accounting/razao.h"
#include "core/datastore.h"
#include "core/session.h"
#include "core/val.h"
#include "tools/habtool/habtool.h"

namespace {

int cmdRazao(const QStringList &args)
{
    // After the month(s), arguments with a point are account codes.
    QStringList meses, contas;
    for (const QString &a : args.mid(2))
        (a.contains(QLatin1Char('.')) ? contas : meses).append(a);
    const auto mes = [](const QString &t) { return int(val(t)); };
    if (args.size() < 3 || meses.isEmpty() || meses.size() > 2 || contas.size() > 2 || mes(meses.at(0)) < 1 ||
        mes(meses.at(0)) > 12 || (meses.size() == 2 && (mes(meses.at(1)) < mes(meses.at(0)) || mes(meses.at(1)) > 12))) {
        err(QStringLiteral("uso: habtool razao ARQUIVO ANO MESINI [MESFIN] [CTAINI CTAFIM]"));
        return 2;
    }
    RazaoPeriodo periodo;
    periodo.ano = args.at(1);
    periodo.mesIni = meses.at(0);
    if (meses.size() == 2)
        periodo.mesFim = meses.at(1);
    if (contas.size() >= 1)
        periodo.ctaIni = contas.at(0);
    if (contas.size() == 2)
        periodo.ctaFim = contas.at(1);

    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(conexaoDoArquivo(args.at(0)));
    const bool feito = EncheMovRazao(con, periodo);
    con.Close();
    return feito ? 0 : 1;
}

[[maybe_unused]] const bool registered = registerCommand("razao", "ARQUIVO ANO MESINI [MESFIN] [CTAINI CTAFIM]",
                                        "preenche MovRazao (razão analítico) do período", cmdRazao);

} // namespace
