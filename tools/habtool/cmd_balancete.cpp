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
    const auto mes = [](const QString &t) { return int(val(t)); };
    if (args.size() < 3 || args.size() > 4 || mes(args.at(2)) < 1 || mes(args.at(2)) > 12 ||
        (args.size() == 4 && (mes(args.at(3)) < mes(args.at(2)) || mes(args.at(3)) > 12))) {
        err(QStringLiteral("uso: habtool balancete ARQUIVO ANO MESINI [MESFIN]   (meses de 1 a 12, MESFIN >= MESINI)"));
        return 2;
    }
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
