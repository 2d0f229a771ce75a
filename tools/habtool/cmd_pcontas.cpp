// habtool pcontas FILE ANO MES [--caixa]: fills RPcontas and prints the
// result of the special statement.
#include "accounting/balancete.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"
#include "tools/habtool/habtool.h"

namespace {

int cmdPcontas(const QStringList &args)
{
    QStringList resto = args;
    const bool caixa = resto.removeAll(QStringLiteral("--caixa")) > 0;
    if (resto.size() != 3) {
        err(QStringLiteral("uso: habtool pcontas ARQUIVO ANO MES [--caixa]   (mês de 1 a 12)"));
        return 2;
    }
    int mes = 0;
    if (!leAno(QStringLiteral("ANO"), resto.at(1)) || !leMes(QStringLiteral("MES"), resto.at(2), mes) ||
        !bancoPresente(resto.at(0)))
        return kArgumentoInvalido;
    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(conexaoDoArquivo(resto.at(0)));
    EncheRPcontas(con, resto.at(2), resto.at(1), caixa);
    out(formatMoney(ResultadoPctEspecial(con), QStringLiteral("#,###,##0.00")));
    con.Close();
    return 0;
}

[[maybe_unused]] const bool registered = registerCommand("pcontas", "ARQUIVO ANO MES [--caixa]",
                                        "preenche RPcontas e mostra o resultado da prestação de contas especial",
                                        cmdPcontas);

} // namespace
