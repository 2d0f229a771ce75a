// habtool demonstrativo FILE MODELO MES ANO: Monta_Balancete for the month,
// then Monta_Demonstrativo; prints the statement buffer.
#include "accounting/balancete.h"
#include "banks/demonstrativo.h"
#include "core/datastore.h"
#include "core/session.h"
#include "core/val.h"
#include "tools/habtool/habtool.h"

namespace {

int cmdDemonstrativo(const QStringList &args)
{
    if (args.size() != 4) {
        err(QStringLiteral("uso: habtool demonstrativo ARQUIVO MODELO MES ANO   (modelo 1 ou 2, mês de 1 a 12)"));
        return 2;
    }
    int modelo = 0, mes = 0;
    if (!leInteiro(QStringLiteral("MODELO"), args.at(1), 1, 2, modelo) || !leMes(QStringLiteral("MES"), args.at(2), mes) ||
        !leAno(QStringLiteral("ANO"), args.at(3)) || !bancoPresente(args.at(0)))
        return kArgumentoInvalido;
    session.conAtiva = conexaoDoArquivo(args.at(0));
    Monta_Balancete(args.at(2), args.at(3));

    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(session.conAtiva);
    TotaisDemonstrativo totais;
    Monta_Demonstrativo(con, totais, args.at(1).toInt(), args.at(2), args.at(3));
    con.Close();
    for (int i = 0; i < session.linhasDemonstrativo; ++i)
        out(session.demonstrativo[size_t(i)]);
    return 0;
}

[[maybe_unused]] const bool registered = registerCommand("demonstrativo", "ARQUIVO MODELO MES ANO",
                                        "monta o demonstrativo mensal (modelo 1 ou 2) e mostra suas linhas",
                                        cmdDemonstrativo);

} // namespace
