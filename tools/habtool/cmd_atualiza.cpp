// habtool atualiza FILE mm/yyyy: the balance update for a base month.
#include "accounting/atualiza.h"
#include "core/datastore.h"
#include "core/session.h"
#include "tools/habtool/habtool.h"

namespace {

int cmdAtualiza(const QStringList &args)
{
    if (args.size() != 2) {
        err(QStringLiteral("uso: habtool atualiza ARQUIVO mm/aaaa"));
        return 2;
    }
    if (!bancoPresente(args.at(0)) || !leMesAno(QStringLiteral("mês"), args.at(1)))
        return kArgumentoInvalido;
    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(conexaoDoArquivo(args.at(0)));
    QString ultimo;
    AtualizaSaldos(con, args.at(1), [&](const Progress &p) {
        if (p.text != ultimo && !p.text.isEmpty())
            out(p.text);
        ultimo = p.text;
    });
    con.Close();
    return 0;
}

[[maybe_unused]] const bool registered = registerCommand("atualiza", "ARQUIVO mm/aaaa",
                                        "atualização de saldos do mês base até dezembro (Plano)", cmdAtualiza);

} // namespace
