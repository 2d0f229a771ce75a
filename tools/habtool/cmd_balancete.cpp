// habtool balancete FILE ANO MESINI [MESFIN]: fills RBalancete for a month or
// a period.
#include "accounting/balancete.h"
#include "core/datastore.h"
#include "core/session.h"
#include "core/val.h"
#include "tools/habtool/habtool.h"

namespace {

int cmdBalancete(const QStringList &args)
{
    if (args.size() < 3 || args.size() > 4) {
        err(QStringLiteral("uso: habtool balancete ARQUIVO ANO MESINI [MESFIN]   (meses de 1 a 12, MESFIN >= MESINI)"));
        return 2;
    }
    int ini = 0, fim = 12;
    if (!leAno(QStringLiteral("ANO"), args.at(1)) || !leMes(QStringLiteral("MESINI"), args.at(2), ini) ||
        (args.size() == 4 && !leInteiro(QStringLiteral("MESFIN"), args.at(3), ini, 12, fim)) || !bancoPresente(args.at(0)))
        return kArgumentoInvalido;
    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(conexaoDoArquivo(args.at(0)));
    const bool periodo = args.size() == 4;
    const bool feito = EncheRBalancete(con, args.at(2), periodo ? args.at(3) : QString(), periodo, args.at(1));
    con.Close();
    return feito ? 0 : 1;
}

[[maybe_unused]] const bool registered = registerCommand("balancete", "ARQUIVO ANO MESINI [MESFIN]",
                                        "preenche RBalancete do mês ou do período", cmdBalancete);

} // namespace
