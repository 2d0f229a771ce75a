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
    if (args.size() < 3 || meses.isEmpty() || meses.size() > 2 || contas.size() > 2) {
        err(QStringLiteral("uso: habtool razao ARQUIVO ANO MESINI [MESFIN] [CTAINI CTAFIM]"));
        return 2;
    }
    int ini = 0, fim = 12;
    if (!leAno(QStringLiteral("ANO"), args.at(1)) || !leMes(QStringLiteral("MESINI"), meses.at(0), ini) ||
        (meses.size() == 2 && !leInteiro(QStringLiteral("MESFIN"), meses.at(1), ini, 12, fim)) || !bancoPresente(args.at(0)))
        return kArgumentoInvalido;
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
